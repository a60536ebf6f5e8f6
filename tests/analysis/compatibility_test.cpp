// Indeterminate beams: the integrated deflection must vanish at every support the system solved
// for.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

#include "analysis/run.h"
#include "model/limits.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

struct IndeterminateCase {
    std::string name;
    std::function<void(BeamModel&)> build;
    double tolerance = 1e-5;  // relative to the largest deflection or slope
};

void PrintTo(const IndeterminateCase& c, std::ostream* os) {
    *os << c.name;
}

double largest_magnitude(const std::vector<double>& values, int last) {
    double largest = 0.0;
    for (int i = 0; i <= last; ++i) {
        largest = std::max(largest, std::abs(values[i]));
    }
    return largest;
}

class CompatibilityTest : public testing::TestWithParam<IndeterminateCase> {};

// The reactions come from closed-form integrals, the deflection from the trapezoidal rule: they
// agree only if every load term of the system is right. Supports stand on grid points here, and
// the shooting between simple supports stops within 1 in absolute terms.
TEST_P(CompatibilityTest, DeflectionVanishesAtEverySupport) {
    BeamModel model = beam();
    GetParam().build(model);
    ASSERT_TRUE(run_calculation(model, [] { return false; }).ok());
    const int last = static_cast<int>(model.resolution);
    const double deflection_scale = largest_magnitude(model.deflection, last);
    const double slope_scale = largest_magnitude(model.slope, last);
    for (int j = 1; j <= model.reaction_count; ++j) {
        const int index = static_cast<int>(std::lround(model.reaction_pos[j] / kLength * last));
        EXPECT_NEAR(model.deflection[index], 0.0, GetParam().tolerance * deflection_scale)
            << "support " << j;
    }
    if (model.cantilever_count == 2) {
        EXPECT_NEAR(model.slope[last], 0.0, GetParam().tolerance * slope_scale);
    }
}

void varying_loads(BeamModel& m) {
    distributed_load(m, 24.0, 72.0, 2.0, 10.0);
    distributed_load(m, 120.0, 216.0, 8.0, -3.0);
    point_load(m, 600.0, 100.0);
}

void five_simple_with_overhangs(BeamModel& m) {
    for (double at : {192.0, 24.0, 96.0, 144.0, 216.0}) {
        simple_support(m, at);
    }
    varying_loads(m);
}

void fixed_and_two_simple(BeamModel& m) {
    simple_support(m, 120.0);
    fixed_support(m, 0.0);
    simple_support(m, 192.0);
    varying_loads(m);
}

void two_fixed_and_two_simple(BeamModel& m) {
    fixed_support(m, 0.0);
    simple_support(m, 72.0);
    fixed_support(m, 240.0);
    simple_support(m, 168.0);
    varying_loads(m);
}

void couples_on_two_fixed_ends(BeamModel& m) {
    m.resolution = kMaxResolution;
    fixed_support(m, 0.0);
    fixed_support(m, 240.0);
    simple_support(m, 96.0);
    couple(m, 9000.0, 150.0);
    couple(m, -4000.0, 40.0);
}

// The trapezoid step across a couple's jump moves the couple by h/2: an error of order h / L,
// kept small here by the finest grid.
constexpr double kCoupleTolerance = 1e-3;

INSTANTIATE_TEST_SUITE_P(
    Reactions, CompatibilityTest,
    testing::Values(
        IndeterminateCase{"FiveSimpleSupportsWithOverhangs", five_simple_with_overhangs},
        IndeterminateCase{"FixedAndTwoSimpleSupports", fixed_and_two_simple},
        IndeterminateCase{"TwoFixedAndTwoSimpleSupports", two_fixed_and_two_simple},
        IndeterminateCase{"CouplesOnTwoFixedEnds", couples_on_two_fixed_ends, kCoupleTolerance}),
    [](const testing::TestParamInfo<IndeterminateCase>& info) { return info.param.name; });

}  // namespace
}  // namespace flexley
