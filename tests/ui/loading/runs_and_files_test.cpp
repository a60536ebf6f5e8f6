// Reaction texts, the file commands and a file named on the command line, and closing.
#include <QSignalSpy>
#include <QTreeWidget>
#include <filesystem>

#include "files/load_file.h"
#include "model/beam_settings.h"
#include "model/features.h"
#include "ui/dialogs/load_file_dialog.h"
#include "ui/loading/loading_fixture.h"

namespace flexley::testing {
namespace {

std::string file_text(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

class RunsAndFilesTest : public LoadingFixture {
  protected:
    // Adds a feature through the core and redraws, as a feature dialog will.
    template <typename Add>
    void add(Add add_feature) {
        ASSERT_TRUE(add_feature().ok());
        trigger("redrawscreen");
    }

    // Chooses a file in the file dialog a command has just opened: its folder, then the name
    // typed (Save) or the file selected (Open), then Save or Load.
    void choose_file(const char* dialog, const std::string& path) {
        auto& chooser = child<LoadFileDialog>(window(), dialog);
        const std::filesystem::path chosen(path);
        ASSERT_TRUE(chooser.show_directory(QString::fromStdString(chosen.parent_path().string())));
        const QString name = QString::fromStdString(chosen.filename().string());
        if (auto* name_box = chooser.findChild<QLineEdit*>("Savename")) {
            name_box->setText(name);
            child<QPushButton>(chooser, "savebutton").click();
        } else {
            auto& files = child<QTreeWidget>(chooser, "flist");
            files.setCurrentItem(files.findItems(name, Qt::MatchExactly).value(0));
            child<QPushButton>(chooser, "loadbutton").click();
        }
        discard_closed_windows();
    }
};

// The texts' formats are the label groups' concern; here the commands show and blank them.
TEST_F(RunsAndFilesTest, ReactionTextsStandBesideTheSupportsUntilTheBeamChanges) {
    // PL/8 at each end of the 100 ft (1200 in.) beam of the start dialog, fixed at both ends.
    started();
    add([&] { return add_point_load(model, 1000.0, 600.0, "in", "lb"); });
    add([&] { return add_support(model, 0.0, "cant", "in", "lb"); });
    add([&] { return add_support(model, 1200.0, "cant", "in", "lb"); });
    // Reactions only, so that no Calculations Screen is open to recalculate after the removal.
    trigger("supreact");
    EXPECT_EQ(caption("sloadlab21"), "500 lb., 150000 lb.-in.");
    EXPECT_EQ(caption("sloadlab22"), "500 lb., -150000 lb.-in.");

    prompts.answer_text("1");
    trigger("removefeature");
    EXPECT_EQ(caption("sloadlab21"), "");
    EXPECT_EQ(caption("sloadlab22"), "");
}

TEST_F(RunsAndFilesTest, AFileOnTheCommandLineOpensStraightOnTheLoadingScreen) {
    window().start(FLEXLEY_EXAMPLES_DIR "/propped-cantilever-point-load.lod");
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen: propped-cantilever-point-load.lod");
    EXPECT_EQ(window().findChild<StartDialog*>(), nullptr);
    EXPECT_EQ(caption("featlabel3"), "Feature 3");
    EXPECT_EQ(caption("loadlab1"), "8000 lb.");
    EXPECT_TRUE(prompts.shown().empty());
}

TEST_F(RunsAndFilesTest, AnUnreadableFileOnTheCommandLineFallsBackToTheStartDialog) {
    std::ofstream(path("broken.lod")) << "1,0,0\r\nnot a beam\r\n";
    window().start(path("broken.lod"));
    ASSERT_EQ(prompts.texts(), QStringList{kFileAccessError});
    EXPECT_FALSE(prompts.shown().front().details.isEmpty());
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(child<StartDialog>(window(), "properties").isVisible());
    EXPECT_EQ(model.feature_count, 0);
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen");
}

// The overwrite question is the file dialogs' concern; here Save names an unsaved beam first.
TEST_F(RunsAndFilesTest, SaveAsksForANameOnceThenSavesSilentlyAndOpensBack) {
    started();
    add([&] { return add_point_load(model, 500.0, 60.0, "ft", "lb"); });
    trigger("saveloadcfg");
    choose_file("Saveload", path("beam"));
    EXPECT_EQ(file_text(path("beam.lod")), load_configuration_text(model));
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen: beam.lod");

    add([&] { return add_point_load(model, 700.0, 30.0, "ft", "lb"); });
    trigger("saveloadcfg");
    EXPECT_TRUE(prompts.shown().empty());
    EXPECT_EQ(window().findChild<LoadFileDialog*>(), nullptr);
    EXPECT_EQ(file_text(path("beam.lod")), load_configuration_text(model));

    prompts.answer_no();
    trigger("reinitialize");
    trigger("openloadcfg");
    choose_file("getload", path("beam.lod"));
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen: beam.lod");
    EXPECT_EQ(caption("loadlab2"), "700 lb.");
}

// What closing writes is for the preferences tests; here it ends the program even on a failure.
TEST_F(RunsAndFilesTest, ClosingFinishesEvenWhenThePreferencesCannotBeWritten) {
    started();
    QSignalSpy finished(&window(), &LoadingScreen::finished);
    window().close();
    EXPECT_EQ(finished.count(), 1);

    settings.preferences_dir = path("missing/folder");
    window().show();
    window().close();
    EXPECT_EQ(prompts.texts().last(), kUnableToSavePreferences);
    EXPECT_EQ(finished.count(), 2);
}

}  // namespace
}  // namespace flexley::testing
