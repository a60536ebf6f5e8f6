// The start dialog: units, length rules, the preferred units, Enter as Continue.
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include "model/beam_settings.h"
#include "ui/loading/loading_fixture.h"

namespace flexley::testing {
namespace {

// An English length of whole feet puts positions in feet, any other in inches; Enter in the
// length box is Continue.
TEST(StartDialog, ContinueStoresUnitsAndLength) {
    const struct {
        const char* option;  // clicked before typing
        const char* typed;
        double beam_length;
        bool positions_in_inches;
    } rows[] = {
        {"inch", "40", 40.0, true},
        {"inch", "48", 48.0, false},
        {"feet", "3.5", 42.0, true},
        {"Met", "3", 3.0, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        BeamModel model;
        ScriptedPrompts prompts;
        StartDialog dialog(model, Preferences{}, prompts, StartMode::program_start);
        dialog.show();
        auto& length = child<QLineEdit>(dialog, "Length");
        EXPECT_EQ(length.selectedText(), "100");
        child<QRadioButton>(dialog, row.option).click();
        length.clear();
        QTest::keyClicks(&length, row.typed);
        QTest::keyClick(&length, Qt::Key_Return);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(model.metric_units, row.option == std::string("Met"));
        EXPECT_DOUBLE_EQ(model.beam_length, row.beam_length);
        EXPECT_EQ(model.positions_in_inches, row.positions_in_inches);
        EXPECT_TRUE(prompts.shown().empty());
    }
}

// Which lengths the beam takes is the core's rule; here a refusal keeps the dialog open.
TEST(StartDialog, RefusesALengthThatIsNotANumberYetRetrieveStillAsksForAFile) {
    BeamModel model;
    ScriptedPrompts prompts;
    StartDialog dialog(model, Preferences{}, prompts, StartMode::program_start);
    dialog.show();
    QSignalSpy retrieve(&dialog, &StartDialog::retrieve_requested);
    child<QLineEdit>(dialog, "Length").setText("abc");
    child<QPushButton>(dialog, "Command1").click();
    child<QPushButton>(dialog, "Command2").click();
    EXPECT_EQ(prompts.texts(), QStringList(2, kInvalidBeamLength));
    EXPECT_EQ(retrieve.count(), 1);
    EXPECT_TRUE(dialog.isVisible());
}

// Reopened by Reinitialize on an English beam, the dialog shows the length in the units it was
// entered in, whatever the preferences say, and Continue keeps it.
TEST(StartDialog, PreferredMetricAppliesAtProgramStartOnly) {
    const Preferences metric{"", "", "metric", false};
    BeamModel model;
    ScriptedPrompts prompts;
    StartDialog first(model, metric, prompts, StartMode::program_start);
    EXPECT_TRUE(child<QRadioButton>(first, "Met").isChecked());
    EXPECT_TRUE(model.metric_units);

    BeamModel english;
    english.beam_length = 240.0;
    english.sig_figs = 5;
    StartDialog again(english, metric, prompts, StartMode::reinitialize);
    EXPECT_TRUE(child<QRadioButton>(again, "Eng").isChecked());
    EXPECT_EQ(child<QLineEdit>(again, "Length").text(), "20");
    ASSERT_TRUE(again.confirm());
    EXPECT_DOUBLE_EQ(english.beam_length, 240.0);
    EXPECT_EQ(english.sig_figs, 3);
}

}  // namespace
}  // namespace flexley::testing
