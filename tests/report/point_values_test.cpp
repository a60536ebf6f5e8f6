// Reading a typed position, the nearest-point rule and the texts of values at a point.
#include "report/point_values.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace flexley {
namespace {

struct TypedCase {
    std::string name;
    std::string text;
    bool metric;
    bool in_feet;
    std::optional<double> base;
};

class TypedPosition : public ::testing::TestWithParam<TypedCase> {};

TEST_P(TypedPosition, GivesBaseUnitsOrNothing) {
    const auto& row = GetParam();
    EXPECT_EQ(typed_position(row.text, row.metric, row.in_feet), row.base);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TypedPosition,
    ::testing::Values(TypedCase{"FeetToInches", "10", false, true, 120.0},
                      TypedCase{"Inches", "10", false, false, 10.0},
                      TypedCase{"MetricIgnoresFeetChoice", "10", true, true, 10.0},
                      TypedCase{"BlanksAround", " 2.5 ", true, false, 2.5},
                      TypedCase{"LeadingPlus", "+3", true, false, 3.0},
                      TypedCase{"NegativeIsStillANumber", "-1", true, false, -1.0},
                      TypedCase{"Exponent", "1e1", true, false, 10.0},
                      TypedCase{"Empty", "", true, false, std::nullopt},
                      TypedCase{"OnlyBlanks", "   ", true, false, std::nullopt},
                      TypedCase{"Letters", "abc", true, false, std::nullopt},
                      TypedCase{"TrailingLetters", "12abc", true, false, std::nullopt},
                      TypedCase{"DecimalComma", "1,5", true, false, std::nullopt},
                      TypedCase{"DoubleSign", "+-1", true, false, std::nullopt},
                      TypedCase{"SignAlone", "+", true, false, std::nullopt},
                      TypedCase{"Infinity", "inf", true, false, std::nullopt},
                      TypedCase{"NotANumber", "nan", true, false, std::nullopt}),
    [](const auto& info) { return info.param.name; });

BeamModel english_beam_of_120_inches() {
    BeamModel model;
    model.beam_length = 120.0;
    model.resolution = 10.0f;
    model.sig_figs = 4;
    model.elastic_modulus = 1000.0f;
    model.moment_of_inertia = 2.0f;
    return model;
}

struct LocationCase {
    std::string name;
    std::string text;
    bool in_feet;
    bool accepted;
};

class PositionOnBeam : public ::testing::TestWithParam<LocationCase> {};

TEST_P(PositionOnBeam, AcceptsOnlyNumbersWithinTheBeamAfterFeetConversion) {
    const auto& row = GetParam();
    const auto model = english_beam_of_120_inches();
    EXPECT_EQ(position_on_beam(model, row.text, row.in_feet).has_value(), row.accepted);
    const auto result = find_point_values(model, row.text, row.in_feet);
    EXPECT_EQ(result.status.message(), row.accepted ? "" : "Invalid location.");
}

INSTANTIATE_TEST_SUITE_P(Locations, PositionOnBeam,
                         ::testing::Values(LocationCase{"LeftEnd", "0", true, true},
                                           LocationCase{"RightEndInFeet", "10", true, true},
                                           LocationCase{"BeyondInFeet", "10.5", true, false},
                                           LocationCase{"RightEndInInches", "120", false, true},
                                           LocationCase{"BeyondInInches", "120.001", false, false},
                                           LocationCase{"Negative", "-0.1", false, false},
                                           LocationCase{"NotANumber", "ten", true, false},
                                           LocationCase{"Empty", "", true, false}),
                         [](const auto& info) { return info.param.name; });

struct NearestCase {
    std::string name;
    double position;
    int index;
};

class NearestPoint : public ::testing::TestWithParam<NearestCase> {};

TEST_P(NearestPoint, RoundsHalvesToEven) {
    BeamModel model;
    model.beam_length = 10.0;
    model.resolution = 10.0f;
    EXPECT_EQ(nearest_point(model, GetParam().position), GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(TenMetreBeamOfTenIntervals, NearestPoint,
                         ::testing::Values(NearestCase{"HalfGoesDownToZero", 0.5, 0},
                                           NearestCase{"OneAndAHalfGoesUpToTwo", 1.5, 2},
                                           NearestCase{"TwoAndAHalfGoesDownToTwo", 2.5, 2},
                                           NearestCase{"JustAboveHalf", 0.51, 1},
                                           NearestCase{"JustBelowHalf", 3.49, 3},
                                           NearestCase{"RightEnd", 10.0, 10},
                                           NearestCase{"OffTheBeamGivesTheEnd", 11.0, 10},
                                           NearestCase{"BeforeTheBeamGivesTheStart", -1.0, 0}),
                         [](const auto& info) { return info.param.name; });

TEST(PointValues, UnitsFollowEachValueAtTheNearestPoint) {
    auto model = english_beam_of_120_inches();
    const double ei = 2000.0;
    model.moment[9] = -999.0;
    model.moment[10] = -1000.0;
    model.stress[10] = 9999.9;
    model.deflection[10] = 0.125 * ei;
    model.slope[10] = -0.01 * ei;
    const auto result = find_point_values(model, "10", true);
    ASSERT_TRUE(result.status.ok());
    EXPECT_EQ(result.texts.moment, "-83.33 lb.-ft.");
    // The unit is chosen before rounding: 9999.9 rounds up to 10000 but stays in psi.
    EXPECT_EQ(result.texts.stress, "10000 psi");
    EXPECT_EQ(result.texts.deflection, "-0.125 in.");
    EXPECT_EQ(result.texts.slope, "-0.573 degrees");
    EXPECT_EQ(point_value_texts(model, 108.0).moment, "-999 lb.-in.");
}

TEST(PointValues, SlopeUsesTheLongerPi) {
    auto model = english_beam_of_120_inches();
    model.sig_figs = 8;
    model.slope[0] = 2000.0;  // one radian times E x I
    EXPECT_EQ(point_value_texts(model, 0.0).slope, "57.29578 degrees");
}

}  // namespace
}  // namespace flexley
