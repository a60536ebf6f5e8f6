// The start dialog: units, length rules, the change flags, Reinitialize's reopening, keyboard.
#include <QGroupBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include "model/beam_settings.h"
#include "ui/loading/loading_fixture.h"

namespace flexley::testing {
namespace {

TEST(StartDialog, ContinueStoresUnitsAndLength) {
    // An English length of whole feet puts positions in feet, any other in inches.
    const struct {
        bool metric;
        bool inches;
        const char* typed;  // nullptr: the box as it opens
        double beam_length;
        bool positions_in_inches;
    } rows[] = {
        {false, false, nullptr, 1200.0, false}, {false, true, "40", 40.0, true},
        {false, true, "48", 48.0, false},       {false, false, "3.5", 42.0, true},
        {true, false, "3", 3.0, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed ? row.typed : "untouched");
        BeamModel model;
        ScriptedPrompts prompts;
        StartDialog dialog(model, Preferences{}, prompts, StartMode::program_start);
        if (row.metric) child<QRadioButton>(dialog, "Met").click();
        if (row.inches) child<QRadioButton>(dialog, "inch").click();
        if (row.typed) {
            child<QLineEdit>(dialog, "Length").clear();
            QTest::keyClicks(&child<QLineEdit>(dialog, "Length"), row.typed);
        }
        ASSERT_TRUE(dialog.confirm());
        EXPECT_EQ(model.metric_units, row.metric);
        EXPECT_DOUBLE_EQ(model.beam_length, row.beam_length);
        EXPECT_EQ(model.positions_in_inches, row.positions_in_inches);
        EXPECT_EQ(model.sig_figs, 3);
        EXPECT_TRUE(prompts.shown().empty());
    }
}

TEST(StartDialog, RefusesALengthThatIsNotPositiveYetRetrieveStillAsksForAFile) {
    for (const char* typed : {"0", "-2", "abc", "", "1e999"}) {
        SCOPED_TRACE(typed);
        BeamModel model;
        ScriptedPrompts prompts;
        StartDialog dialog(model, Preferences{}, prompts, StartMode::program_start);
        dialog.show();
        QSignalSpy retrieve(&dialog, &StartDialog::retrieve_requested);
        child<QLineEdit>(dialog, "Length").setText(typed);
        child<QPushButton>(dialog, "Command1").click();
        child<QPushButton>(dialog, "Command2").click();
        EXPECT_EQ(prompts.texts(), QStringList(2, kInvalidBeamLength));
        EXPECT_EQ(retrieve.count(), 1);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_DOUBLE_EQ(model.beam_length, 1200.0);
    }
}

// Reopened by Reinitialize on an English beam, the dialog shows the length in the units it was
// entered in, whatever the preferences say, and Continue keeps it.
TEST(StartDialog, PreferredMetricAppliesAtProgramStartOnly) {
    const Preferences metric{"", "", "metric", false};
    BeamModel model;
    ScriptedPrompts prompts;
    StartDialog first(model, metric, prompts, StartMode::program_start);
    first.show();
    EXPECT_TRUE(child<QRadioButton>(first, "Met").isChecked());
    EXPECT_TRUE(child<QLabel>(first, "meter").isVisible());
    EXPECT_FALSE(child<QGroupBox>(first, "engframe").isVisible());
    EXPECT_TRUE(model.metric_units);

    BeamModel english;
    english.beam_length = 240.0;
    english.sig_figs = 5;
    StartDialog again(english, metric, prompts, StartMode::reinitialize);
    again.show();
    EXPECT_TRUE(child<QRadioButton>(again, "Eng").isChecked());
    EXPECT_FALSE(child<QLabel>(again, "meter").isVisible());
    EXPECT_EQ(child<QLineEdit>(again, "Length").text(), "20");
    ASSERT_TRUE(again.confirm());
    EXPECT_DOUBLE_EQ(english.beam_length, 240.0);
    EXPECT_EQ(english.sig_figs, 3);
}

TEST(StartDialog, EnterInLengthIsContinueAndTabFollowsTheLayout) {
    BeamModel model;
    ScriptedPrompts prompts;
    StartDialog dialog(model, Preferences{}, prompts, StartMode::program_start);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto& length = child<QLineEdit>(dialog, "Length");
    EXPECT_EQ(QApplication::focusWidget(), &length);
    EXPECT_EQ(length.selectedText(), "100");

    // One stop per group of options: the checked one.
    QStringList order;
    for (int stop = 0; stop < 5; ++stop) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        order << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(order, (QStringList{"feet", "Command2", "Command1", "Eng", "Length"}));
    child<QRadioButton>(dialog, "Eng").setFocus(Qt::TabFocusReason);
    QTest::keyClick(&child<QRadioButton>(dialog, "Eng"), Qt::Key_Left);
    EXPECT_TRUE(child<QRadioButton>(dialog, "Met").isChecked());
    QTest::keyClick(&child<QRadioButton>(dialog, "Met"), Qt::Key_Right);
    EXPECT_TRUE(child<QRadioButton>(dialog, "Eng").isChecked());
    length.setFocus(Qt::TabFocusReason);

    QTest::keyClicks(&length, "50");
    QTest::keyClick(&length, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_DOUBLE_EQ(model.beam_length, 600.0);
}

}  // namespace
}  // namespace flexley::testing
