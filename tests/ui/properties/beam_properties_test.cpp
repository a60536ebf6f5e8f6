// The beam properties dialog: the default E, display units, changed boxes only, refusals, keyboard.
#include <QApplication>

#include "model/beam_settings.h"
#include "properties_fixture.h"

namespace flexley::testing {
namespace {

struct DefaultRow {
    bool metric;
    const char* shown_e;
    float stored_e;
    const char* shown_frame;
    const char* hidden_frame;
};

// The default E must reach the model at opening, in the model's units, whatever ends the dialog.
TEST_F(PropertiesFixture, OpeningANewBeamStoresTheDefaultEEvenWhenCancelled) {
    for (const DefaultRow& row : {DefaultRow{false, "30000000", 3e7f, "engframe", "metframe"},
                                  DefaultRow{true, "210", 2.1e11f, "metframe", "engframe"}}) {
        SCOPED_TRACE(row.shown_e);
        BeamModel beam;
        beam.metric_units = row.metric;
        BeamPropertiesDialog dialog(beam, settings, prompts);
        dialog.show();
        EXPECT_EQ(text(dialog, "ModE"), row.shown_e);
        EXPECT_EQ(beam.elastic_modulus, row.stored_e);
        EXPECT_TRUE(child<QWidget>(dialog, row.shown_frame).isVisible());
        EXPECT_FALSE(child<QWidget>(dialog, row.hidden_frame).isVisible());
        click(dialog, "Command2");
        EXPECT_EQ(dialog.result(), QDialog::Rejected);
        EXPECT_EQ(beam.elastic_modulus, row.stored_e);
        EXPECT_EQ(beam.moment_of_inertia, 0.0f);
    }
    EXPECT_TRUE(prompts.shown().empty());
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
        if (!metric) EXPECT_EQ(text(dialog, "MomOfI"), "123");
        click(dialog, "Command1");
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(model.moment_of_inertia, 123.4567f);
        EXPECT_EQ(model.elastic_modulus, 29012345.0f);
        EXPECT_EQ(model.fibre_distance, 3.14159f);
        EXPECT_TRUE(model.results_valid);
    }
}

TEST_F(PropertiesFixture, MetricValuesAreTypedInMillimetresAndGigapascals) {
    model.metric_units = true;
    model.results_valid = true;
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
    EXPECT_FALSE(model.results_valid);
}

struct RefusalRow {
    const char* box;
    const char* typed;
    const char* message;
};

// A refused box keeps the dialog open and stores nothing, not even the boxes that were valid.
TEST_F(PropertiesFixture, ContinueRefusesABoxThatIsNotAPropertyAndStoresNothing) {
    const RefusalRow rows[] = {
        {"MomOfI", "", "Enter a number of zero or more for the moment of inertia (I)."},
        {"ModE", "steel", "Enter a number of zero or more for the modulus of elasticity (E)."},
        {"cdist", "-2", "Enter a number of zero or more for the distance to the farthest fiber (c)."},
        {"MomOfI", "1e39", "The value of the moment of inertia (I) is too large."},
    };
    model.elastic_modulus = 3e7f;
    for (const RefusalRow& row : rows) {
        SCOPED_TRACE(row.typed);
        BeamPropertiesDialog dialog(model, settings, prompts);
        dialog.show();
        type(dialog, std::string(row.box) == "cdist" ? "MomOfI" : "cdist", "5");
        type(dialog, row.box, row.typed);
        click(dialog, "Command1");
        EXPECT_EQ(prompts.texts(), QStringList{row.message});
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(text(dialog, row.box), row.typed);
        EXPECT_EQ(model.moment_of_inertia, 0.0f);
        EXPECT_EQ(model.elastic_modulus, 3e7f);
        EXPECT_EQ(model.fibre_distance, 0.0f);
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
