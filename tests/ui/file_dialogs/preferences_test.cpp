// The preferences dialog, the first run without beams.prf, and what survives a restart: the
// recent files and the integration method.
#include <QCheckBox>
#include <QRadioButton>

#include "files/preference_choices.h"
#include "ui/dialogs/preferences_dialog.h"
#include "ui/file_dialogs/file_dialog_fixture.h"

namespace flexley::testing {
namespace {

class PreferencesTest : public FileDialogFixture {
  protected:
    PreferencesDialog& preferences_dialog() {
        trigger("file_preferences");
        return child<PreferencesDialog>(window(), "preferences");
    }

    static void retype(QLineEdit& box, const QString& text) {
        box.clear();
        QTest::keyClicks(&box, text);
    }
};

TEST_F(PreferencesTest, OkStoresEverySettingThatPassesEvenWhenTheBeamDefinitionPathIsRefused) {
    std::filesystem::create_directory(path("Work"));
    started();
    PreferencesDialog& dialog = preferences_dialog();
    auto& definitions = child<QLineEdit>(dialog, "beamdefn");
    EXPECT_EQ(dialog.focusWidget(), &definitions);
    EXPECT_EQ(definitions.text().toStdString(), settings.shipped_definitions);
    EXPECT_EQ(child<QLineEdit>(dialog, "workfiledefn").text(), folder.path())
        << "no working folder yet: the folder the program started in";
    EXPECT_TRUE(child<QRadioButton>(dialog, "engopt").isChecked());
    EXPECT_TRUE(child<QCheckBox>(dialog, "exactintegration").isChecked());

    retype(definitions, QString::fromStdString(path("missing.lst")));
    retype(child<QLineEdit>(dialog, "workfiledefn"), QString::fromStdString(path("Work")));
    child<QRadioButton>(dialog, "metopt").click();
    child<QCheckBox>(dialog, "outline").click();
    child<QCheckBox>(dialog, "exactintegration").click();
    child<QPushButton>(dialog, "OK").click();
    discard_closed_windows();

    EXPECT_EQ(prompts.texts(), QStringList{kBeamDefinitionFileMissing});
    EXPECT_EQ(window().findChild<PreferencesDialog*>(), nullptr);
    EXPECT_TRUE(settings.preferences.beam_definition_path.empty());
    EXPECT_EQ(settings.preferences.working_files_path, path("Work")) << "case kept as typed";
    EXPECT_EQ(settings.preferences.default_units, "metric");
    EXPECT_TRUE(settings.preferences.outline_only);
    EXPECT_EQ(model.integration_method, IntegrationMethod::trapezoid);

    // Cancel, or Escape, changes nothing.
    PreferencesDialog& again = preferences_dialog();
    EXPECT_FALSE(child<QCheckBox>(again, "exactintegration").isChecked());
    child<QRadioButton>(again, "engopt").click();
    QTest::keyClick(&again, Qt::Key_Escape);
    EXPECT_EQ(settings.preferences.default_units, "metric");
    EXPECT_EQ(prompts.texts().size(), 1);
}

TEST_F(PreferencesTest, AFirstRunWithoutAFileSaysSoOnceAndClosingWritesIt) {
    std::filesystem::remove(path(kPreferencesFileName));
    started();
    EXPECT_EQ(prompts.texts(), QStringList{kNoPreferencesFile});
    EXPECT_FALSE(model.metric_units);
    EXPECT_FALSE(std::filesystem::exists(path(kPreferencesFileName)));
    window().close();
    EXPECT_EQ(prompts.texts().size(), 1);
    EXPECT_EQ(file_text(path(kPreferencesFileName)),
              "\"\",\"" + folder.path().toStdString() + "\",\"english\",#FALSE#\r\n");
    EXPECT_TRUE(std::filesystem::exists(path(kExtraPreferencesFileName)));
}

TEST_F(PreferencesTest, RecentFilesAndTheIntegrationMethodSurviveARestart) {
    started();
    ASSERT_TRUE(add_point_load(model, 500.0, 60.0, "ft", "lb").ok());
    save_as("first");
    ASSERT_TRUE(add_point_load(model, 700.0, 30.0, "ft", "lb").ok());
    save_as("second&third");
    QAction& newest = child<QAction>(window(), "recentfile1");
    EXPECT_TRUE(newest.isVisible());
    EXPECT_TRUE(newest.text().startsWith("&1 ")) << newest.text().toStdString();
    EXPECT_TRUE(newest.text().endsWith("second&&third.lod")) << newest.text().toStdString();
    EXPECT_FALSE(child<QAction>(window(), "recentfile3").isVisible());
    PreferencesDialog& dialog = preferences_dialog();
    child<QCheckBox>(dialog, "exactintegration").click();
    child<QPushButton>(dialog, "OK").click();
    window().close();

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
    EXPECT_EQ(next_model.feature_count, 1);
    EXPECT_EQ(next_settings.extra.recent_files.front(), path("first.lod"));

    std::filesystem::remove(path("second&third.lod"));
    child<QAction>(next, "recentfile2").trigger();
    EXPECT_EQ(next_prompts.texts(),
              QStringList{"The file " + QString::fromStdString(path("second&third.lod")) +
                          " cannot be found.  It has been removed from the list of recent files."});
    EXPECT_EQ(next_settings.extra.recent_files, std::vector<std::string>{path("first.lod")});
    EXPECT_FALSE(child<QAction>(next, "recentfile2").isVisible());
    EXPECT_EQ(next_model.feature_count, 1) << "the beam shown stays";
}

}  // namespace
}  // namespace flexley::testing
