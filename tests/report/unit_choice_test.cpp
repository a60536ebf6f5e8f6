// The unit thresholds for moments and stresses, and the scaling of deflection, slope and position.
#include "report/unit_choice.h"

#include <gtest/gtest.h>

#include <string>

namespace flexley {
namespace {

enum class Quantity { moment, stress };

struct ThresholdCase {
    std::string name;
    Quantity quantity;
    bool metric;
    double value;
    double shown;
    std::string unit;
};

class UnitThreshold : public ::testing::TestWithParam<ThresholdCase> {};

TEST_P(UnitThreshold, ChoosesUnitFromAbsoluteValueAndKeepsSign) {
    const auto& row = GetParam();
    const auto scaled = row.quantity == Quantity::moment ? moment_value(row.value, row.metric)
                                                         : stress_value(row.value, row.metric);
    EXPECT_DOUBLE_EQ(scaled.value, row.shown);
    EXPECT_EQ(scaled.unit, row.unit);
}

INSTANTIATE_TEST_SUITE_P(
    AtAndAroundEachBoundary, UnitThreshold,
    ::testing::Values(
        ThresholdCase{"MomentBelow1000", Quantity::moment, false, 999.99, 999.99, " lb.-in."},
        ThresholdCase{"MomentAt1000", Quantity::moment, false, 1000.0, 1000.0 / 12, " lb.-ft."},
        ThresholdCase{"NegativeMomentBelow1000", Quantity::moment, false, -999.0, -999.0,
                      " lb.-in."},
        ThresholdCase{"NegativeMomentAt1000", Quantity::moment, false, -1000.0, -1000.0 / 12,
                      " lb.-ft."},
        ThresholdCase{"NegativeMomentAbove1000", Quantity::moment, false, -1500.0, -125.0,
                      " lb.-ft."},
        ThresholdCase{"MetricMomentNeverScaled", Quantity::moment, true, -2.5e6, -2.5e6, " N-m"},
        ThresholdCase{"StressBelow1000Pa", Quantity::stress, true, 999.99, 999.99, " Pa"},
        ThresholdCase{"StressAt1000Pa", Quantity::stress, true, 1000.0, 1.0, " kPa"},
        ThresholdCase{"NegativeStressAt1000Pa", Quantity::stress, true, -1000.0, -1.0, " kPa"},
        ThresholdCase{"NegativeStressBelow1000Pa", Quantity::stress, true, -999.0, -999.0, " Pa"},
        ThresholdCase{"StressBelowMegapascal", Quantity::stress, true, 999999.9, 999.9999, " kPa"},
        ThresholdCase{"StressAtMegapascal", Quantity::stress, true, 1e6, 1.0, " MPa"},
        ThresholdCase{"NegativeStressAtMegapascal", Quantity::stress, true, -1e6, -1.0, " MPa"},
        ThresholdCase{"NegativeStressBelowMegapascal", Quantity::stress, true, -999999.0, -999.999,
                      " kPa"},
        ThresholdCase{"StressBelow10000psi", Quantity::stress, false, 9999.9, 9999.9, " psi"},
        ThresholdCase{"StressAt10000psi", Quantity::stress, false, 10000.0, 10.0, " ksi"},
        ThresholdCase{"NegativeStressAt10000psi", Quantity::stress, false, -10000.0, -10.0, " ksi"},
        ThresholdCase{"NegativeStressBelow10000psi", Quantity::stress, false, -9999.0, -9999.0,
                      " psi"},
        ThresholdCase{"LargeEnglishStressStaysInKsi", Quantity::stress, false, 5e6, 5000.0,
                      " ksi"}),
    [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace flexley
