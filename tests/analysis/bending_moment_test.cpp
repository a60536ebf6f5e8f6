// The fast segment-wise moment evaluation against the direct term-by-term form, and the stresses.
#include "analysis/bending_moment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "analysis/run.h"
#include "direct_moments.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

struct BeamCase {
    std::string name;
    std::string beam;
};

void PrintTo(const BeamCase& c, std::ostream* os) {
    *os << c.name;
}

class FastMomentTest : public testing::TestWithParam<BeamCase> {};

TEST_P(FastMomentTest, AgreesWithDirectEvaluation) {
    BeamModel model = beam(GetParam().beam);
    ASSERT_TRUE(run_calculation(model, {}).ok());
    const std::vector<double> direct = direct_moments(model);
    const double largest = largest_magnitude(direct, static_cast<int>(direct.size()) - 1);
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
    testing::Values(
        BeamCase{"AllLoadKindsWithOverhangs",
                 "simp@30.3 simp@201.7 pt:750@0 pt:-420@118.9 di:3.5:11@12.5:97.25 "
                 "di:-2:6@150:240 mo:8000@61.1 mo:-2500@240"},
        BeamCase{"EverythingOnGridPoints",
                 "simp@#0 simp@#7001 simp@#10000 pt:500@#2500 pt:300@#7001 di:5:1@#1000:#4000 "
                 "mo:4000@#5000 mo:-1500@#1"},
        BeamCase{"FractionalResolution", "N:1234.5 cant@0 pt:200@100 di:0:8@40:230 mo:1000@#617"},
        BeamCase{"TwoFixedEndsAndSimpleSupports",
                 "cant@0 simp@80 cant@240 simp@170 di:6:6@0:240 pt:900@125 mo:5000@40"},
        BeamCase{"EndGivenBeforeStart", "simp@0 simp@240 di:2:9@180:60"},
        BeamCase{"CoarseGridWithLoadsBetweenPoints",
                 "N:10 simp@5 simp@235 pt:100@13 pt:100@14 di:50:70@30:31 mo:700@99"}),
    [](const testing::TestParamInfo<BeamCase>& info) { return info.param.name; });

// A downward (negative) load gives negative moments: max_moment keeps the sign, max_stress not.
TEST(ComputeStresses, MaximumIsAbsoluteWhileMomentMaximumIsSigned) {
    BeamModel model = beam("simp@0 simp@240 pt:-1000@60");
    ASSERT_TRUE(run_calculation(model, {}).ok());
    const double peak = -750.0 * 60.0;
    EXPECT_NEAR(model.max_moment, peak, 1e-6);
    EXPECT_NEAR(model.max_stress, -kFibre * peak / kInertia, 1e-6);
    EXPECT_NEAR(model.max_stress_at, 60.0, 1e-9);
    EXPECT_DOUBLE_EQ(model.stress[1234], kFibre * model.moment[1234] / kInertia);
}

}  // namespace
}  // namespace flexley
