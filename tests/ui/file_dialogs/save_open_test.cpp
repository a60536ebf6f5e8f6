// Saving, opening and importing through the dialogs: the overwrite question, failures that keep
// the dialog open, and a version 1 file brought into the current format.
#include "model/features.h"
#include "ui/file_dialogs/file_dialog_fixture.h"

namespace flexley::testing {
namespace {

// A 10 ft beam of version 1 with a uniform load of 12 lb/in over its whole length on two
// supports: five fields on line 3 and one intensity per distributed load.
constexpr const char* kVersion1Beam =
    "0,1,0,2,0,1,0,2,3,\r\n"
    "120,0,0,0,0,12,0\r\n"
    "2,100,29000000,10000,#FALSE#\r\n"
    "12,0,120\r\n"
    "0,\"simp\"\r\n"
    "120,\"simp\"\r\n"
    "\"di1\",\"ft\",\"pf\"\r\n"
    "\"su1\",\"ft\",\"lb\"\r\n"
    "\"su2\",\"ft\",\"lb\"\r\n";

using SaveOpenTest = FileDialogFixture;

TEST_F(SaveOpenTest, ReplacingAFileIsAskedAndAFailedSaveKeepsTheOldFileByteForByte) {
    started();
    ASSERT_TRUE(add_point_load(model, 500.0, 60.0, "ft", "lb").ok());
    const std::string old_text = "2,0,0,0,0,0,0,0,0,\r\nkeep me\r\n";
    std::ofstream(path("beam.lod"), std::ios::binary) << old_text;
    prompts.answer_no();
    save_as("beam");
    EXPECT_EQ(prompts.texts(), QStringList{kOverwriteQuestion});
    EXPECT_TRUE(dialog_open(FileDialogKind::save)) << "No keeps the dialog for another name";

    // With every name for the new text taken, the file could only be saved by writing over it.
    const auto temporary = [&](int k) { return path("beam.lod." + std::to_string(k) + ".tmp"); };
    for (int k = 0; k < 100; ++k)
        std::filesystem::create_directory(temporary(k));
    prompts.answer_yes();
    save_as("beam");
    EXPECT_EQ(prompts.texts().size(), 3) << "the question again, then why the save failed";
    EXPECT_TRUE(dialog_open(FileDialogKind::save));
    EXPECT_TRUE(model.current_file.empty());
    EXPECT_EQ(file_text(path("beam.lod")), old_text);

    for (int k = 0; k < 100; ++k)
        std::filesystem::remove(temporary(k));
    prompts.answer_yes();
    save_as("beam");
    EXPECT_EQ(file_text(path("beam.lod")), load_configuration_text(model));
    EXPECT_FALSE(dialog_open(FileDialogKind::save));
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen: beam.lod");
    EXPECT_EQ(model.current_dir, folder.path().toStdString());
}

TEST_F(SaveOpenTest, OpenLoadsTheSelectedFileOrSaysFileAccessErrorAndStaysOpen) {
    std::filesystem::copy_file(FLEXLEY_EXAMPLES_DIR "/simply-supported-point-load.lod",
                               path("good.lod"));
    std::ofstream(path("corrupt.lod")) << "1,0,0,2,1,0,0,2,3,\r\nnot numbers\r\n";
    std::ofstream(path("vanishing.lod")) << "x";
    started();
    for (const char* name : {"vanishing.lod", "corrupt.lod"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(add_point_load(model, 500.0, 60.0, "ft", "lb").ok());
        trigger("openloadcfg");
        click_file(dialog(FileDialogKind::open), name);
        std::filesystem::remove(path("vanishing.lod"));
        auto& files = child<QTreeWidget>(dialog(FileDialogKind::open), "flist");
        files.setFocus();
        QTest::keyClick(&files, Qt::Key_Return);
        EXPECT_EQ(prompts.texts(), QStringList{kFileAccessError});
        EXPECT_EQ(model.feature_count, 0) << "a failed open leaves the beam empty";
        EXPECT_TRUE(dialog_open(FileDialogKind::open));
        prompts.forget_shown();
    }
    trigger("openloadcfg");
    load_through(FileDialogKind::open, path("good.lod"));
    EXPECT_TRUE(prompts.shown().empty());
    EXPECT_EQ(caption("loadlab1"), "5000 lb.");
}

TEST_F(SaveOpenTest, AVersion1ImportIsAnEnglishBeamThatSavesAndReopensInTheCurrentFormat) {
    std::ofstream(path("old.lod"), std::ios::binary) << kVersion1Beam;
    settings.preferences.default_units = "metric";
    write_preferences(settings.preferences, settings.preferences_dir);
    started();
    ASSERT_TRUE(model.metric_units);

    trigger("importloadcfg");
    load_through(FileDialogKind::import, path("old.lod"));
    EXPECT_FALSE(child<QAction>(window(), "englishunits").isEnabled()) << "an English beam now";
    EXPECT_TRUE(settings.extra.recent_files.empty()) << "a version 1 file cannot be reopened";

    save_as("new");
    const std::string saved = file_text(path("new.lod"));
    EXPECT_NE(saved.find("\r\n2,100,29000000,10000,#FALSE#,#FALSE#\r\n12,12,0,120\r\n"),
              std::string::npos)
        << saved;
    prompts.answer_no();
    trigger("reinitialize");
    trigger("openloadcfg");
    load_through(FileDialogKind::open, path("new.lod"));
    EXPECT_EQ(load_configuration_text(model), saved);
}

}  // namespace
}  // namespace flexley::testing
