// Saving, a file named on the command line, and closing.
#include <QSignalSpy>
#include <filesystem>

#include "files/load_file.h"
#include "model/features.h"
#include "ui/dialogs/load_file_dialog.h"
#include "ui/loading/loading_fixture.h"

namespace flexley::testing {
namespace {

using RunsAndFilesTest = LoadingFixture;

// Opening, the overwrite question and failures are the file dialogs' concern; here Save names an
// unsaved beam once and then saves silently.
TEST_F(RunsAndFilesTest, SaveAsksForANameOnceThenSavesSilently) {
    started();
    add_point_load(model, 500.0, 60.0, "ft", "lb");
    trigger("saveloadcfg");
    auto& chooser = child<LoadFileDialog>(window(), "Saveload");
    ASSERT_TRUE(chooser.show_directory(folder.path()));
    child<QLineEdit>(chooser, "Savename").setText("beam");
    child<QPushButton>(chooser, "savebutton").click();
    discard_closed_windows();
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen: beam.lod");

    add_point_load(model, 700.0, 30.0, "ft", "lb");
    trigger("saveloadcfg");
    EXPECT_TRUE(prompts.shown().empty());
    EXPECT_EQ(window().findChild<LoadFileDialog*>(), nullptr);
    std::ifstream saved(path("beam.lod"), std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(saved), {}),
              load_configuration_text(model));
}

TEST_F(RunsAndFilesTest, AFileOnTheCommandLineOpensStraightOnTheLoadingScreen) {
    window().start(FLEXLEY_EXAMPLES_DIR "/propped-cantilever-point-load.lod");
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen: propped-cantilever-point-load.lod");
    EXPECT_EQ(caption("loadlab1"), "8000 lb.");
    EXPECT_TRUE(prompts.shown().empty());
}

TEST_F(RunsAndFilesTest, AnUnreadableFileOnTheCommandLineFallsBackToTheStartDialog) {
    std::ofstream(path("broken.lod")) << "1,0,0\r\nnot a beam\r\n";
    window().start(path("broken.lod"));
    ASSERT_EQ(prompts.texts(), QStringList{kFileAccessError});
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(child<StartDialog>(window(), "properties").isVisible());
    EXPECT_EQ(model.feature_count, 0);
}

// What closing writes is for the preferences tests; here it ends the program even on a failure.
TEST_F(RunsAndFilesTest, ClosingFinishesEvenWhenThePreferencesCannotBeWritten) {
    started();
    QSignalSpy finished(&window(), &LoadingScreen::finished);
    settings.preferences_dir = path("missing/folder");
    window().close();
    EXPECT_EQ(prompts.texts().last(), kUnableToSavePreferences);
    EXPECT_EQ(finished.count(), 1);
}

}  // namespace
}  // namespace flexley::testing
