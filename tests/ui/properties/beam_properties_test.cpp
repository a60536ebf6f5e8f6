// The beam properties dialog: the default E, display units, changed boxes only, refusals, keyboard.
#include <QApplication>

#include "properties_fixture.h"

namespace flexley::testing {
namespace {

struct DefaultRow {
    bool metric;
    const char* shown_e;
    float stored_e;
};

// The default E must reach the model at opening, in the model's units, whatever ends the dialog.
TEST_F(PropertiesFixture, OpeningANewBeamStoresTheDefaultEEvenWhenCancelled) {
    for (const DefaultRow& row :
         {DefaultRow{false, "30000000", 3e7f}, DefaultRow{true, "210", 2.1e11f}}) {
        BeamModel beam;
        beam.metric_units = row.metric;
        BeamPropertiesDialog dialog(beam, settings, prompts);
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        EXPECT_EQ(QApplication::focusWidget(), &child<QLineEdit>(dialog, "MomOfI"));
        EXPECT_EQ(text(dialog, "ModE"), row.shown_e);
        if (row.metric)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        else
            click(dialog, "Command2");
        EXPECT_EQ(dialog.result(), QDialog::Rejected);
        EXPECT_EQ(beam.elastic_modulus, row.stored_e);
    }
}

// Values shown rounded to 3 figures must not be written back rounded, nor make results stale.
TEST_F(PropertiesFixture, ContinueWithoutEditsChangesNothing) {
    model.moment_of_inertia = 123.4567f;
    model.elastic_modulus = 29012345.0f;
    model.results_valid = true;
    BeamPropertiesDialog dialog(model, settings, prompts);
    click(dialog, "Command1");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(model.moment_of_inertia, 123.4567f);
    EXPECT_EQ(model.elastic_modulus, 29012345.0f);
    EXPECT_TRUE(model.results_valid);
}

// Which texts are properties, and the unit conversions, are the core's; the dialog reads every box
// through them and stores only when all pass.
TEST_F(PropertiesFixture, MetricValuesAreStoredInMetresAndEnterContinues) {
    model.metric_units = true;
    BeamPropertiesDialog dialog(model, settings, prompts);
    dialog.show();
    type(dialog, "MomOfI", "8000000");
    QTest::keyClick(&child<QLineEdit>(dialog, "MomOfI"), Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(model.moment_of_inertia, 8e-06f);
}

TEST_F(PropertiesFixture, ContinueRefusesABoxThatIsNotAPropertyAndStoresNothing) {
    BeamPropertiesDialog dialog(model, settings, prompts);
    dialog.show();
    type(dialog, "MomOfI", "5");
    type(dialog, "cdist", "-2");
    click(dialog, "Command1");
    EXPECT_EQ(prompts.shown().size(), 1u);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(text(dialog, "cdist"), "-2");
    EXPECT_EQ(model.moment_of_inertia, 0.0f) << "not even a valid box beside it";
}

}  // namespace
}  // namespace flexley::testing
