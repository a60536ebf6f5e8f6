// Whole runs against independent references: closed-form results of textbook beams and zero
// deflection at every support.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
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

// The handbook deflection curves, upward positive, as functions of x.
double centre_load_curve(double x) {
    const double u = std::min(x, L - x);
    return -P * u * (3 * L * L - 4 * u * u) / (48 * EI);
}
double propped_curve(double u, double s) {  // u from the fixed end of a span s
    return -w * u * u * (s - u) * (3 * s - 2 * u) / (48 * EI);
}
double overhang_curve(double x) {  // supports at a = 60 and L, P at the tip x = 0
    const double a = 60.0;
    const double l = L - a;
    if (x >= a) {
        const double u = x - a;
        return P * a * u * (l - u) * (2 * l - u) / (6 * l * EI);
    }
    const double d1 = P * a * a / 2 + P * a * l / 3;
    return (-P * x * x * x / 6 + d1 * x - P * a * a * (a + l) / 3) / EI;
}

struct ClosedFormCase {
    std::string beam;
    std::vector<double> reactions;  // in system order: moment reactions first
    double max_moment;
    std::vector<double> max_moment_at;  // any of these, within position_tolerance
    double position_tolerance;
    double (*curve)(double x);  // the physical deflection, upward positive
};

// clang-format 14 takes "a * b" after a nested brace list for a pointer declaration.
// clang-format off
const ClosedFormCase kHandbookCases[] = {
    {"simp@0 simp@240 pt:1000@120", {P / 2, P / 2}, P * L / 4, {L / 2}, kExact, centre_load_curve},
    // M = C all along the first half, so its largest value may be found anywhere there.
    {"cant@0 mo:50000@120", {-C, 0.0}, C, {L / 4}, L / 4,
     [](double x) { return (x <= L / 2 ? C * x * x / 2 : C * L / 2 * (x - L / 4)) / EI; }},
    {"cant@0 pt:1000@240", {P * L, P}, -P * L, {0.0}, kExact,
     [](double x) { return -P * x * x * (3 * L - x) / (6 * EI); }},
    // The only fixed support at the right end: the mirror image of the case above.
    {"pt:1000@0 cant@240", {-P * L, P}, -P * L, {L}, kExact,
     [](double x) { return -P * (L - x) * (L - x) * (2 * L + x) / (6 * EI); }},
    {"cant@0 simp@240 di:10:10@0:240", {w * L * L / 8, 5 * w * L / 8, 3 * w * L / 8},
     -w * L * L / 8, {0.0}, kExact, [](double x) { return propped_curve(x, L); }},
    // The couple at the right end goes straight into the fixed support there: the moment inside
    // the beam, its largest value included, is that of the uniform load alone.
    {"cant@240 di:10:10@0:240 mo:50000@240 cant@0",
     {w * L * L / 12, -w * L * L / 12 - C, w * L / 2, w * L / 2}, -w * L * L / 12, {0.0, L}, kExact,
     [](double x) { return -w * x * x * (L - x) * (L - x) / (24 * EI); }},
    // Two equal spans, the first two supports in descending order: the shooting must start from
    // the left one. Features 1 to 4, one of each kind, are removed and must change nothing.
    {"pt:5000@70 simp@90 di:7:1@0:100 mo:900@10 simp@240 simp@0 simp@120 di:10:10@0:240 "
     "rm:1 rm:2 rm:3 rm:4", {3 * w * L / 16, 3 * w * L / 16, 10 * w * L / 16}, -w * L * L / 32,
     {L / 2}, kExact, [](double x) { return propped_curve(std::abs(x - L / 2), L / 2); }},
    // The tip of the overhang, reached by integrating towards x = 0, deflects most.
    {"simp@60 simp@240 pt:1000@0", {4 * P / 3, -P / 3}, -60 * P, {60.0}, kExact, overhang_curve},
    // The largest moment lies between two grid points: one step is the best the grid can do.
    {"simp@0 simp@240 di:0:10@0:240", {w * L / 6, w * L / 3},
     w * L * L / (9 * std::sqrt(3.0)), {L / std::sqrt(3.0)}, L / 1e4,
     [](double x) { return -w * x * (7 * std::pow(L, 4) - 10 * L * L * x * x + 3 * std::pow(x, 4)) / (360 * L * EI); }},
};
// clang-format on

void expect_handbook_reactions_and_maxima(const BeamModel& model, const ClosedFormCase& c) {
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
}

// The exact method's deflection is the handbook curve at every grid point, whether loads and
// supports stand on grid points (N = 10) or between them (N = 11), on a coarse grid or a fine one.
// On the fine grid the reactions and the largest moment and stress are the handbook's too.
TEST(Handbook, MatchesClosedFormResults) {
    for (const ClosedFormCase& c : kHandbookCases) {
        for (const int n : {10, 11, 10000}) {
            SCOPED_TRACE(c.beam + " N=" + std::to_string(n));
            BeamModel model = beam("N:" + std::to_string(n) + " " + c.beam);
            ASSERT_TRUE(run_calculation(model, {}).ok());
            std::vector<double> expected;
            for (int i = 0; i <= n; ++i)
                expected.push_back(c.curve(i * (L / n)));
            const double tolerance = 1e-9 * largest_magnitude(expected, n);
            for (int i = 0; i <= n; ++i) {
                ASSERT_NEAR(-model.deflection[i] / EI, expected[i], tolerance) << "point " << i;
            }
            EXPECT_NEAR(std::abs(model.max_deflection) / EI, largest_magnitude(expected, n),
                        tolerance);
            if (n == 10000) expect_handbook_reactions_and_maxima(model, c);
        }
    }
}

// A crowded beam: fixed at both ends, 18 simple supports on grid points between, 50 couples.
std::string crowded_beam() {
    std::string beam = "cant@0 cant@240";
    for (int j = 1; j <= 18; ++j)
        beam += " simp@#" + std::to_string(j * 10000 / 19);
    for (int k = 0; k < 50; ++k) {
        beam += " mo:" + std::to_string((k % 2 == 0 ? 1 : -1) * (500 + 31 * k)) + "@" +
                std::to_string(L * (k + 0.61) / 50.0);
    }
    return beam;
}

// The reactions make the deflection zero at every support (and the slope at a second fixed end)
// only through the same closed-form integrals the exact method evaluates: both must be right.
TEST(Compatibility, ExactDeflectionVanishesAtEverySupport) {
    const std::string loads = " di:2:10@24:72 di:8:-3@120:216 pt:600@100";
    const std::string cases[] = {
        "simp@96 simp@192 simp@24 simp@144 simp@216" + loads,
        "simp@120 cant@0 simp@192" + loads,
        crowded_beam(),
    };
    for (const std::string& description : cases) {
        SCOPED_TRACE(description);
        BeamModel model = beam(description);
        ASSERT_TRUE(run_calculation(model, {}).ok());
        const int last = static_cast<int>(model.resolution);
        const double tolerance = 1e-9 * largest_magnitude(model.deflection, last);
        for (int j = 1; j <= model.reaction_count; ++j) {
            const double i = std::nearbyint(model.reaction_pos[j] / kLength * last);
            EXPECT_NEAR(model.deflection[static_cast<int>(i)], 0.0, tolerance) << j;
        }
        if (model.cantilever_count == 2) {
            EXPECT_NEAR(model.slope[last], 0.0, 1e-9 * largest_magnitude(model.slope, last));
        }
    }
}

}  // namespace
}  // namespace flexley
