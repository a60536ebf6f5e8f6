// Section dialog rules: the calculator's closed forms and refusals, number reading, the chooser.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "sections/chooser_values.h"
#include "sections/section_calculator.h"

namespace flexley {
namespace {

constexpr double kPi = 3.14159265;
constexpr CrossSection kRound = CrossSection::round;
constexpr CrossSection kRect = CrossSection::rectangular;

struct SectionCase {
    CrossSection shape;
    bool tube;
    SectionDimensions d;
    double i = 0.0, c = 0.0;  // i stays 0 for dimensions the calculator must refuse
};

// Tubes are checked against the difference of two solids, so a swapped or mis-halved term shows;
// solids carry a stray hollow dimension that they must ignore.
TEST(SectionCalculator, ClosedFormsAndRefusals) {
    const SectionCase cases[] = {
        {kRound, false, {.outer_diameter = 2.0, .inner_diameter = 5.0}, kPi / 4.0, 1.0},
        {kRound, true, {.outer_diameter = 4.0, .inner_diameter = 2.0}, 15.0 * kPi / 4.0, 2.0},
        {kRect, false, {.height = 6.0, .width = 2.0, .wall = 5.0}, 36.0, 3.0},
        {kRect, true, {.height = 6.0, .width = 4.0, .wall = 0.5}, (864.0 - 375.0) / 12.0, 3.0},
        {kRound, false, {.outer_diameter = 0.0}},
        {kRound, true, {.outer_diameter = 2.0}},
        {kRound, true, {.outer_diameter = 2.0, .inner_diameter = 2.0}},
        {kRect, false, {.outer_diameter = 4.0, .width = 2.0}},
        {kRect, false, {.outer_diameter = 4.0, .height = 6.0}},
        {kRect, true, {.height = 6.0, .width = 4.0}},
        {kRect, true, {.height = 6.0, .width = 4.0, .wall = 0.0}},
        {kRect, true, {.height = 6.0, .width = 4.0, .wall = 2.0}},
        {kRect, true, {.height = 4.0, .width = 6.0, .wall = 2.0}},
        {kRect, false, {.height = 1e300, .width = 1e300}},
    };
    for (const SectionCase& row : cases) {
        const SectionResult result = calculate_section(row.shape, row.tube, row.d);
        EXPECT_EQ(result.status.message(), row.i > 0 ? "" : "Invalid dimensions") << &row - cases;
        if (row.i == 0.0) continue;
        EXPECT_NEAR(result.properties.moment_of_inertia, row.i, 1e-12 * row.i);
        EXPECT_DOUBLE_EQ(result.properties.fibre_distance, row.c);
    }
}

TEST(SectionCalculator, TextsRaiseIToSixFiguresAndNeedBothBoxes) {
    EXPECT_EQ(calculator_texts({kPi / 4.0, 1.0}, 3).moment_of_inertia, "0.785398");
    EXPECT_EQ(calculator_texts({kPi / 4.0, 1.0}, 8).moment_of_inertia, "0.78539816");
    EXPECT_EQ(calculator_texts({1.0, 1.234567891}, 3).fibre_distance, "1.234567891");
    EXPECT_TRUE(check_calculator_texts("0.785398", "1").ok());
    const std::string empty = "Empty values.  Calculate values before using.";
    EXPECT_EQ(check_calculator_texts("", "1").message(), empty);
    EXPECT_EQ(check_calculator_texts("0.785398", "").message(), empty);
}

struct ShownCase {
    bool metric;  // the beam's units
    const char *i, *c, *flag, *shown_i, *shown_c;
};

// W12 X 26 is 204 in^4 = 84.91121 x 10^6 mm^4 and 6.1 in = 154.94 mm; IPE 300 is
// 83.56 x 10^6 mm^4 = 200.7537 in^4 and 150 mm = 5.905512 in. Matching systems keep the file's
// own digits; only "E" and "M" are unit flags. The dialog's I box then takes metric I in mm^4.
TEST(SectionChooser, ConvertsOnlyAcrossUnitSystems) {
    const ShownCase cases[] = {
        {true, "204", "6.1", "E", "84.9112", "154.94"},
        {false, "83.56", "150", "M", "200.754", "5.90551"},
        {false, "204.000", "6.10", "E", "204.000", "6.10"},
        {true, "204", "6.1", "e", "204", "6.1"},
        {false, "83.56", "150", "m", "83.56", "150"},
        {true, "n/a", "6.1", "E", "", "154.94"},
    };
    for (const ShownCase& row : cases) {
        const AxisTexts shown =
            shown_axis_values(row.i, row.c, row.flag, row.metric, kChooserSigFigs);
        EXPECT_EQ(shown.moment_of_inertia, row.shown_i) << row.i << ' ' << row.flag;
        EXPECT_EQ(shown.fibre_distance, row.shown_c) << row.c << ' ' << row.flag;
    }
    EXPECT_EQ(shown_axis_values("204", "6.1", "E", true, 3).moment_of_inertia, "84.9");
    EXPECT_EQ(properties_moment_of_inertia("84.9112", true), "84911200");
    EXPECT_EQ(properties_moment_of_inertia("0.08", true), "80000");
    EXPECT_EQ(properties_moment_of_inertia("204.000", false), "204.000");
}

}  // namespace
}  // namespace flexley
