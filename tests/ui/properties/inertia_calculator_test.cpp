// The moment of inertia calculator, opened from the beam properties dialog and handing back to it.
// The formulas and which dimensions are refused are the core's; here, that the dialog applies them.
#include <QRadioButton>

#include "properties_fixture.h"
#include "ui/dialogs/inertia_calculator_dialog.h"

namespace flexley::testing {
namespace {

// I is shown with 6 figures although the beam shows 3, and c is not rounded; a solid ignores a
// stray inner diameter. Nothing reaches the model before Continue.
TEST_F(PropertiesFixture, CalculatorRefusesWhatItCannotUseAndHandsItsResultsBack) {
    BeamPropertiesDialog properties(model, settings, prompts);
    properties.show();
    auto& calculator = opened<InertiaCalculatorDialog>(properties, "Command3", "I_calc");
    click(calculator, "Accept");
    EXPECT_TRUE(calculator.isVisible());

    child<QRadioButton>(calculator, "squarecs").click();
    child<QRadioButton>(calculator, "Tubecs").click();
    for (const auto& [box, value] : {std::pair{"Ht", "6"}, {"Wth", "4"}, {"Wall", "2"}})
        type(calculator, box, value);
    click(calculator, "Calculate");
    EXPECT_EQ(prompts.texts(),
              (QStringList{"Empty values.  Calculate values before using.", "Invalid dimensions"}));
    EXPECT_EQ(text(calculator, "dispmoi"), "");

    child<QRadioButton>(calculator, "roundcs").click();
    child<QRadioButton>(calculator, "solidcs").click();
    type(calculator, "OD", "2");
    type(calculator, "ID", "x");
    click(calculator, "Calculate");
    EXPECT_EQ(text(calculator, "cbox"), "1");
    click(calculator, "Accept");
    EXPECT_FALSE(calculator.isVisible());
    EXPECT_EQ(text(properties, "MomOfI"), "0.785398");
    EXPECT_EQ(text(properties, "cdist"), "1");
    EXPECT_EQ(model.moment_of_inertia, 0.0f);
}

// The whole metric chain: millimetres in, mm^4 handed back, m^4 stored.
TEST_F(PropertiesFixture, MetricCalculationIsStoredInMetresOnContinue) {
    model.metric_units = true;
    BeamPropertiesDialog properties(model, settings, prompts);
    properties.show();
    auto& calculator = opened<InertiaCalculatorDialog>(properties, "Command3", "I_calc");
    type(calculator, "OD", "100");
    click(calculator, "Calculate");
    click(calculator, "Accept");
    click(properties, "Command1");
    EXPECT_EQ(model.moment_of_inertia, 4.90874e-06f);
    EXPECT_EQ(model.fibre_distance, 0.05f);
}

}  // namespace
}  // namespace flexley::testing
