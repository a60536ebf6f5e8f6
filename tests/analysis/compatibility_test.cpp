// Indeterminate beams: the integrated deflection must vanish at every support the system solved
// for.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "analysis/run.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

struct IndeterminateCase {
    std::string name;
    std::string beam;  // supports on grid points
    double tolerance;  // relative to the largest deflection or slope
};

void PrintTo(const IndeterminateCase& c, std::ostream* os) {
    *os << c.name;
}

class CompatibilityTest : public testing::TestWithParam<IndeterminateCase> {};

// The reactions come from closed-form integrals, the deflection from the trapezoidal rule: they
// agree only if every load term of the system is right.
TEST_P(CompatibilityTest, DeflectionVanishesAtEverySupport) {
    BeamModel model = beam(GetParam().beam);
    ASSERT_TRUE(run_calculation(model, {}).ok());
    const int last = static_cast<int>(model.resolution);
    const double tolerance = GetParam().tolerance;
    for (int j = 1; j <= model.reaction_count; ++j) {
        const int index = static_cast<int>(std::lround(model.reaction_pos[j] / kLength * last));
        EXPECT_NEAR(model.deflection[index], 0.0,
                    tolerance * largest_magnitude(model.deflection, last))
            << "support " << j;
    }
    if (model.cantilever_count == 2) {
        EXPECT_NEAR(model.slope[last], 0.0, tolerance * largest_magnitude(model.slope, last));
    }
}

// The shooting between simple supports stops within 1 in absolute terms, about 1e-6 here.
constexpr double kLoads = 1e-5;
// The trapezoid step across a couple's jump moves the couple by h/2: an error of order h / L,
// kept small by the finest grid.
constexpr double kCouples = 1e-3;
const std::string kVaryingLoads = " di:2:10@24:72 di:8:-3@120:216 pt:600@100";

INSTANTIATE_TEST_SUITE_P(
    Reactions, CompatibilityTest,
    testing::Values(IndeterminateCase{"FiveSimpleSupportsWithOverhangs",
                                      "simp@96 simp@192 simp@24 simp@144 simp@216" + kVaryingLoads,
                                      kLoads},
                    IndeterminateCase{"FixedAndTwoSimpleSupports",
                                      "simp@120 cant@0 simp@192" + kVaryingLoads, kLoads},
                    IndeterminateCase{"TwoFixedAndTwoSimpleSupports",
                                      "cant@0 simp@72 cant@240 simp@168" + kVaryingLoads, kLoads},
                    IndeterminateCase{"CouplesOnTwoFixedEnds",
                                      "N:200000 cant@0 cant@240 simp@96 mo:9000@150 mo:-4000@40",
                                      kCouples}),
    [](const testing::TestParamInfo<IndeterminateCase>& info) { return info.param.name; });

}  // namespace
}  // namespace flexley
