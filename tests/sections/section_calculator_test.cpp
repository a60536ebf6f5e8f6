// Moment of inertia calculator: closed forms, refused dimensions and the texts handed on.
#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <ostream>
#include <string>

#include "sections/section_calculator.h"
#include "sections/section_number.h"

namespace flexley {
namespace {

constexpr double kPi = 3.14159265;
constexpr CrossSection kRound = CrossSection::round;
constexpr CrossSection kRectangle = CrossSection::rectangular;
const std::optional<double> kNone;

struct ValidCase {
    std::string name;
    CrossSection shape;
    bool tube;
    SectionDimensions dimensions;
    double moment_of_inertia;
    double fibre_distance;
};

// Names the row in test listings instead of dumping its bytes.
void PrintTo(const ValidCase& row, std::ostream* out) {
    *out << row.name;
}

class SectionValid : public testing::TestWithParam<ValidCase> {};

TEST_P(SectionValid, GivesClosedFormIAndC) {
    const ValidCase& row = GetParam();
    const SectionResult result = calculate_section(row.shape, row.tube, row.dimensions);
    ASSERT_TRUE(result.status.ok()) << result.status.message();
    EXPECT_NEAR(result.properties.moment_of_inertia, row.moment_of_inertia,
                1e-12 * row.moment_of_inertia);
    EXPECT_DOUBLE_EQ(result.properties.fibre_distance, row.fibre_distance);
}

// Tubes are checked against the difference of two solids, so a swapped or mis-halved term shows.
INSTANTIATE_TEST_SUITE_P(
    Sections, SectionValid,
    testing::Values(
        ValidCase{"RoundSolid", kRound, false, {.outer_diameter = 2.0}, kPi / 4.0, 1.0},
        ValidCase{"RoundSolidIgnoresInnerDiameter",
                  kRound,
                  false,
                  {.outer_diameter = 2.0, .inner_diameter = 5.0},
                  kPi / 4.0,
                  1.0},
        ValidCase{"RoundTube",
                  kRound,
                  true,
                  {.outer_diameter = 4.0, .inner_diameter = 2.0},
                  15.0 * kPi / 4.0,
                  2.0},
        ValidCase{"RectangleSolid", kRectangle, false, {.height = 6.0, .width = 2.0}, 36.0, 3.0},
        ValidCase{"RectangleSolidIgnoresWall",
                  kRectangle,
                  false,
                  {.height = 6.0, .width = 2.0, .wall = 5.0},
                  36.0,
                  3.0},
        ValidCase{"RectangleTube",
                  kRectangle,
                  true,
                  {.height = 6.0, .width = 4.0, .wall = 0.5},
                  (4.0 * 216.0 - 3.0 * 125.0) / 12.0,
                  3.0}),
    [](const testing::TestParamInfo<ValidCase>& info) { return info.param.name; });

struct InvalidCase {
    std::string name;
    CrossSection shape;
    bool tube;
    SectionDimensions dimensions;
};

void PrintTo(const InvalidCase& row, std::ostream* out) {
    *out << row.name;
}

class SectionInvalid : public testing::TestWithParam<InvalidCase> {};

TEST_P(SectionInvalid, IsRefusedWithTheCalculatorsMessage) {
    const InvalidCase& row = GetParam();
    const SectionResult result = calculate_section(row.shape, row.tube, row.dimensions);
    EXPECT_EQ(result.status.message(), "Invalid dimensions");
}

constexpr double kHuge = std::numeric_limits<double>::max();

INSTANTIATE_TEST_SUITE_P(
    Sections, SectionInvalid,
    testing::Values(
        InvalidCase{"RoundWithoutDiameter", kRound, false, {.height = 6.0, .width = 2.0}},
        InvalidCase{"RoundNegativeDiameter", kRound, false, {.outer_diameter = -2.0}},
        InvalidCase{"TubeWithoutInnerDiameter", kRound, true, {.outer_diameter = 2.0}},
        InvalidCase{
            "TubeInnerEqualsOuter", kRound, true, {.outer_diameter = 2.0, .inner_diameter = 2.0}},
        InvalidCase{
            "TubeInnerBeyondOuter", kRound, true, {.outer_diameter = 2.0, .inner_diameter = 3.0}},
        InvalidCase{"RectangleWithoutHeight", kRectangle, false, {.width = 2.0}},
        InvalidCase{
            "RectangleWithoutWidth", kRectangle, false, {.outer_diameter = 4.0, .height = 6.0}},
        InvalidCase{"RectangleZeroHeight", kRectangle, false, {.height = 0.0, .width = 2.0}},
        InvalidCase{"TubeWithoutWall", kRectangle, true, {.height = 6.0, .width = 4.0}},
        InvalidCase{"TubeZeroWall", kRectangle, true, {.height = 6.0, .width = 4.0, .wall = 0.0}},
        InvalidCase{
            "WallHalfTheWidth", kRectangle, true, {.height = 6.0, .width = 4.0, .wall = 2.0}},
        InvalidCase{
            "WallHalfTheHeight", kRectangle, true, {.height = 4.0, .width = 6.0, .wall = 2.0}},
        InvalidCase{"IOverflows", kRectangle, false, {.height = kHuge, .width = kHuge}}),
    [](const testing::TestParamInfo<InvalidCase>& info) { return info.param.name; });

TEST(SectionCalculatorTexts, RaisesIToSixFiguresButNeverLowersIt) {
    const SectionProperties properties{kPi / 4.0, 1.0};
    EXPECT_EQ(calculator_texts(properties, 3).moment_of_inertia, "0.785398");
    EXPECT_EQ(calculator_texts(properties, 8).moment_of_inertia, "0.78539816");
}

TEST(SectionCalculatorTexts, ShowsCUnrounded) {
    const SectionProperties properties{1.0, 1.234567891};
    EXPECT_EQ(calculator_texts(properties, 3).fibre_distance, "1.234567891");
}

TEST(SectionCalculatorTexts, UsingValuesNeedsBothBoxesFilled) {
    EXPECT_TRUE(check_calculator_texts("0.785398", "1").ok());
    EXPECT_EQ(check_calculator_texts("", "1").message(),
              "Empty values.  Calculate values before using.");
    EXPECT_EQ(check_calculator_texts("0.785398", "").message(),
              "Empty values.  Calculate values before using.");
}

struct NumberCase {
    std::string name;
    std::string text;
    std::optional<double> value;
};

void PrintTo(const NumberCase& row, std::ostream* out) {
    *out << row.name;
}

class SectionNumber : public testing::TestWithParam<NumberCase> {};

TEST_P(SectionNumber, ReadsOnlyWholeNumbers) {
    EXPECT_EQ(section_number(GetParam().text), GetParam().value) << '"' << GetParam().text << '"';
}

INSTANTIATE_TEST_SUITE_P(
    Sections, SectionNumber,
    testing::Values(NumberCase{"Integer", "12", 12.0}, NumberCase{"Blanks", " 2.5 ", 2.5},
                    NumberCase{"PlusSign", "+3", 3.0}, NumberCase{"Exponent", "1E+03", 1000.0},
                    NumberCase{"Empty", "", kNone}, NumberCase{"TrailingLetters", "12abc", kNone},
                    NumberCase{"TwoSigns", "+-3", kNone}, NumberCase{"Infinity", "inf", kNone},
                    NumberCase{"DecimalComma", "1,5", kNone}),
    [](const testing::TestParamInfo<NumberCase>& info) { return info.param.name; });

}  // namespace
}  // namespace flexley
