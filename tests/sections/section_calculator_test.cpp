// Section dialog rules: the calculator, typed properties, the chooser and its shipped list.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "files/beam_definitions.h"
#include "model/typed_number.h"
#include "sections/chooser_values.h"
#include "sections/property_entry.h"
#include "sections/section_calculator.h"

namespace flexley {
namespace {

constexpr double kPi = 3.14159265;
constexpr CrossSection kRound = CrossSection::round;
constexpr CrossSection kRect = CrossSection::rectangular;

// Tubes are checked against the difference of two solids, so a swapped or mis-halved term shows;
// solids carry a stray hollow dimension that they must ignore. An I of 0 marks a refusal: a
// dimension left unset stands for a text that is not a number.
TEST(SectionCalculator, ClosedFormsRefusalsAndTexts) {
    const std::tuple<CrossSection, bool, SectionDimensions, double, double> cases[] = {
        {kRound, false, {.outer_diameter = 2.0, .inner_diameter = 5.0}, kPi / 4.0, 1.0},
        {kRound, true, {.outer_diameter = 4.0, .inner_diameter = 2.0}, 15.0 * kPi / 4.0, 2.0},
        {kRect, false, {.height = 6.0, .width = 2.0, .wall = 5.0}, 36.0, 3.0},
        {kRect, true, {.height = 6.0, .width = 4.0, .wall = 0.5}, (864.0 - 375.0) / 12.0, 3.0},
        {kRound, false, {.outer_diameter = 0.0}, 0, 0},
        {kRound, true, {.outer_diameter = 2.0, .inner_diameter = 2.0}, 0, 0},
        {kRect, false, {.outer_diameter = 4.0, .width = 2.0}, 0, 0},
        {kRect, true, {.height = 6.0, .width = 4.0, .wall = 2.0}, 0, 0},
        {kRect, false, {.height = 1e300, .width = 1e300}, 0, 0},
    };
    for (const auto& [shape, tube, dimensions, i, c] : cases) {
        const SectionResult result = calculate_section(shape, tube, dimensions);
        EXPECT_EQ(result.status.message(), i > 0 ? "" : "Invalid dimensions") << i;
        if (i == 0.0) continue;
        EXPECT_NEAR(result.properties.moment_of_inertia, i, 1e-12 * i);
        EXPECT_DOUBLE_EQ(result.properties.fibre_distance, c);
    }
    // The texts handed back raise I to six figures and must both be filled.
    EXPECT_EQ(calculator_texts({kPi / 4.0, 1.0}, 3).moment_of_inertia, "0.785398");
    EXPECT_EQ(calculator_texts({kPi / 4.0, 1.0}, 8).moment_of_inertia, "0.78539816");
    EXPECT_EQ(calculator_texts({1.0, 1.234567891}, 3).fibre_distance, "1.234567891");
    EXPECT_TRUE(check_calculator_texts("0.785398", "1").ok());
    const std::string empty = "Empty values.  Calculate values before using.";
    EXPECT_EQ(check_calculator_texts("", "1").message(), empty);
}

// A factor applied the wrong way, or to the wrong property, is off by a factor of 10^6 or more;
// an accepted value shown back in the dialog's units must give the typed number again.
TEST(PropertyEntry, ConvertsShownUnitsToTheModelAndRefusesWhatCannotBeAProperty) {
    constexpr auto kI = SectionProperty::moment_of_inertia;
    constexpr auto kE = SectionProperty::elastic_modulus;
    constexpr auto kC = SectionProperty::fibre_distance;
    const std::tuple<SectionProperty, bool, const char*, double, std::string> cases[] = {
        {kI, true, "8000000", 8e-06, ""},
        {kE, true, "210", 2.1e11, ""},
        {kC, true, "150", 0.15, ""},
        {kE, false, " 3e7 ", 3e7, ""},
        {kI, false, "", 0, "Enter a number of zero or more for the moment of inertia (I)."},
        {kC, false, "-2", 0,
         "Enter a number of zero or more for the distance to the farthest fiber (c)."},
        {kI, false, "1e39", 0, "The value of the moment of inertia (I) is too large."},
    };
    for (const auto& [property, metric, typed, model_value, refusal] : cases) {
        const SectionEntry entry = section_entry(property, typed, metric);
        EXPECT_EQ(entry.status.message(), refusal) << typed;
        if (!refusal.empty()) continue;
        EXPECT_DOUBLE_EQ(entry.model_value, model_value) << typed;
        EXPECT_DOUBLE_EQ(shown_section_value(property, model_value, metric), std::stod(typed));
    }
}

// W12 X 26 is 204 in^4 = 84.91121 x 10^6 mm^4 and 6.1 in = 154.94 mm; IPE 300 is
// 83.56 x 10^6 mm^4 = 200.7537 in^4 and 150 mm = 5.905512 in. Matching systems keep the file's
// own digits. The dialog's metric I box takes mm^4.
TEST(SectionChooser, ConvertsOnlyAcrossUnitSystems) {
    const std::tuple<bool, const char*, const char*, const char*, const char*, const char*>
        cases[] = {
            {true, "204", "6.1", "E", "84.9112", "154.94"},
            {false, "83.56", "150", "M", "200.754", "5.90551"},
            {false, "204.000", "6.10", "E", "204.000", "6.10"},
        };
    for (const auto& [metric, i, c, flag, shown_i, shown_c] : cases) {
        const AxisTexts shown = shown_axis_values(i, c, flag, metric, kChooserSigFigs);
        EXPECT_EQ(shown.moment_of_inertia, shown_i) << i << ' ' << flag;
        EXPECT_EQ(shown.fibre_distance, shown_c) << c << ' ' << flag;
    }
    EXPECT_EQ(properties_moment_of_inertia("84.9112", true), "84911200");
}

// The shipped standard-section list is complete and plausible.
TEST(SectionBeamList, EverySectionHoldsCompletePlausibleRecords) {
    const auto list = read_beam_definitions(FLEXLEY_BEAM_LIST);
    ASSERT_TRUE(list.has_value()) << FLEXLEY_BEAM_LIST;
    const auto value = [](const std::string& text) { return typed_number(text).value_or(0.0); };
    for (int k = 0; k < kSectionKindCount; ++k) {
        EXPECT_FALSE(list->sections[k].empty()) << kSectionKinds[k].header;
        for (const SectionRecord& r : list->sections[k]) {
            const double v[] = {value(r.i_xx), value(r.c_xx), value(r.i_yy), value(r.c_yy)};
            EXPECT_TRUE(v[0] > 0 && v[1] > 0 && v[2] > 0 && v[3] > 0) << r.name;
            // A W shape is always stiffer about its strong axis; swapped columns would show here.
            EXPECT_TRUE(kSectionKinds[k].header != "W BEAMS" || v[0] > v[2]) << r.name;
        }
    }
}

}  // namespace
}  // namespace flexley
