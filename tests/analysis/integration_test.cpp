// Slope and deflection integration: starting points, support order and the non-convergence
// question.
#include "analysis/integration.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/run.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

constexpr double kUntouched = 12345.0;

// A load so large that rounding alone keeps the deflection at the second support beyond +-1.
constexpr const char* kDivergingBeam = "simp@60 simp@180 pt:1e20@100";

TEST(IntegrateBetweenSupports, AnsweringNoEndsTheRunWithPartialResults) {
    BeamModel model = beam(kDivergingBeam);
    model.deflection[0] = model.deflection[10000] = kUntouched;
    int asked = 0;
    EXPECT_TRUE(run_calculation(model, [&] { return ++asked > 1; }).ok());
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(model.results_valid);
    EXPECT_GE(std::abs(model.deflection[7500]), 1.0);
    // Outside the supports nothing was integrated.
    EXPECT_EQ(model.deflection[0], kUntouched);
    EXPECT_EQ(model.deflection[10000], kUntouched);
}

TEST(IntegrateBetweenSupports, AnsweringYesAsksAgainAfterAnotherHundredPasses) {
    BeamModel model = beam(kDivergingBeam);
    ASSERT_TRUE(run_calculation(model, {}).ok());
    int asked = 0;
    EXPECT_FALSE(integrate_between_supports(model, 60.0, 180.0, [&] { return ++asked < 3; }));
    EXPECT_EQ(asked, 3);
}

// Supports in descending order are swapped; coincident supports converge at once.
TEST(IntegrateBetweenSupports, SupportOrderAndCoincidentSupports) {
    BeamModel model = beam("simp@40 simp@200 di:10:10@0:240");
    ASSERT_TRUE(run_calculation(model, {}).ok());
    const std::vector<double> ascending = model.deflection;
    ASSERT_TRUE(integrate_between_supports(model, 200.0, 40.0, {}));
    EXPECT_EQ(model.deflection, ascending);
    EXPECT_EQ(model.deflection[1667], 0.0);
    EXPECT_LT(std::abs(model.deflection[8333]), 1.0);

    EXPECT_TRUE(integrate_between_supports(model, 100.0, 100.0, {}));
    EXPECT_EQ(model.slope[4167], 0.0);
    EXPECT_TRUE(std::isfinite(model.max_deflection));
}

// On a grid of 10 intervals the support at 60 lies at index 2.5: it is held at the even index.
TEST(IntegrateBetweenSupports, SupportHalfwayBetweenGridPointsTakesEvenIndex) {
    BeamModel model = beam("N:10 simp@60 simp@180 di:10:10@0:240");
    ASSERT_TRUE(run_calculation(model, {}).ok());
    EXPECT_EQ(model.deflection[2], 0.0);
    EXPECT_NE(model.deflection[3], 0.0);
}

}  // namespace
}  // namespace flexley
