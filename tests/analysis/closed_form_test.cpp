// Whole runs on textbook beams against their closed-form reactions, moments and deflections.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "analysis/run.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

constexpr double L = kLength;
constexpr double P = 1000.0;
constexpr double w = 10.0;
constexpr double C = 50000.0;
const double EI = static_cast<double>(kModulus) * kInertia;

// Deflection (upward positive) of a propped cantilever of span s under w, at its largest.
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
    std::function<void(BeamModel&)> build;
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
    BeamModel model = beam();
    c.build(model);
    ASSERT_TRUE(run_calculation(model, [] { return false; }).ok());
    EXPECT_TRUE(model.results_valid);

    const int unknowns = model.reaction_count + model.cantilever_count;
    ASSERT_EQ(unknowns, static_cast<int>(c.reactions.size()));
    double largest = 0.0;
    for (double r : c.reactions) {
        largest = std::max(largest, std::abs(r));
    }
    for (int i = 1; i <= unknowns; ++i) {
        EXPECT_NEAR(model.reaction[i], c.reactions[i - 1], 1e-9 * largest) << "reaction " << i;
    }

    EXPECT_NEAR(model.max_moment, c.max_moment, 1e-6 * std::abs(c.max_moment));
    const bool at_expected = std::any_of(
        c.max_moment_at.begin(), c.max_moment_at.end(),
        [&](double at) { return std::abs(model.max_moment_at - at) <= c.position_tolerance; });
    EXPECT_TRUE(at_expected) << "max_moment_at = " << model.max_moment_at;

    if (c.deflection) {
        const double shown = -model.max_deflection / EI;
        EXPECT_NEAR(shown, *c.deflection, 1e-5 * std::abs(*c.deflection));
    }
}

const double kExact = 1e-9 * L;
const double kOneStep = L / 10000.0;

INSTANTIATE_TEST_SUITE_P(
    Handbook, ClosedFormTest,
    testing::Values(ClosedFormCase{"SimpleCentrePointLoad",
                                   [](BeamModel& m) {
                                       simple_support(m, 0.0);
                                       simple_support(m, L);
                                       point_load(m, P, L / 2.0);
                                   },
                                   {P / 2.0, P / 2.0},
                                   P* L / 4.0,
                                   {L / 2.0},
                                   kExact,
                                   -P* L* L* L / (48.0 * EI)},
                    ClosedFormCase{"SimpleUniformLoad",
                                   [](BeamModel& m) {
                                       simple_support(m, 0.0);
                                       simple_support(m, L);
                                       distributed_load(m, 0.0, L, w, w);
                                   },
                                   {w * L / 2.0, w* L / 2.0},
                                   w* L* L / 8.0,
                                   {L / 2.0},
                                   kExact,
                                   -5.0 * w* std::pow(L, 4) / (384.0 * EI)},
                    ClosedFormCase{
                        "SimpleCentreCouple",
                        [](BeamModel& m) {
                            simple_support(m, 0.0);
                            simple_support(m, L);
                            couple(m, C, L / 2.0);
                        },
                        // The couple already acts at its own grid point, where |M| is largest.
                        {C / L, -C / L},
                        -C / 2.0,
                        {L / 2.0},
                        kExact,
                        std::nullopt},
                    ClosedFormCase{"CantileverEndLoad",
                                   [](BeamModel& m) {
                                       fixed_support(m, 0.0);
                                       point_load(m, P, L);
                                   },
                                   {P * L, P},
                                   -P* L,
                                   {0.0},
                                   kExact,
                                   -P* L* L* L / (3.0 * EI)},
                    ClosedFormCase{"CantileverUniformLoad",
                                   [](BeamModel& m) {
                                       fixed_support(m, 0.0);
                                       distributed_load(m, 0.0, L, w, w);
                                   },
                                   {w * L * L / 2.0, w* L},
                                   -w* L* L / 2.0,
                                   {0.0},
                                   kExact,
                                   -w* std::pow(L, 4) / (8.0 * EI)},
                    ClosedFormCase{"ProppedCantileverUniformLoad",
                                   [](BeamModel& m) {
                                       fixed_support(m, 0.0);
                                       simple_support(m, L);
                                       distributed_load(m, 0.0, L, w, w);
                                   },
                                   {w * L * L / 8.0, 5.0 * w* L / 8.0, 3.0 * w* L / 8.0},
                                   -w* L* L / 8.0,
                                   {0.0},
                                   kExact,
                                   propped_cantilever_sag(L)},
                    ClosedFormCase{"FixedFixedUniformLoad",
                                   [](BeamModel& m) {
                                       fixed_support(m, 0.0);
                                       fixed_support(m, L);
                                       distributed_load(m, 0.0, L, w, w);
                                   },
                                   {w * L * L / 12.0, -w* L* L / 12.0, w* L / 2.0, w* L / 2.0},
                                   -w* L* L / 12.0,
                                   {0.0, L},
                                   kExact,
                                   -w* std::pow(L, 4) / (384.0 * EI)},
                    ClosedFormCase{"TwoEqualSpansUniformLoad",
                                   [](BeamModel& m) {
                                       simple_support(m, 0.0);
                                       simple_support(m, L);
                                       simple_support(m, L / 2.0);
                                       distributed_load(m, 0.0, L, w, w);
                                   },
                                   {3.0 * w * L / 16.0, 3.0 * w* L / 16.0, 10.0 * w* L / 16.0},
                                   -w* L* L / 32.0,
                                   {L / 2.0},
                                   kExact,
                                   propped_cantilever_sag(L / 2.0)},
                    ClosedFormCase{"TriangularLoad",
                                   [](BeamModel& m) {
                                       simple_support(m, 0.0);
                                       simple_support(m, L);
                                       distributed_load(m, 0.0, L, 0.0, w);
                                   },
                                   {w * L / 6.0, w* L / 3.0},
                                   w* L* L / (9.0 * std::sqrt(3.0)),
                                   {L / std::sqrt(3.0)},
                                   kOneStep,
                                   triangular_load_sag()}),
    [](const testing::TestParamInfo<ClosedFormCase>& info) { return info.param.name; });

}  // namespace
}  // namespace flexley
