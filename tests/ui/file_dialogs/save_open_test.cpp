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

class SaveOpenTest : public FileDialogFixture {
  protected:
    void add_load() {
        ASSERT_TRUE(add_point_load(model, 500.0, 60.0, "ft", "lb").ok());
        trigger("redrawscreen");
    }
};

TEST_F(SaveOpenTest, SaveAsksBeforeReplacingAFileAndOnlyYesReplacesIt) {
    started();
    add_load();
    std::ofstream(path("beam.lod")) << "old";

    prompts.answer_no();
    save_as("beam");
    EXPECT_EQ(prompts.texts(), QStringList{kOverwriteQuestion});
    EXPECT_EQ(file_text(path("beam.lod")), "old");
    EXPECT_TRUE(dialog_open(FileDialogKind::save)) << "No keeps the dialog for another name";
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen");

    prompts.answer_yes();
    QTest::keyClick(&child<QLineEdit>(dialog(FileDialogKind::save), "Savename"), Qt::Key_Return);
    discard_closed_windows();
    EXPECT_EQ(file_text(path("beam.lod")), load_configuration_text(model));
    EXPECT_FALSE(dialog_open(FileDialogKind::save));
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen: beam.lod");
    EXPECT_EQ(model.current_file, "beam.lod");
    EXPECT_EQ(model.current_dir, folder.path().toStdString());
}

TEST_F(SaveOpenTest, AFailedSaveSaysWhyKeepsTheDialogOpenAndTheOldFileByteForByte) {
    started();
    add_load();
    const std::string old_text = "2,0,0,0,0,0,0,0,0,\r\nkeep me\r\n";
    std::ofstream(path("beam.lod"), std::ios::binary) << old_text;
    // With every name for the new text taken, the file could only be saved by writing over it.
    for (int attempt = 0; attempt < 100; ++attempt)
        std::filesystem::create_directory(path("beam.lod." + std::to_string(attempt) + ".tmp"));
    std::filesystem::create_directory(path("folder.lod"));

    struct Row {
        const char* typed;
        bool asks_to_overwrite;
    };
    for (const Row& row : {Row{"beam", true}, Row{"folder.lod", false}, Row{"", false}}) {
        SCOPED_TRACE(row.typed);
        prompts.forget_shown();
        if (row.asks_to_overwrite) prompts.answer_yes();
        save_as(row.typed);
        ASSERT_EQ(prompts.texts().size(), row.asks_to_overwrite ? 2 : 1);
        EXPECT_FALSE(prompts.texts().last().isEmpty());
        EXPECT_TRUE(dialog_open(FileDialogKind::save));
        EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen");
        EXPECT_TRUE(model.current_file.empty());
        dialog(FileDialogKind::save).close();
        discard_closed_windows();
    }
    EXPECT_EQ(file_text(path("beam.lod")), old_text);
    EXPECT_TRUE(settings.extra.recent_files.empty());
}

TEST_F(SaveOpenTest, OpenLoadsTheSelectedFileOrSaysFileAccessErrorAndStaysOpen) {
    std::filesystem::copy_file(FLEXLEY_EXAMPLES_DIR "/simply-supported-point-load.lod",
                               path("good.lod"));
    std::ofstream(path("corrupt.lod")) << "1,0,0,2,1,0,0,2,3,\r\nnot numbers\r\n";
    std::ofstream(path("vanishing.lod")) << "x";
    struct Row {
        const char* clicked;  // nothing selected when empty
        bool opens;
    };
    const Row rows[] = {
        {"corrupt.lod", false}, {"vanishing.lod", false}, {"", false}, {"good.lod", true}};
    started();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.clicked);
        add_load();
        prompts.forget_shown();
        trigger("openloadcfg");
        LoadFileDialog& open = dialog(FileDialogKind::open);
        if (*row.clicked) click_file(open, row.clicked);
        if (std::string(row.clicked) == "vanishing.lod") std::filesystem::remove(path(row.clicked));
        auto& files = child<QTreeWidget>(open, "flist");
        files.setFocus();
        QTest::keyClick(&files, Qt::Key_Return);
        discard_closed_windows();
        EXPECT_EQ(dialog_open(FileDialogKind::open), !row.opens);
        if (row.opens) {
            EXPECT_TRUE(prompts.shown().empty());
            EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen: good.lod");
            EXPECT_EQ(caption("loadlab1"), "5000 lb.");
        } else {
            EXPECT_EQ(prompts.texts(), QStringList{kFileAccessError});
            EXPECT_EQ(model.feature_count, 0) << "a failed open leaves the beam empty";
            EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen");
            open.close();
            discard_closed_windows();
        }
    }
    EXPECT_EQ(settings.extra.recent_files, std::vector<std::string>{path("good.lod")});
}

TEST_F(SaveOpenTest, AVersion1ImportIsAnEnglishBeamThatSavesAndReopensInTheCurrentFormat) {
    std::ofstream(path("old.lod"), std::ios::binary) << kVersion1Beam;
    settings.preferences.default_units = "metric";
    write_preferences(settings.preferences, settings.preferences_dir);
    started();
    ASSERT_TRUE(model.metric_units);

    trigger("importloadcfg");
    load_through(FileDialogKind::import, path("old.lod"));
    EXPECT_FALSE(dialog_open(FileDialogKind::import));
    EXPECT_TRUE(prompts.shown().empty());
    EXPECT_FALSE(model.metric_units);
    EXPECT_TRUE(child<QAction>(window(), "metricunits").isEnabled());
    EXPECT_FALSE(child<QAction>(window(), "englishunits").isEnabled());
    EXPECT_DOUBLE_EQ(model.di_mag_start[1], 12.0);
    EXPECT_DOUBLE_EQ(model.di_mag_end[1], 12.0);
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen: old.lod");
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
    EXPECT_EQ(caption("featlabel1"), "Feature 1");
}

}  // namespace
}  // namespace flexley::testing
