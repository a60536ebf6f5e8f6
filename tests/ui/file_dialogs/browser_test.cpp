// The file dialogs as a browser: the filter's refreshes, the order and dates of the files, where
// each dialog starts, a folder that cannot be read, and the keyboard.
#include <QFocusEvent>

#include "ui/file_dialogs/file_dialog_fixture.h"

namespace flexley::testing {
namespace {

class BrowserTest : public FileDialogFixture {
  protected:
    void touch(const std::string& name) { std::ofstream(path(name)) << "x"; }
};

TEST_F(BrowserTest, TheFilterRefreshesWhenAPatternIsCompleteAChoiceIsMadeOrTheBoxIsLeft) {
    for (const char* name : {"a.lod", "b.dat", "c.txt", ".hidden.lod"})
        touch(name);
    std::filesystem::create_directory(path("folder.lod"));
    started();
    trigger("openloadcfg");
    LoadFileDialog& open = dialog(FileDialogKind::open);
    auto& filter = child<QComboBox>(open, "filetype");
    QLineEdit& typed = *filter.lineEdit();
    const auto leave_filter = [&] {
        QFocusEvent left(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(&typed, &left);
    };
    EXPECT_EQ(listed(open), QStringList{"a.lod"});

    typed.clear();
    QTest::keyClicks(&typed, "*.da");
    EXPECT_EQ(listed(open), QStringList{"a.lod"}) << "an incomplete pattern must wait";
    QTest::keyClicks(&typed, "t");
    EXPECT_EQ(listed(open), QStringList{"b.dat"});
    touch("d.dat");
    leave_filter();
    EXPECT_EQ(listed(open), QStringList{"b.dat"}) << "typing refreshed it already";

    typed.clear();
    QTest::keyClicks(&typed, "?.*");
    EXPECT_EQ(listed(open), (QStringList{"a.lod", "b.dat", "c.txt", "d.dat"}));
    typed.clear();
    QTest::keyClicks(&typed, "c*");
    leave_filter();
    EXPECT_EQ(listed(open), QStringList{"c.txt"});

    filter.setCurrentIndex(1);
    emit filter.activated(1);
    EXPECT_EQ(listed(open), (QStringList{"a.lod", "b.dat", "beams.prf", "c.txt", "d.dat"}));
    touch("e.lod");
    leave_filter();
    EXPECT_EQ(listed(open).size(), 5) << "a list item was refreshed when chosen";
    filter.setCurrentIndex(0);
    emit filter.activated(0);
    EXPECT_EQ(listed(open), (QStringList{"a.lod", "e.lod"}));
    EXPECT_TRUE(prompts.shown().empty());
}

TEST_F(BrowserTest, OpenListsFilesInBinaryOrderWithTheirDatesAndSaveShowsEveryFile) {
    for (const char* name : {"B.lod", "a.lod", "A.lod", "notes.txt"})
        touch(name);
    started();
    trigger("importloadcfg");
    LoadFileDialog& import = dialog(FileDialogKind::import);
    EXPECT_EQ(listed(import), (QStringList{"A.lod", "B.lod", "a.lod"}));
    auto& files = child<QTreeWidget>(import, "flist");
    EXPECT_FALSE(files.topLevelItem(0)->text(1).isEmpty()) << "the modification date";

    trigger("saveas");
    EXPECT_EQ(listed(dialog(FileDialogKind::save)),
              (QStringList{"A.lod", "B.lod", "a.lod", "beams.prf", "notes.txt"}));
}

TEST_F(BrowserTest, EveryDialogStartsInTheWorkingFolderElseWhereOneWasLast) {
    std::filesystem::create_directories(path("work"));
    std::filesystem::create_directories(path("last/deeper"));
    started();
    struct Row {
        const char* menu_item;
        FileDialogKind kind;
    };
    const Row rows[] = {{"saveas", FileDialogKind::save},
                        {"openloadcfg", FileDialogKind::open},
                        {"importloadcfg", FileDialogKind::import}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.menu_item);
        settings.preferences.working_files_path = path("work");
        trigger(row.menu_item);
        EXPECT_EQ(dialog(row.kind).directory().toStdString(), path("work"));
        dialog(row.kind).close();
        discard_closed_windows();

        settings.preferences.working_files_path.clear();
        settings.last_dir = path("last");
        trigger(row.menu_item);
        LoadFileDialog& chooser = dialog(row.kind);
        EXPECT_EQ(chooser.directory().toStdString(), path("last"));
        // Double-clicking a folder shows it, and the next dialog starts there.
        auto& folders = child<QTreeWidget>(chooser, "dirlist");
        QTreeWidgetItem* deeper = folders.findItems("deeper", Qt::MatchRecursive).value(0);
        ASSERT_NE(deeper, nullptr);
        emit folders.itemDoubleClicked(deeper, 0);
        EXPECT_EQ(settings.last_dir, path("last/deeper"));
        QTest::keyClick(&chooser, Qt::Key_Escape);
        discard_closed_windows();
        EXPECT_FALSE(dialog_open(row.kind));
    }
    EXPECT_TRUE(prompts.shown().empty());
}

TEST_F(BrowserTest, AFolderThatCannotBeReadIsReportedAndTheShownOneKept) {
    std::filesystem::create_directories(path("gone"));
    started();
    trigger("openloadcfg");
    LoadFileDialog& open = dialog(FileDialogKind::open);
    auto& folders = child<QTreeWidget>(open, "dirlist");
    QTreeWidgetItem* gone = folders.findItems("gone", Qt::MatchRecursive).value(0);
    ASSERT_NE(gone, nullptr);
    std::filesystem::remove(path("gone"));
    folders.setCurrentItem(gone);
    folders.setFocus();
    QTest::keyClick(&folders, Qt::Key_Return);
    EXPECT_EQ(prompts.texts(), QStringList{"The folder " + QString::fromStdString(path("gone")) +
                                           " cannot be read.  No such file or directory."});
    EXPECT_EQ(open.directory().toStdString(), folder.path().toStdString());
    EXPECT_TRUE(dialog_open(FileDialogKind::open)) << "Enter in the folder list never loads";
    EXPECT_EQ(settings.last_dir, folder.path().toStdString());
}

TEST_F(BrowserTest, KeyboardFocusStartsInTheNameBoxAndTypingANameSelectsThatFile) {
    touch("beam.lod");
    touch("beam2.lod");
    started();
    trigger("saveas");
    LoadFileDialog& save = dialog(FileDialogKind::save);
    EXPECT_EQ(save.focusWidget(), &child<QLineEdit>(save, "Savename"));
    EXPECT_EQ(child<QLineEdit>(save, "Savename").selectedText(), "loadcfg");

    trigger("openloadcfg");
    LoadFileDialog& open = dialog(FileDialogKind::open);
    auto& name_box = child<QLineEdit>(open, "loadfile");
    EXPECT_EQ(open.focusWidget(), &name_box);
    auto& files = child<QTreeWidget>(open, "flist");
    QTest::keyClicks(&name_box, "beam");
    EXPECT_TRUE(files.selectedItems().isEmpty()) << "only the whole name selects";
    QTest::keyClicks(&name_box, "2.lod");
    ASSERT_EQ(files.selectedItems().size(), 1);
    EXPECT_EQ(files.selectedItems().front()->text(0), "beam2.lod");
    click_file(open, "beam.lod");
    EXPECT_EQ(name_box.text(), "beam.lod");
}

}  // namespace
}  // namespace flexley::testing
