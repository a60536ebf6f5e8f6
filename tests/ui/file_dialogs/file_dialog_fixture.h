// A Loading Screen over a temporary folder, with helpers that work the Save, Open and Import
// dialogs through their controls.
#pragma once

#include <QComboBox>
#include <QTest>
#include <QTreeWidget>
#include <filesystem>

#include "ui/dialogs/load_file_dialog.h"
#include "ui/loading/loading_fixture.h"

namespace flexley::testing {

inline std::string file_text(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

class FileDialogFixture : public LoadingFixture {
  protected:
    LoadFileDialog& dialog(FileDialogKind kind) {
        return child<LoadFileDialog>(window(), file_dialog_name(kind));
    }

    // The matching files an Open or Import dialog lists.
    static QStringList listed(LoadFileDialog& dialog) {
        QStringList names;
        auto& files = child<QTreeWidget>(dialog, "flist");
        for (int i = 0; i < files.topLevelItemCount(); ++i)
            names << files.topLevelItem(i)->text(0);
        return names;
    }

    // Clicks a file of the Open or Import dialog's list.
    static void click_file(LoadFileDialog& dialog, const QString& name) {
        auto& files = child<QTreeWidget>(dialog, "flist");
        const QList<QTreeWidgetItem*> found = files.findItems(name, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << name.toStdString();
        QTest::mouseClick(files.viewport(), Qt::LeftButton, {},
                          files.visualItemRect(found.front()).center());
    }

    // Opens a file through a read dialog that a command has just opened, as a user would.
    void load_through(FileDialogKind kind, const std::string& path) {
        LoadFileDialog& chooser = dialog(kind);
        const std::filesystem::path chosen(path);
        ASSERT_TRUE(chooser.show_directory(QString::fromStdString(chosen.parent_path())));
        click_file(chooser, QString::fromStdString(chosen.filename()));
        child<QPushButton>(chooser, "loadbutton").click();
        discard_closed_windows();
    }

    // Saves through the Save dialog into the test folder under the name typed.
    void save_as(const QString& name) {
        trigger("saveas");
        LoadFileDialog& chooser = dialog(FileDialogKind::save);
        auto& name_box = child<QLineEdit>(chooser, "Savename");
        name_box.clear();
        QTest::keyClicks(&name_box, name);
        QTest::keyClick(&name_box, Qt::Key_Return);
        discard_closed_windows();
    }

    bool dialog_open(FileDialogKind kind) {
        auto* found = window().findChild<LoadFileDialog*>(file_dialog_name(kind));
        return found && found->isVisible();
    }
};

}  // namespace flexley::testing
