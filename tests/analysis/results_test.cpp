// Whole runs against independent references: closed-form results of textbook beams, zero
// deflection at every support, and the bending moment summed term by term.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
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

// Largest deflection (upward positive) of a propped cantilever of span s under w.
double propped_cantilever_sag(double s) {
    const double x = s * (15.0 - std::sqrt(33.0)) / 16.0;
    return -w * x * x * (3.0 * s * s - 5.0 * s * x + 2.0 * x * x) / (48.0 * EI);
}

double triangular_load_sag() {
    const double a = std::sqrt(1.0 - std::sqrt(8.0 / 15.0));  // at x = a L
    return -w * a * std::pow(L, 4) * (7.0 - 10.0 * a * a + 3.0 * std::pow(a, 4)) / (360.0 * EI);
}

struct ClosedFormCase {
    std::string name;
    std::string beam;
    std::vector<double> reactions;  // in system order: moment reactions first
    double max_moment;
    std::vector<double> max_moment_at;  // any of these, within position_tolerance
    double position_tolerance;
    double deflection;  // physical, upward positive
};

// clang-format 14 takes "a * b" after a nested brace list for a pointer declaration.
// clang-format off
const ClosedFormCase kHandbookCases[] = {
    {"SimpleCentrePointLoad", "simp@0 simp@240 pt:1000@120", {P / 2, P / 2}, P * L / 4, {L / 2},
     kExact, -P * L * L * L / (48 * EI)},
    {"SimpleUniformLoad", "simp@0 simp@240 di:10:10@0:240", {w * L / 2, w * L / 2}, w * L * L / 8,
     {L / 2}, kExact, -5 * w * std::pow(L, 4) / (384 * EI)},
    // M = C all along the first half, so its largest value may be found anywhere there. The jump
    // of M moves by h/2 in the trapezoidal rule: a fine grid keeps that within the tolerance.
    {"CantileverCentreCouple", "N:200000 cant@0 mo:50000@120", {-C, 0.0}, C, {L / 4}, L / 4,
     C * (L / 2) * (3 * L / 4) / EI},
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
    // Features 1 to 4, one of each kind, are removed and must change nothing.
    {"TwoEqualSpansUniformLoad",
     "pt:5000@70 simp@90 di:7:1@0:100 mo:900@10 simp@240 simp@0 simp@120 di:10:10@0:240 "
     "rm:1 rm:2 rm:3 rm:4",
     {3 * w * L / 16, 3 * w * L / 16, 10 * w * L / 16}, -w * L * L / 32, {L / 2}, kExact,
     propped_cantilever_sag(L / 2)},
    // The tip of the overhang, reached by integrating towards x = 0, deflects most.
    {"OverhangEndLoad", "simp@60 simp@240 pt:1000@0", {4 * P / 3, -P / 3}, -60 * P, {60.0}, kExact,
     -P * 60 * 60 * L / (3 * EI)},
    // The largest moment lies between two grid points: one step is the best the grid can do.
    {"TriangularLoad", "simp@0 simp@240 di:0:10@0:240", {w * L / 6, w * L / 3},
     w * L * L / (9 * std::sqrt(3.0)), {L / std::sqrt(3.0)}, L / 1e4, triangular_load_sag()},
};
// clang-format on

