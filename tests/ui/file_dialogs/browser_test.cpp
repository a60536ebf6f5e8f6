// The file dialogs as a browser: the filter's refreshes, the order and dates of the files, where
// each dialog starts and a folder that cannot be read.
#include <QFocusEvent>

#include "ui/file_dialogs/file_dialog_fixture.h"

namespace flexley::testing {
namespace {

using BrowserTest = FileDialogFixture;

// Which texts refresh at once and which on leaving is the core's rule; here, that each way of
// refreshing reaches the list.
TEST_F(BrowserTest, TheFilterRefreshesOnACompletePatternOnLeavingTheBoxAndOnAChoice) {
    for (const char* name : {"a.lod", "b.dat", ".hidden.lod"})
        std::ofstream(path(name)) << "x";
    started();
    trigger("openloadcfg");
    LoadFileDialog& open = dialog(FileDialogKind::open);
    auto& filter = child<QComboBox>(open, "filetype");
    QLineEdit& typed = *filter.lineEdit();
    EXPECT_EQ(listed(open), QStringList{"a.lod"});
    typed.clear();
    QTest::keyClicks(&typed, "*.dat");
    EXPECT_EQ(listed(open), QStringList{"b.dat"});

    typed.clear();
    QTest::keyClicks(&typed, "a*");
    EXPECT_EQ(listed(open), QStringList{"b.dat"}) << "an incomplete pattern waits";
    QFocusEvent left(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&typed, &left);
    EXPECT_EQ(listed(open), QStringList{"a.lod"});

    filter.setCurrentIndex(1);
    emit filter.activated(1);
    EXPECT_EQ(listed(open), (QStringList{"a.lod", "b.dat", "beams.prf"}));
}

TEST_F(BrowserTest, FilesAreListedInBinaryOrderWithTheirDates) {
    for (const char* name : {"B.lod", "a.lod", "A.lod", "notes.txt"})
        std::ofstream(path(name)) << "x";
    started();
    trigger("importloadcfg");
    LoadFileDialog& import = dialog(FileDialogKind::import);
    EXPECT_EQ(listed(import), (QStringList{"A.lod", "B.lod", "a.lod"}));
    EXPECT_FALSE(child<QTreeWidget>(import, "flist").topLevelItem(0)->text(1).isEmpty());
}

TEST_F(BrowserTest, DialogsStartInTheWorkingFolderElseTheLastAndKeepOneThatCannotBeLeft) {
    std::filesystem::create_directories(path("work"));
    std::filesystem::create_directories(path("last/deeper/gone"));
    started();
    settings.preferences.working_files_path = path("work");
    trigger("saveas");
    EXPECT_EQ(dialog(FileDialogKind::save).directory().toStdString(), path("work"));

    settings.preferences.working_files_path.clear();
    settings.last_dir = path("last");
    trigger("openloadcfg");
    LoadFileDialog& open = dialog(FileDialogKind::open);
    EXPECT_EQ(open.directory().toStdString(), path("last"));
    auto& folders = child<QTreeWidget>(open, "dirlist");
    const auto item = [&](const char* name) {
        return folders.findItems(name, Qt::MatchRecursive).value(0);
    };
    ASSERT_NE(item("deeper"), nullptr);
    emit folders.itemDoubleClicked(item("deeper"), 0);
    EXPECT_EQ(settings.last_dir, path("last/deeper"));

    ASSERT_NE(item("gone"), nullptr);
    folders.setCurrentItem(item("gone"));
    std::filesystem::remove(path("last/deeper/gone"));
    folders.setFocus();
    QTest::keyClick(&folders, Qt::Key_Return);
    EXPECT_EQ(prompts.texts(),
              QStringList{"The folder " + QString::fromStdString(path("last/deeper/gone")) +
                          " cannot be read.  No such file or directory."});
    EXPECT_EQ(open.directory().toStdString(), path("last/deeper"));
}

}  // namespace
}  // namespace flexley::testing
