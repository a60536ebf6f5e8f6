// The moment of inertia calculator, opened from the beam properties dialog and handing back to it.
#include <QLabel>
#include <QRadioButton>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "properties_fixture.h"
#include "ui/dialogs/inertia_calculator_dialog.h"
#include "ui/dialogs/section_sketch.h"

namespace flexley::testing {
namespace {

struct SectionRow {
    const char* section;  // the option buttons clicked, besides the defaults Round and Solid
    std::vector<std::pair<const char*, const char*>> typed;
    const char* moment_of_inertia;  // nullptr: "Invalid dimensions"
    const char* fibre_distance;
};

// I is shown with 6 figures although the beam shows 3; c is not rounded at all. Solids ignore a
// stray hollow dimension; zero, negative and non-numeric dimensions are refused like empty ones.
TEST_F(PropertiesFixture, CalculatorHandsItsResultsToTheBeamProperties) {
    const SectionRow rows[] = {
        {"", {{"OD", "2"}}, "0.785398", "1"},
        {"", {{"OD", "2"}, {"ID", "x"}}, "0.785398", "1"},
        {"Tubecs", {{"OD", "4"}, {"ID", "2"}}, "11.781", "2"},
        {"squarecs", {{"Ht", "2.5"}, {"Wth", "2"}}, "2.60417", "1.25"},
        {"squarecs Tubecs", {{"Ht", "6"}, {"Wth", "4"}, {"Wall", "0.5"}}, "40.75", "3"},
        {"squarecs Tubecs", {{"Ht", "6"}, {"Wth", "4"}, {"Wall", "2"}}, nullptr, nullptr},
        {"squarecs", {{"Ht", "six"}, {"Wth", "4"}}, nullptr, nullptr},
        {"", {{"OD", "0"}}, nullptr, nullptr},
        {"", {{"OD", "-2"}}, nullptr, nullptr},
        {"Tubecs", {{"OD", "2"}, {"ID", "2"}}, nullptr, nullptr},
    };
    model.sig_figs = 3;
    model.elastic_modulus = 3e7f;
    for (const SectionRow& row : rows) {
        SCOPED_TRACE(row.typed.front().second);
        BeamPropertiesDialog properties(model, settings, prompts);
        properties.show();
        auto& calculator = opened<InertiaCalculatorDialog>(properties, "Command3", "I_calc");
        for (const QString& option : QString(row.section).split(' ', Qt::SkipEmptyParts))
            child<QRadioButton>(calculator, option.toUtf8().constData()).click();
        for (const auto& [box, value] : row.typed)
            type(calculator, box, value);
        click(calculator, "Calculate");
        if (!row.moment_of_inertia) {
            EXPECT_EQ(prompts.texts(), QStringList{"Invalid dimensions"});
            EXPECT_EQ(text(calculator, "dispmoi"), "");
            prompts.forget_shown();
            continue;
        }
        EXPECT_EQ(text(calculator, "dispmoi"), row.moment_of_inertia);
        EXPECT_EQ(text(calculator, "cbox"), row.fibre_distance);
        click(calculator, "Accept");
        EXPECT_EQ(text(properties, "MomOfI"), row.moment_of_inertia);
        EXPECT_EQ(text(properties, "cdist"), row.fibre_distance);
        discard_closed_windows();
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
    EXPECT_FALSE(child<QWidget>(calculator, "round_eng_frame").isVisible());
    EXPECT_EQ(child<QLabel>(calculator, "moiunit").text(), "mm^4");
    click(calculator, "Accept");
    EXPECT_EQ(prompts.texts(), QStringList{"Empty values.  Calculate values before using."});
    EXPECT_TRUE(calculator.isVisible());

    type(calculator, "OD", "100");
    click(calculator, "Calculate");
    click(calculator, "Accept");
    click(properties, "Command1");
    EXPECT_EQ(properties.result(), QDialog::Accepted);
    EXPECT_EQ(model.moment_of_inertia, 4.90874e-06f);
    EXPECT_EQ(model.fibre_distance, 0.05f);
    EXPECT_EQ(model.elastic_modulus, 2.1e11f);
}

TEST_F(PropertiesFixture, SectionOptionsSwitchFramesAndKeepTypedValues) {
    InertiaCalculatorDialog calculator(model, prompts);
    calculator.show();
    const auto shown = [&](const char* name) { return child<QWidget>(calculator, name).isVisible(); };
    const auto enabled = [&](const char* name) {
        return child<QWidget>(calculator, name).isEnabled();
    };
    EXPECT_TRUE(shown("round_frame"));
    EXPECT_FALSE(shown("square_frame") || shown("recnote"));
    EXPECT_FALSE(enabled("ID"));
    type(calculator, "OD", "3");

    child<QRadioButton>(calculator, "squarecs").click();
    EXPECT_TRUE(shown("square_frame") && shown("recnote") && shown("sq_eng_frame"));
    EXPECT_FALSE(shown("round_frame"));
    EXPECT_FALSE(enabled("Wall"));
    child<QRadioButton>(calculator, "Tubecs").click();
    EXPECT_TRUE(enabled("Wall"));
    child<QRadioButton>(calculator, "roundcs").click();
    EXPECT_TRUE(enabled("ID"));
    EXPECT_EQ(text(calculator, "OD"), "3");
}

struct SketchRow {
    CrossSection shape;
    bool tube;
    std::set<std::string> captions;
};

// Every box the section uses, and only those, is named on the sketch, inside its extent.
TEST(SectionSketch, NamesTheDimensionsOfTheChosenSection) {
    const SketchRow rows[] = {
        {CrossSection::round, false, {kOuterDiameterCaption}},
        {CrossSection::round, true, {kOuterDiameterCaption, kInnerDiameterCaption}},
        {CrossSection::rectangular, false, {kHeightCaption, kWidthCaption}},
        {CrossSection::rectangular, true, {kHeightCaption, kWidthCaption, kWallCaption}},
    };
    for (const SketchRow& row : rows) {
        const drawing::Picture sketch = section_sketch(row.shape, row.tube);
        std::set<std::string> captions;
        for (const drawing::Text& text : drawing::shapes_of<drawing::Text>(sketch)) {
            captions.insert(text.text);
            EXPECT_GE(text.position.y, 0.0);
            EXPECT_LE(text.position.y + 200.0, kSketchHeight);
        }
        EXPECT_EQ(captions, row.captions);
        for (const drawing::Line& line : drawing::shapes_of<drawing::Line>(sketch)) {
            for (const drawing::Point end : {line.from, line.to}) {
                EXPECT_TRUE(end.x >= 0 && end.x <= kSketchWidth && end.y >= 0 &&
                            end.y <= kSketchHeight);
            }
        }
    }
}

}  // namespace
}  // namespace flexley::testing
