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
BeamModel diverging_beam() {
    BeamModel model = beam();
    simple_support(model, 60.0);
    simple_support(model, 180.0);
    point_load(model, 1.0e20, 100.0);
    return model;
}

TEST(IntegrateBetweenSupports, AnsweringNoEndsTheRunWithPartialResults) {
    BeamModel model = diverging_beam();
    model.deflection[0] = kUntouched;
    model.deflection[10000] = kUntouched;
    int asked = 0;
    const Status status = run_calculation(model, [&] {
        ++asked;
        return false;
    });
    EXPECT_TRUE(status.ok());
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(model.results_valid);
    EXPECT_GE(std::abs(model.deflection[7500]), 1.0);
    // Outside the supports nothing was integrated.
    EXPECT_EQ(model.deflection[0], kUntouched);
    EXPECT_EQ(model.deflection[10000], kUntouched);
}

TEST(IntegrateBetweenSupports, AnsweringYesAsksAgainAfterAnotherHundredPasses) {
    BeamModel model = diverging_beam();
    ASSERT_TRUE(run_calculation(model, {}).ok());
    int asked = 0;
    EXPECT_FALSE(integrate_between_supports(model, 60.0, 180.0, [&] { return ++asked < 3; }));
    EXPECT_EQ(asked, 3);
}

// Supports in descending order are swapped; coincident supports converge at once.
TEST(IntegrateBetweenSupports, SupportOrderAndCoincidentGridPoints) {
    BeamModel model = beam();
    simple_support(model, 40.0);
    simple_support(model, 200.0);
    distributed_load(model, 0.0, kLength, 10.0, 10.0);
    ASSERT_TRUE(run_calculation(model, {}).ok());
    const std::vector<double> ascending = model.deflection;
    ASSERT_TRUE(integrate_between_supports(model, 200.0, 40.0, {}));
    EXPECT_EQ(model.deflection, ascending);
    EXPECT_EQ(model.deflection[1667], 0.0);
    EXPECT_LT(std::abs(model.deflection[8333]), 1.0);

    const auto never_asked = [] {
        ADD_FAILURE() << "coincident supports must converge in one pass";
        return false;
    };
    ASSERT_TRUE(integrate_between_supports(model, 100.0, 100.0, never_asked));
    EXPECT_EQ(model.slope[4167], 0.0);
    EXPECT_TRUE(std::isfinite(model.max_deflection));
}

TEST(IntegrateFromCantilever, FixedSupportAtRightEndIntegratesBackwards) {
    BeamModel model = beam();
    fixed_support(model, 0.0);
    point_load(model, 1000.0, kLength);
    ASSERT_TRUE(run_calculation(model, {}).ok());
    const double tip = model.deflection[10000];
    // The same beam seen from the other end: the moment array mirrored, fixed at L.
    for (int i = 0; i <= 5000; ++i) {
        std::swap(model.moment[i], model.moment[10000 - i]);
    }
    integrate_from_cantilever(model, kLength);
    EXPECT_EQ(model.deflection[10000], 0.0);
    EXPECT_EQ(model.slope[10000], 0.0);
    EXPECT_NEAR(model.deflection[0], tip, 1e-9 * std::abs(tip));
    EXPECT_EQ(model.max_deflection_at, 0.0);
}

}  // namespace
}  // namespace flexley
