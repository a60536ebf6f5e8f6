// The preferences dialog, the first run without beams.prf, and what survives a restart: the
// recent files and the integration method.
#include <QCheckBox>
#include <QRadioButton>

#include "files/preference_choices.h"
#include "ui/dialogs/preferences_dialog.h"
#include "ui/file_dialogs/file_dialog_fixture.h"

namespace flexley::testing {
namespace {

using PreferencesTest = FileDialogFixture;

TEST_F(PreferencesTest, OkStoresEverySettingThatPassesEvenWhenTheBeamDefinitionPathIsRefused) {
    std::filesystem::create_directory(path("Work"));
    started();
    trigger("file_preferences");
    auto& dialog = child<PreferencesDialog>(window(), "preferences");
    child<QLineEdit>(dialog, "beamdefn").setText(QString::fromStdString(path("missing.lst")));
    child<QLineEdit>(dialog, "workfiledefn").setText(QString::fromStdString(path("Work")));
    child<QRadioButton>(dialog, "metopt").click();
    child<QCheckBox>(dialog, "outline").click();
    child<QPushButton>(dialog, "OK").click();
    EXPECT_EQ(prompts.texts(), QStringList{kBeamDefinitionFileMissing});
    EXPECT_TRUE(settings.preferences.beam_definition_path.empty());
    EXPECT_EQ(settings.preferences.working_files_path, path("Work")) << "case kept as typed";
    EXPECT_EQ(settings.preferences.default_units, "metric");
    EXPECT_TRUE(settings.preferences.outline_only);
}

// The first run has no beams.prf: it says so once, and closing writes the file in its one-line
// format beside the recent files and the integration method, which the next run reads back.
TEST_F(PreferencesTest, AFirstRunSaysSoOnceAndWhatItChoseSurvivesARestart) {
    std::filesystem::remove(path(kPreferencesFileName));
    started();
    EXPECT_EQ(prompts.texts(), QStringList{kNoPreferencesFile});
    ASSERT_TRUE(add_point_load(model, 500.0, 60.0, "ft", "lb").ok());
    save_as("first");
    save_as("second&third");
    const QString newest = child<QAction>(window(), "recentfile1").text();
    EXPECT_TRUE(newest.startsWith("&1 ") && newest.endsWith("second&&third.lod"))
        << newest.toStdString();
    trigger("file_preferences");
    auto& dialog = child<PreferencesDialog>(window(), "preferences");
    child<QCheckBox>(dialog, "exactintegration").click();
    child<QPushButton>(dialog, "OK").click();
    window().close();
    EXPECT_EQ(prompts.texts().size(), 1);
    EXPECT_EQ(file_text(path(kPreferencesFileName)),
              "\"\",\"" + folder.path().toStdString() + "\",\"english\",#FALSE#\r\n");

    BeamModel next_model;
    ProgramSettings next_settings = settings;
    next_settings.extra = {};
    ScriptedPrompts next_prompts;
    LoadingScreen next(next_model, next_settings, next_prompts, QRect(0, 0, 1920, 1080));
    next.start();
    child<QPushButton>(next, "Command1").click();
    EXPECT_EQ(next_model.integration_method, IntegrationMethod::trapezoid);
    EXPECT_EQ(next_settings.extra.recent_files,
              (std::vector<std::string>{path("second&third.lod"), path("first.lod")}));

    child<QAction>(next, "recentfile2").trigger();
    EXPECT_EQ(next.windowTitle(), "Flexley: Loading Screen: first.lod");

    std::filesystem::remove(path("second&third.lod"));
    child<QAction>(next, "recentfile2").trigger();
    EXPECT_EQ(next_prompts.texts(),
              QStringList{"The file " + QString::fromStdString(path("second&third.lod")) +
                          " cannot be found.  It has been removed from the list of recent files."});
    EXPECT_EQ(next_settings.extra.recent_files, std::vector<std::string>{path("first.lod")});
    EXPECT_EQ(next_model.feature_count, 1) << "the beam shown stays";
}

}  // namespace
}  // namespace flexley::testing
