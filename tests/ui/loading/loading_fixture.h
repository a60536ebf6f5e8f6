// A Loading Screen on a 1920 x 1080 work area with scripted prompts and its own preferences folder.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <fstream>
#include <memory>
#include <span>
#include <stdexcept>
#include <utility>

#include "files/preferences.h"
#include "model/beam_model.h"
#include "ui/common/program_settings.h"
#include "ui/loading/loading_screen.h"
#include "ui/loading/start_dialog.h"
#include "ui/scripted_prompts.h"

namespace flexley::testing {

// Finds a child by objectName, failing the test with the name when it is missing.
template <typename T>
T& child(const QObject& parent, const char* name) {
    T* found = parent.findChild<T*>(name);
    if (!found) {
        ADD_FAILURE() << "no " << T::staticMetaObject.className() << " named " << name;
        throw std::runtime_error(name);
    }
    return *found;
}

struct MenuRow {
    const char* menu;
    const char* name;
    const char* caption;
    const char* shortcut;
    bool enabled;  // on an English beam
};

// The menu bar reads `titles`, and every row's item stands in its menu as the row describes it.
inline void expect_menus(const QMainWindow& window, const QStringList& titles,
                         std::span<const MenuRow> rows) {
    QStringList shown;
    for (QAction* action : window.menuBar()->actions())
        shown << action->text();
    EXPECT_EQ(shown, titles);
    for (const MenuRow& row : rows) {
        SCOPED_TRACE(row.name);
        const QAction& action = child<QAction>(window, row.name);
        EXPECT_TRUE(child<QMenu>(window, row.menu).actions().contains(&action));
        EXPECT_EQ(action.text(), row.caption);
        EXPECT_EQ(action.shortcut().toString(), row.shortcut);
        EXPECT_EQ(action.isEnabled(), row.enabled);
    }
}

// Whether "Convert to Metric" and "Convert to English" are enabled, in that order.
inline std::pair<bool, bool> unit_commands_enabled(const QWidget& window) {
    return {child<QAction>(window, "metricunits").isEnabled(),
            child<QAction>(window, "englishunits").isEnabled()};
}

class LoadingFixture : public ::testing::Test {
  protected:
    LoadingFixture() {
        settings.preferences_dir = folder.path().toStdString();
        settings.start_dir = folder.path().toStdString();
        settings.last_dir = settings.start_dir;
        settings.shipped_definitions = FLEXLEY_DATA_DIR "/beams.lst";
        write_preferences(Preferences{"", "", "english", false}, settings.preferences_dir);
    }

    std::string path(const std::string& name) const {
        return (folder.path() + "/").toStdString() + name;
    }

    // The window, created on first use so a test can first change the preferences.
    LoadingScreen& window() {
        if (!window_) {
            window_ =
                std::make_unique<LoadingScreen>(model, settings, prompts, QRect(0, 0, 1920, 1080));
        }
        return *window_;
    }

    // Program start, the start dialog answered with Continue as it stands.
    LoadingScreen& started() {
        window().start();
        child<QPushButton>(window(), "Command1").click();
        discard_closed_windows();
        return window();
    }

    // Closed dialogs delete themselves once events are processed; tests process no events.
    static void discard_closed_windows() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void trigger(const char* action) { child<QAction>(window(), action).trigger(); }

    // The caption of a label of the Loading Screen, found by its control name.
    QString caption(const char* name) { return child<QLabel>(window(), name).text(); }

    QTemporaryDir folder;
    BeamModel model;
    ProgramSettings settings;
    ScriptedPrompts prompts;

  private:
    std::unique_ptr<LoadingScreen> window_;
};

}  // namespace flexley::testing
