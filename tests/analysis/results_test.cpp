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
double couple_curve(double x) {  // fixed at 0, couple C at a = L/2
    const double a = L / 2;
    return (x <= a ? C * x * x / 2 : C * a * (x - a / 2)) / EI;
}

struct ClosedFormCase {
    std::string name;
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
    {"SimpleCentrePointLoad", "simp@0 simp@240 pt:1000@120", {P / 2, P / 2}, P * L / 4, {L / 2},
     kExact, centre_load_curve},
    {"SimpleUniformLoad", "simp@0 simp@240 di:10:10@0:240", {w * L / 2, w * L / 2}, w * L * L / 8,
     {L / 2}, kExact, [](double x) { return -w * x * (L * L * L - 2 * L * x * x + x * x * x) / (24 * EI); }},
    // M = C all along the first half, so its largest value may be found anywhere there.
    {"CantileverCentreCouple", "cant@0 mo:50000@120", {-C, 0.0}, C, {L / 4}, L / 4, couple_curve},
    {"CantileverEndLoad", "cant@0 pt:1000@240", {P * L, P}, -P * L, {0.0}, kExact,
     [](double x) { return -P * x * x * (3 * L - x) / (6 * EI); }},
    // The only fixed support at the right end: the mirror image of the case above.
    {"RightCantileverEndLoad", "pt:1000@0 cant@240", {-P * L, P}, -P * L, {L}, kExact,
     [](double x) { return -P * (L - x) * (L - x) * (2 * L + x) / (6 * EI); }},
    {"CantileverUniformLoad", "cant@0 di:10:10@0:240", {w * L * L / 2, w * L}, -w * L * L / 2,
     {0.0}, kExact, [](double x) { return -w * x * x * (6 * L * L - 4 * L * x + x * x) / (24 * EI); }},
    {"ProppedCantileverUniformLoad", "cant@0 simp@240 di:10:10@0:240",
     {w * L * L / 8, 5 * w * L / 8, 3 * w * L / 8}, -w * L * L / 8, {0.0}, kExact,
     [](double x) { return propped_curve(x, L); }},
    // The couple at the right end goes straight into the fixed support there: the moment inside
    // the beam, its largest value included, is that of the uniform load alone.
    {"FixedFixedUniformLoadEndCouple", "cant@240 di:10:10@0:240 mo:50000@240 cant@0",
     {w * L * L / 12, -w * L * L / 12 - C, w * L / 2, w * L / 2}, -w * L * L / 12, {0.0, L}, kExact,
     [](double x) { return -w * x * x * (L - x) * (L - x) / (24 * EI); }},
    // The first two supports in descending order: the shooting must start from the left one.
    // Features 1 to 4, one of each kind, are removed and must change nothing.
    {"TwoEqualSpansUniformLoad",
     "pt:5000@70 simp@90 di:7:1@0:100 mo:900@10 simp@240 simp@0 simp@120 di:10:10@0:240 "
     "rm:1 rm:2 rm:3 rm:4",
     {3 * w * L / 16, 3 * w * L / 16, 10 * w * L / 16}, -w * L * L / 32, {L / 2}, kExact,
     [](double x) { return propped_curve(std::abs(x - L / 2), L / 2); }},
    // The tip of the overhang, reached by integrating towards x = 0, deflects most.
    {"OverhangEndLoad", "simp@60 simp@240 pt:1000@0", {4 * P / 3, -P / 3}, -60 * P, {60.0}, kExact,
     overhang_curve},
    // The largest moment lies between two grid points: one step is the best the grid can do.
    {"TriangularLoad", "simp@0 simp@240 di:0:10@0:240", {w * L / 6, w * L / 3},
     w * L * L / (9 * std::sqrt(3.0)), {L / std::sqrt(3.0)}, L / 1e4,
     [](double x) { return -w * x * (7 * std::pow(L, 4) - 10 * L * L * x * x + 3 * std::pow(x, 4)) / (360 * L * EI); }},
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
    }
}

// The exact method's deflection is the handbook curve at every grid point, whether loads and
// supports stand on grid points (N = 10) or between them (N = 11), on a coarse grid or a fine one.
TEST(Handbook, ExactDeflectionAtEveryGridPoint) {
    for (const ClosedFormCase& c : kHandbookCases) {
        for (const int n : {10, 11, 10000}) {
            SCOPED_TRACE(c.name + " N=" + std::to_string(n));
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
        "cant@0 simp@72 cant@240 simp@168" + loads,
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

// M(x) summed over every load and reaction: a point load or support acts only beyond its
// position, a couple from its position on, unless it stands at the right end.
double direct_moment(const BeamModel& model, double x) {
    // A fixed support's moment acts inside the beam only from the left end.
    const bool fixed_at_left = model.cantilever_count > 0 && model.reaction_pos[1] == 0.0;
    double m = fixed_at_left ? -model.reaction[1] : 0.0;
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
        if (model.mo_loc[k] <= x && model.mo_loc[k] < kLength) m -= model.mo_mag[k];
    }
    for (int j = 1; j <= model.reaction_count; ++j) {
        const double past = x - model.reaction_pos[j];
        if (past > 0.0) m += past * model.reaction[model.cantilever_count + j];
    }
    return m;
}

TEST(ComputeMoments, AgreesWithDirectEvaluation) {
    const std::string beams[] = {
        // Every load kind, loads at both ends, overhangs.
        "simp@30.3 simp@201.7 pt:750@0 pt:-420@118.9 di:3.5:11@12.5:97.25 di:-2:6@150:240 "
        "di:2:9@60:180 mo:8000@61.1 mo:-2500@240",
        // Two fixed ends, and every term exactly on a grid point, where point loads and supports
        // act only from the next point on and couples already at their own.
        "cant@#0 simp@#7001 cant@#10000 pt:500@#2500 pt:300@#7001 di:5:1@#1000:#4000 "
        "mo:4000@#5000 mo:-1500@#1",
        // The only fixed support at the right end, on a coarse grid, several terms starting
        // between two points.
        "N:11 cant@240 pt:100@13 pt:100@14 di:50:70@30:31 di:0:8@40:230 mo:1000@#5",
    };
    for (const std::string& description : beams) {
        SCOPED_TRACE(description);
        BeamModel model = beam(description);
        ASSERT_TRUE(run_calculation(model, {}).ok());
        std::vector<double> direct;
        for (int i = 0; i <= static_cast<int>(model.resolution); ++i) {
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
