// Beam properties dialogs opened on a bare model with scripted prompts and the shipped section
// list.
#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "ui/dialogs/beam_properties_dialog.h"
#include "ui/loading/loading_fixture.h"

namespace flexley::testing {

class PropertiesFixture : public ::testing::Test {
  protected:
    PropertiesFixture() { settings.shipped_definitions = FLEXLEY_DATA_DIR "/beams.lst"; }

    // Replaces a box's text as the user would: select all, then type (or delete).
    static void type(QWidget& dialog, const char* box, const QString& text) {
        auto& edit = child<QLineEdit>(dialog, box);
        edit.selectAll();
        text.isEmpty() ? QTest::keyClick(&edit, Qt::Key_Delete) : QTest::keyClicks(&edit, text);
    }

    static QString text(const QWidget& dialog, const char* box) {
        return child<QLineEdit>(dialog, box).text();
    }

    static void click(QWidget& dialog, const char* button) {
        QTest::mouseClick(&child<QPushButton>(dialog, button), Qt::LeftButton);
    }

    // The aid a button of `owner` opened over it.
    template <typename Dialog>
    static Dialog& opened(QWidget& owner, const char* button, const char* name) {
        click(owner, button);
        return child<Dialog>(owner, name);
    }

    BeamModel model;
    ProgramSettings settings;
    ScriptedPrompts prompts;
};

}  // namespace flexley::testing
