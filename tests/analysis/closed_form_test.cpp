// Whole runs on textbook beams against their closed-form results, and compatibility at supports.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>
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
    // The first two supports in descending order: the shooting must start from the left one.
    {"TwoEqualSpansUniformLoad", "simp@240 simp@0 simp@120 di:10:10@0:240",
     {3 * w * L / 16, 3 * w * L / 16, 10 * w * L / 16}, -w * L * L / 32, {L / 2}, kExact,
     propped_cantilever_sag(L / 2)},
    // The tip of the overhang, reached by integrating towards x = 0, deflects most.
    {"OverhangEndLoad", "simp@60 simp@240 pt:1000@0", {4 * P / 3, -P / 3}, -60 * P, {60.0}, kExact,
     -P * 60 * 60 * L / (3 * EI)},
    {"TriangularLoad", "simp@0 simp@240 di:0:10@0:240", {w * L / 6, w * L / 3},
     w * L * L / (9 * std::sqrt(3.0)), {L / std::sqrt(3.0)}, kOneStep, triangular_load_sag()},
};
// clang-format on

TEST(Handbook, MatchesClosedFormResults) {
    for (const ClosedFormCase& c : kHandbookCases) {
        SCOPED_TRACE(c.name);
        BeamModel model = beam(c.beam);
        ASSERT_TRUE(run_calculation(model, {}).ok());
        ASSERT_EQ(model.reaction_count + model.cantilever_count,
                  static_cast<int>(c.reactions.size()));
        const double largest =
            largest_magnitude(c.reactions, static_cast<int>(c.reactions.size()) - 1);
        for (std::size_t i = 0; i < c.reactions.size(); ++i) {
            EXPECT_NEAR(model.reaction[i + 1], c.reactions[i], 1e-9 * largest)
                << "reaction " << i + 1;
        }

        EXPECT_NEAR(model.max_moment, c.max_moment, 1e-6 * std::abs(c.max_moment));
        EXPECT_TRUE(std::any_of(
            c.max_moment_at.begin(), c.max_moment_at.end(),
            [&](double at) { return std::abs(model.max_moment_at - at) <= c.position_tolerance; }))
            << "max_moment_at = " << model.max_moment_at;
        // The moment maximum keeps its sign, the stress maximum is a magnitude.
        EXPECT_NEAR(model.max_stress, kFibre * std::abs(c.max_moment) / kInertia,
                    1e-6 * model.max_stress);

        if (c.deflection) {
            EXPECT_NEAR(-model.max_deflection / EI, *c.deflection, 1e-5 * std::abs(*c.deflection));
        }
    }
}

// The reactions come from closed-form integrals, the deflection from the trapezoidal rule: they
// agree at every support only if every load term of the reaction system is right.
TEST(Compatibility, DeflectionVanishesAtEverySupport) {
    const std::string loads = " di:2:10@24:72 di:8:-3@120:216 pt:600@100";
    // The shooting stops within 1 absolute, about 1e-5 relative here. The trapezoid step across a
    // couple's jump moves the couple by h/2, an error of order h / L kept small by the finest grid.
    const std::pair<std::string, double> cases[] = {
        {"simp@96 simp@192 simp@24 simp@144 simp@216" + loads, 1e-5},
        {"simp@120 cant@0 simp@192" + loads, 1e-5},
        {"cant@0 simp@72 cant@240 simp@168" + loads, 1e-5},
        {"N:200000 cant@0 cant@240 simp@96 mo:9000@150 mo:-4000@40", 1e-3},
        // On 10 intervals the support at 60 lies at index 2.5: it is held at the even index.
        {"N:10 simp@60 simp@180 di:10:10@0:240", 1e-5},
    };
    for (const auto& [description, tolerance] : cases) {
        SCOPED_TRACE(description);
        BeamModel model = beam(description);
        ASSERT_TRUE(run_calculation(model, {}).ok());
        const int last = static_cast<int>(model.resolution);
        const double deflection_scale = tolerance * largest_magnitude(model.deflection, last);
        for (int j = 1; j <= model.reaction_count; ++j) {
            const int i = static_cast<int>(std::nearbyint(model.reaction_pos[j] / kLength * last));
            EXPECT_NEAR(model.deflection[i], 0.0, deflection_scale) << "support " << j;
        }
        if (model.cantilever_count == 2) {
            EXPECT_NEAR(model.slope[last], 0.0, tolerance * largest_magnitude(model.slope, last));
        }
    }
}

}  // namespace
}  // namespace flexley
