// The moment of inertia calculator, opened from the beam properties dialog and handing back to it.
#include <QLabel>
#include <QRadioButton>
#include <utility>
#include <vector>

#include "properties_fixture.h"
#include "ui/dialogs/inertia_calculator_dialog.h"

namespace flexley::testing {
namespace {

struct SectionRow {
    std::vector<const char*> options;  // besides the preset Round and Solid
    std::vector<std::pair<const char*, const char*>> typed;
    const char* moment_of_inertia;  // nullptr: refused as "Invalid dimensions"
    const char* fibre_distance;
};

// I is shown with 6 figures although the beam shows 3, and c is not rounded. A solid ignores a
// stray inner diameter; non-numeric and zero dimensions are refused like missing ones.
TEST_F(PropertiesFixture, CalculatorHandsItsResultsToTheBeamProperties) {
    const SectionRow rows[] = {
        {{}, {{"OD", "2"}, {"ID", "x"}}, "0.785398", "1"},
        {{"squarecs"}, {{"Ht", "2.5"}, {"Wth", "2"}}, "2.60417", "1.25"},
        {{"squarecs", "Tubecs"}, {{"Ht", "6"}, {"Wth", "4"}, {"Wall", "0.5"}}, "40.75", "3"},
        {{"squarecs", "Tubecs"}, {{"Ht", "6"}, {"Wth", "4"}, {"Wall", "2"}}, nullptr, nullptr},
        {{"squarecs"}, {{"Ht", "six"}, {"Wth", "4"}}, nullptr, nullptr},
        {{}, {{"OD", "0"}}, nullptr, nullptr},
    };
    model.elastic_modulus = 3e7f;
    for (const SectionRow& row : rows) {
        SCOPED_TRACE(row.typed.back().second);
        BeamPropertiesDialog properties(model, settings, prompts);
        properties.show();
        auto& calculator = opened<InertiaCalculatorDialog>(properties, "Command3", "I_calc");
        for (const char* option : row.options)
            child<QRadioButton>(calculator, option).click();
        for (const auto& [box, value] : row.typed)
            type(calculator, box, value);
        click(calculator, "Calculate");
        if (!row.moment_of_inertia) {
            EXPECT_EQ(prompts.texts(), QStringList{"Invalid dimensions"});
            EXPECT_EQ(text(calculator, "dispmoi"), "");
            prompts.forget_shown();
            continue;
        }
        EXPECT_EQ(text(calculator, "cbox"), row.fibre_distance);
        click(calculator, "Accept");
        EXPECT_EQ(text(properties, "MomOfI"), row.moment_of_inertia);
        EXPECT_EQ(text(properties, "cdist"), row.fibre_distance);
        EXPECT_FALSE(calculator.isVisible());
    }
    EXPECT_EQ(model.moment_of_inertia, 0.0f);  // nothing reaches the model before Continue
}

// The whole metric chain: millimetres in, mm^4 handed back, m^4 stored.
TEST_F(PropertiesFixture, MetricCalculationIsStoredInMetresOnContinue) {
    model.metric_units = true;
    BeamPropertiesDialog properties(model, settings, prompts);
    properties.show();
    auto& calculator = opened<InertiaCalculatorDialog>(properties, "Command3", "I_calc");
    EXPECT_TRUE(child<QWidget>(calculator, "round_met_frame").isVisible());
    EXPECT_EQ(child<QLabel>(calculator, "moiunit").text(), "mm^4");
    click(calculator, "Accept");
    EXPECT_EQ(prompts.texts(), QStringList{"Empty values.  Calculate values before using."});
    EXPECT_TRUE(calculator.isVisible());

    type(calculator, "OD", "100");
    click(calculator, "Calculate");
    click(calculator, "Accept");
    click(properties, "Command1");
    EXPECT_EQ(model.moment_of_inertia, 4.90874e-06f);
    EXPECT_EQ(model.fibre_distance, 0.05f);
}

TEST_F(PropertiesFixture, SectionOptionsSwitchFramesAndKeepTypedValues) {
    InertiaCalculatorDialog calculator(model, prompts);
    calculator.show();
    const auto shown = [&](const char* name) {
        return child<QWidget>(calculator, name).isVisible();
    };
    const auto enabled = [&](const char* name) {
        return child<QWidget>(calculator, name).isEnabled();
    };
    EXPECT_FALSE(shown("square_frame") || shown("recnote") || enabled("ID"));
    type(calculator, "OD", "3");
    child<QRadioButton>(calculator, "squarecs").click();
    EXPECT_TRUE(shown("square_frame") && shown("recnote") && shown("sq_eng_frame"));
    EXPECT_FALSE(shown("round_frame") || enabled("Wall"));
    child<QRadioButton>(calculator, "Tubecs").click();
    child<QRadioButton>(calculator, "roundcs").click();
    EXPECT_TRUE(enabled("ID"));
    EXPECT_EQ(text(calculator, "OD"), "3");
}

}  // namespace
}  // namespace flexley::testing
