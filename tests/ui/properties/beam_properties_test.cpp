// The beam properties dialog: the default E, display units, changed boxes only, refusals, keyboard.
#include <QApplication>

#include "properties_fixture.h"

namespace flexley::testing {
namespace {

struct DefaultRow {
    bool metric;
    const char* shown_e;
    float stored_e;
    const char* unit_frame;
};

// The default E must reach the model at opening, in the model's units, whatever ends the dialog.
TEST_F(PropertiesFixture, OpeningANewBeamStoresTheDefaultEEvenWhenCancelled) {
    for (const DefaultRow& row : {DefaultRow{false, "30000000", 3e7f, "engframe"},
                                  DefaultRow{true, "210", 2.1e11f, "metframe"}}) {
        BeamModel beam;
        beam.metric_units = row.metric;
        BeamPropertiesDialog dialog(beam, settings, prompts);
        dialog.show();
        EXPECT_EQ(text(dialog, "ModE"), row.shown_e);
        EXPECT_TRUE(child<QWidget>(dialog, row.unit_frame).isVisible());
        click(dialog, "Command2");
        EXPECT_EQ(dialog.result(), QDialog::Rejected);
        EXPECT_EQ(beam.elastic_modulus, row.stored_e);
    }
}

// Values shown rounded to 3 figures must not be written back rounded, nor make results stale.
TEST_F(PropertiesFixture, ContinueWithoutEditsChangesNothing) {
    for (const bool metric : {false, true}) {
        model.metric_units = metric;
        model.moment_of_inertia = 123.4567f;
        model.elastic_modulus = 29012345.0f;
        model.fibre_distance = 3.14159f;
        model.results_valid = true;
        BeamPropertiesDialog dialog(model, settings, prompts);
        click(dialog, "Command1");
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(model.moment_of_inertia, 123.4567f);
        EXPECT_EQ(model.elastic_modulus, 29012345.0f);
        EXPECT_EQ(model.fibre_distance, 3.14159f);
        EXPECT_TRUE(model.results_valid);
    }
}

TEST_F(PropertiesFixture, MetricValuesAreTypedInMillimetresAndGigapascalsAndEnterContinues) {
    model.metric_units = true;
    BeamPropertiesDialog dialog(model, settings, prompts);
    dialog.show();
    type(dialog, "MomOfI", "8000000");
    type(dialog, "ModE", "200");
    type(dialog, "cdist", "150");
    QTest::keyClick(&child<QLineEdit>(dialog, "cdist"), Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(model.moment_of_inertia, 8e-06f);
    EXPECT_EQ(model.elastic_modulus, 2e11f);
    EXPECT_EQ(model.fibre_distance, 0.15f);
}

// A refused box keeps the dialog open and stores nothing, not even a valid box beside it.
TEST_F(PropertiesFixture, ContinueRefusesABoxThatIsNotAPropertyAndStoresNothing) {
    model.elastic_modulus = 3e7f;
    for (const auto& [box, typed] : {std::pair{"ModE", ""}, std::pair{"cdist", "-2"}}) {
        BeamPropertiesDialog dialog(model, settings, prompts);
        dialog.show();
        type(dialog, "MomOfI", "5");
        type(dialog, box, typed);
        click(dialog, "Command1");
        EXPECT_EQ(prompts.shown().size(), 1u);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(text(dialog, box), typed);
        EXPECT_EQ(model.moment_of_inertia, 0.0f);
        EXPECT_EQ(model.elastic_modulus, 3e7f);
        prompts.forget_shown();
    }
}

TEST_F(PropertiesFixture, OpensInTheIBoxAndTabFollowsTheLayout) {
    BeamPropertiesDialog dialog(model, settings, prompts);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(QApplication::focusWidget(), &child<QLineEdit>(dialog, "MomOfI"));
    QStringList order;
    for (int stop = 0; stop < 7; ++stop) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        order << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(order, (QStringList{"ModE", "cdist", "Command3", "Command4", "Command1", "Command2",
                                  "MomOfI"}));
    QTest::keyClick(&child<QLineEdit>(dialog, "MomOfI"), Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace flexley::testing
