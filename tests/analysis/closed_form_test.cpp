// Whole runs on textbook beams against their closed-form reactions, moments and deflections.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "analysis/run.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

constexpr double L = kLength;  // the beams below carry P = 1000, w = 10, C = 50000
constexpr double P = 1000.0;
constexpr double w = 10.0;
constexpr double C = 50000.0;
constexpr double EI = kRigidity;
const double kExact = 1e-9 * L;
const double kOneStep = L / 10000.0;

// Largest deflection (upward positive) of a propped cantilever of span s under w.
double propped_cantilever_sag(double s) {
    const double x = s * (15.0 - std::sqrt(33.0)) / 16.0;
    return -w * x * x * (3.0 * s * s - 5.0 * s * x + 2.0 * x * x) / (48.0 * EI);
}

double triangular_load_sag() {
    const double x = L * std::sqrt(1.0 - std::sqrt(8.0 / 15.0));
    return -w * x * (7.0 * std::pow(L, 4) - 10.0 * L * L * x * x + 3.0 * std::pow(x, 4)) /
           (360.0 * L * EI);
}

struct ClosedFormCase {
    std::string name;
    std::string beam;
    std::vector<double> reactions;  // in system order: moment reactions first
    double max_moment;
    std::vector<double> max_moment_at;  // any of these, within position_tolerance
    double position_tolerance;
    std::optional<double> deflection;  // physical, upward positive
};

void PrintTo(const ClosedFormCase& c, std::ostream* os) {
    *os << c.name;
}

class ClosedFormTest : public testing::TestWithParam<ClosedFormCase> {};

TEST_P(ClosedFormTest, MatchesHandbookResults) {
    const ClosedFormCase& c = GetParam();
    BeamModel model = beam(c.beam);
    ASSERT_TRUE(run_calculation(model, {}).ok());
    EXPECT_TRUE(model.results_valid);

    ASSERT_EQ(model.reaction_count + model.cantilever_count, static_cast<int>(c.reactions.size()));
    const double largest = largest_magnitude(c.reactions, static_cast<int>(c.reactions.size()) - 1);
    for (std::size_t i = 0; i < c.reactions.size(); ++i) {
        EXPECT_NEAR(model.reaction[i + 1], c.reactions[i], 1e-9 * largest) << "reaction " << i + 1;
    }

    EXPECT_NEAR(model.max_moment, c.max_moment, 1e-6 * std::abs(c.max_moment));
    EXPECT_TRUE(std::any_of(
        c.max_moment_at.begin(), c.max_moment_at.end(),
        [&](double at) { return std::abs(model.max_moment_at - at) <= c.position_tolerance; }))
        << "max_moment_at = " << model.max_moment_at;

    if (c.deflection) {
        EXPECT_NEAR(-model.max_deflection / EI, *c.deflection, 1e-5 * std::abs(*c.deflection));
    }
}

// clang-format 14 takes "a * b" after a nested brace list for a pointer declaration.
// clang-format off
const ClosedFormCase kHandbookCases[] = {
    {"SimpleCentrePointLoad", "simp@0 simp@240 pt:1000@120", {P / 2, P / 2}, P * L / 4, {L / 2},
     kExact, -P * L * L * L / (48 * EI)},
    {"SimpleUniformLoad", "simp@0 simp@240 di:10:10@0:240", {w * L / 2, w * L / 2}, w * L * L / 8,
     {L / 2}, kExact, -5 * w * std::pow(L, 4) / (384 * EI)},
    // The couple already acts at its own grid point, where |M| is largest.
    {"SimpleCentreCouple", "simp@0 simp@240 mo:50000@120", {C / L, -C / L}, -C / 2, {L / 2},
     kExact, std::nullopt},
    {"CantileverEndLoad", "cant@0 pt:1000@240", {P * L, P}, -P * L, {0.0}, kExact,
     -P * L * L * L / (3 * EI)},
    {"CantileverUniformLoad", "cant@0 di:10:10@0:240", {w * L * L / 2, w * L}, -w * L * L / 2,
     {0.0}, kExact, -w * std::pow(L, 4) / (8 * EI)},
    {"ProppedCantileverUniformLoad", "cant@0 simp@240 di:10:10@0:240",
     {w * L * L / 8, 5 * w * L / 8, 3 * w * L / 8}, -w * L * L / 8, {0.0}, kExact,
     propped_cantilever_sag(L)},
    {"FixedFixedUniformLoad", "cant@0 cant@240 di:10:10@0:240",
     {w * L * L / 12, -w * L * L / 12, w * L / 2, w * L / 2}, -w * L * L / 12, {0.0, L}, kExact,
     -w * std::pow(L, 4) / (384 * EI)},
    {"TwoEqualSpansUniformLoad", "simp@0 simp@240 simp@120 di:10:10@0:240",
     {3 * w * L / 16, 3 * w * L / 16, 10 * w * L / 16}, -w * L * L / 32, {L / 2}, kExact,
     propped_cantilever_sag(L / 2)},
    // The tip of the overhang, reached by integrating towards x = 0, deflects most.
    {"OverhangEndLoad", "simp@60 simp@240 pt:1000@0", {4 * P / 3, -P / 3}, -60 * P, {60.0}, kExact,
     -P * 60 * 60 * L / (3 * EI)},
    {"TriangularLoad", "simp@0 simp@240 di:0:10@0:240", {w * L / 6, w * L / 3},
     w * L * L / (9 * std::sqrt(3.0)), {L / std::sqrt(3.0)}, kOneStep, triangular_load_sag()},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Handbook, ClosedFormTest, testing::ValuesIn(kHandbookCases),
                         [](const testing::TestParamInfo<ClosedFormCase>& info) {
                             return info.param.name;
                         });

}  // namespace
}  // namespace flexley