TEST(Handbook, MatchesClosedFormResults) {
    for (const ClosedFormCase& c : kHandbookCases) {
        SCOPED_TRACE(c.name);
        BeamModel model = beam(c.beam);
        ASSERT_TRUE(run_calculation(model, {}).ok());
        const int unknowns = static_cast<int>(c.reactions.size());
        ASSERT_EQ(model.reaction_count + model.cantilever_count, unknowns);
        const double largest = largest_magnitude(c.reactions, unknowns - 1);
        for (int i = 0; i < unknowns; ++i) {
            EXPECT_NEAR(model.reaction[i + 1], c.reactions[i], 1e-9 * largest) << "reaction " << i;
        }
        EXPECT_NEAR(model.max_moment, c.max_moment, 1e-6 * std::abs(c.max_moment));
        EXPECT_TRUE(std::ranges::any_of(
            c.max_moment_at,
            [&](double at) { return std::abs(model.max_moment_at - at) <= c.position_tolerance; }))
            << "max_moment_at = " << model.max_moment_at;
        // The moment maximum keeps its sign, the stress maximum is a magnitude.
        EXPECT_NEAR(model.max_stress, kFibre * std::abs(c.max_moment) / kInertia,
                    1e-6 * model.max_stress);
        EXPECT_NEAR(-model.max_deflection / EI, c.deflection, 1e-5 * std::abs(c.deflection));
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
            const double i = std::nearbyint(model.reaction_pos[j] / kLength * last);
            EXPECT_NEAR(model.deflection[static_cast<int>(i)], 0.0, deflection_scale) << j;
        }
        if (model.cantilever_count == 2) {
            EXPECT_NEAR(model.slope[last], 0.0, tolerance * largest_magnitude(model.slope, last));
        }
    }
}

// M(x) summed over every load and reaction: a point load or support acts only beyond its
// position, a couple from its position on.
double direct_moment(const BeamModel& model, double x) {
    double m = model.cantilever_count > 0 ? -model.reaction[1] : 0.0;
    for (int k = 1; k <= model.pt_count; ++k) {
        if (model.pt_loc[k] < x) m -= model.pt_mag[k] * (x - model.pt_loc[k]);
    }
    for (int k = 1; k <= model.di_count; ++k) {
        const double u = x - model.di_start[k];
        const double v = x - model.di_end[k];
        if (!(u > 0.0) || u == v) continue;
        const double w1 = model.di_mag_start[k];
        const double s = (model.di_mag_end[k] - w1) / (u - v);
        m -= w1 * u * u / 2.0 + s * u * u * u / 6.0;
        if (v > 0.0) m += w1 * v * v / 2.0 + s * (u * v * v / 2.0 - v * v * v / 3.0);
    }
    for (int k = 1; k <= model.mo_count; ++k) {
        if (model.mo_loc[k] <= x) m -= model.mo_mag[k];
    }
    for (int j = 1; j <= model.reaction_count; ++j) {
        const double past = x - model.reaction_pos[j];
        if (past > 0.0) m += past * model.reaction[model.cantilever_count + j];
    }
    return m;
}

TEST(ComputeMoments, AgreesWithDirectEvaluation) {
    const std::string beams[] = {
        // Every load kind, one distributed load given end first, loads at both ends, overhangs.
        "simp@30.3 simp@201.7 pt:750@0 pt:-420@118.9 di:3.5:11@12.5:97.25 di:-2:6@150:240 "
        "di:2:9@180:60 mo:8000@61.1 mo:-2500@240",
        // Two fixed ends, and every term exactly on a grid point, where point loads and supports
        // act only from the next point on and couples already at their own.
        "cant@#0 simp@#7001 cant@#10000 pt:500@#2500 pt:300@#7001 di:5:1@#1000:#4000 "
        "mo:4000@#5000 mo:-1500@#1",
        // A fractional resolution on a coarse grid, several terms starting between two points.
        "N:10.5 cant@0 pt:100@13 pt:100@14 di:50:70@30:31 di:0:8@40:230 mo:1000@#5",
    };
    for (const std::string& description : beams) {
        SCOPED_TRACE(description);
        BeamModel model = beam(description);
        ASSERT_TRUE(run_calculation(model, {}).ok());
        std::vector<double> direct;
        for (float i = 0.0f; i <= model.resolution; i += 1.0f) {
            direct.push_back(direct_moment(model, i * (kLength / model.resolution)));
        }
        const double largest = largest_magnitude(direct, static_cast<int>(direct.size()) - 1);
        for (std::size_t i = 0; i < direct.size(); ++i) {
            ASSERT_NEAR(model.moment[i], direct[i], 1e-9 * largest) << "grid point " << i;
        }
        EXPECT_NEAR(std::abs(model.max_moment), largest, 1e-9 * largest);
    }
}

}  // namespace
}  // namespace flexley
