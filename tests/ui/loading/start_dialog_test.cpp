// The start dialog: units, length rules, the change flags, Reinitialize's reopening, keyboard.
#include <QGroupBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include "model/beam_settings.h"
#include "ui/loading/loading_fixture.h"

namespace flexley::testing {
namespace {

struct LengthRow {
    const char* name;
    bool metric;
    bool inches;
    const char* typed;  // nullptr: the box as it opens
    double beam_length;
    bool positions_in_inches;
};

class StartDialogLengthTest : public ::testing::TestWithParam<LengthRow> {};

TEST_P(StartDialogLengthTest, ContinueStoresUnitsAndLength) {
    const LengthRow& row = GetParam();
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

INSTANTIATE_TEST_SUITE_P(Rows, StartDialogLengthTest,
                         ::testing::Values(LengthRow{"untouched_100_ft", false, false, nullptr,
                                                     1200.0, false},
                                           LengthRow{"inches_40", false, true, "40", 40.0, true},
                                           LengthRow{"inches_48", false, true, "48", 48.0, false},
                                           LengthRow{"feet_typed", false, false, "3.5", 42.0, true},
                                           LengthRow{"metric_3", true, false, "3", 3.0, true}),
                         [](const auto& info) { return std::string(info.param.name); });

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

TEST(StartDialog, PreferredMetricSelectsMetricAtProgramStartOnly) {
    const Preferences metric{"", "", "metric", false};
    BeamModel model;
    ScriptedPrompts prompts;
    StartDialog first(model, metric, prompts, StartMode::program_start);
    first.show();
    EXPECT_TRUE(child<QRadioButton>(first, "Met").isChecked());
    EXPECT_TRUE(child<QLabel>(first, "meter").isVisible());
    EXPECT_FALSE(child<QGroupBox>(first, "engframe").isVisible());
    EXPECT_TRUE(model.metric_units);

    // Reopened on an English beam, the length keeps the units it was entered in.
    BeamModel english;
    english.beam_length = 240.0;
    StartDialog again(english, metric, prompts, StartMode::reinitialize);
    again.show();
    EXPECT_TRUE(child<QRadioButton>(again, "Eng").isChecked());
    EXPECT_FALSE(child<QLabel>(again, "meter").isVisible());
}

TEST(StartDialog, ReinitializeShowsTheLengthAndContinueKeepsIt) {
    BeamModel model;
    model.beam_length = 240.0;
    model.sig_figs = 5;
    ScriptedPrompts prompts;
    StartDialog dialog(model, Preferences{}, prompts, StartMode::reinitialize);
    EXPECT_EQ(child<QLineEdit>(dialog, "Length").text(), "20");
    ASSERT_TRUE(dialog.confirm());
    EXPECT_DOUBLE_EQ(model.beam_length, 240.0);
    EXPECT_EQ(model.sig_figs, 3);
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
