// The fast segment-wise moment evaluation against the direct term-by-term form, and the stresses.
#include "analysis/bending_moment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

#include "analysis/run.h"
#include "direct_moments.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

struct BeamCase {
    std::string name;
    std::function<void(BeamModel&)> build;
};

void PrintTo(const BeamCase& c, std::ostream* os) {
    *os << c.name;
}

// Position of grid point k, computed exactly as the engine computes x(k).
double grid_point(const BeamModel& model, int k) {
    return k * (model.beam_length / static_cast<double>(model.resolution));
}

class FastMomentTest : public testing::TestWithParam<BeamCase> {};

TEST_P(FastMomentTest, AgreesWithDirectEvaluation) {
    BeamModel model = beam();
    GetParam().build(model);
    ASSERT_TRUE(run_calculation(model, [] { return false; }).ok());
    const std::vector<double> direct = direct_moments(model);
    double largest = 0.0;
    for (double m : direct) {
        largest = std::max(largest, std::abs(m));
    }
    ASSERT_GT(largest, 0.0);
    for (std::size_t i = 0; i < direct.size(); ++i) {
        ASSERT_NEAR(model.moment[i], direct[i], 1e-9 * largest) << "grid point " << i;
    }
    const auto peak = std::max_element(
        direct.begin(), direct.end(), [](double a, double b) { return std::abs(a) < std::abs(b); });
    EXPECT_NEAR(model.max_moment, *peak, 1e-9 * largest);
}

INSTANTIATE_TEST_SUITE_P(
    Moments, FastMomentTest,
    testing::Values(BeamCase{"AllLoadKindsWithOverhangs",
                             [](BeamModel& m) {
                                 simple_support(m, 30.3);
                                 simple_support(m, 201.7);
                                 point_load(m, 750.0, 0.0);
                                 point_load(m, -420.0, 118.9);
                                 distributed_load(m, 12.5, 97.25, 3.5, 11.0);
                                 distributed_load(m, 150.0, kLength, -2.0, 6.0);
                                 couple(m, 8000.0, 61.1);
                                 couple(m, -2500.0, kLength);
                             }},
                    BeamCase{"EverythingOnGridPoints",
                             [](BeamModel& m) {
                                 simple_support(m, grid_point(m, 0));
                                 simple_support(m, grid_point(m, 7001));
                                 simple_support(m, grid_point(m, 10000));
                                 point_load(m, 500.0, grid_point(m, 2500));
                                 point_load(m, 300.0, grid_point(m, 7001));
                                 distributed_load(m, grid_point(m, 1000), grid_point(m, 4000), 5.0,
                                                  1.0);
                                 couple(m, 4000.0, grid_point(m, 5000));
                                 couple(m, -1500.0, grid_point(m, 1));
                             }},
                    BeamCase{"FractionalResolution",
                             [](BeamModel& m) {
                                 m.resolution = 1234.5f;
                                 fixed_support(m, 0.0);
                                 point_load(m, 200.0, 100.0);
                                 distributed_load(m, 40.0, 230.0, 0.0, 8.0);
                                 couple(m, 1000.0, grid_point(m, 617));
                             }},
                    BeamCase{"TwoFixedEndsAndSimpleSupports",
                             [](BeamModel& m) {
                                 fixed_support(m, 0.0);
                                 simple_support(m, 80.0);
                                 fixed_support(m, kLength);
                                 simple_support(m, 170.0);
                                 distributed_load(m, 0.0, kLength, 6.0, 6.0);
                                 point_load(m, 900.0, 125.0);
                                 couple(m, 5000.0, 40.0);
                             }},
                    BeamCase{"EndGivenBeforeStart",
                             [](BeamModel& m) {
                                 simple_support(m, 0.0);
                                 simple_support(m, kLength);
                                 distributed_load(m, 180.0, 60.0, 2.0, 9.0);
                             }},
                    BeamCase{"CoarseGridWithLoadsBetweenPoints",
                             [](BeamModel& m) {
                                 m.resolution = 10.0f;
                                 simple_support(m, 5.0);
                                 simple_support(m, 235.0);
                                 point_load(m, 100.0, 13.0);
                                 point_load(m, 100.0, 14.0);
                                 distributed_load(m, 30.0, 31.0, 50.0, 70.0);
                                 couple(m, 700.0, 99.0);
                             }}),
    [](const testing::TestParamInfo<BeamCase>& info) { return info.param.name; });

// A downward (negative) load gives negative moments: max_moment keeps the sign, max_stress not.
TEST(ComputeStresses, MaximumIsAbsoluteWhileMomentMaximumIsSigned) {
    BeamModel model = beam();
    simple_support(model, 0.0);
    simple_support(model, kLength);
    point_load(model, -1000.0, 60.0);
    ASSERT_TRUE(run_calculation(model, {}).ok());
    const double peak = -750.0 * 60.0;
    EXPECT_NEAR(model.max_moment, peak, 1e-6);
    EXPECT_NEAR(model.max_stress, -kFibre * peak / kInertia, 1e-6);
    EXPECT_NEAR(model.max_stress_at, 60.0, 1e-9);
    EXPECT_DOUBLE_EQ(model.stress[1234], kFibre * model.moment[1234] / kInertia);
}

}  // namespace
}  // namespace flexley
