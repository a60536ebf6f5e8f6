// The run commands: their refusals, what each leaves behind, the support order, the LU solve, the
// iteration and the reaction texts.
#include "analysis/run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "analysis/integration.h"
#include "analysis/lu_decomposition.h"
#include "analysis/reaction_system.h"
#include "analysis/reaction_text.h"
#include "model/beam_settings.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

constexpr double kUntouched = 12345.0;

// Writes a support's position past the model's own checks, as a faulty caller could.
void move_support(BeamModel& model, int entry, double position) {
    model.su_loc[entry] = position;
}

// A refused run shows its message, sets no results and leaves the result arrays as they were.
TEST(Commands, RefuseWithMessage) {
    struct Case {
        Status (*command)(BeamModel&, const ContinueQuestion&);
        std::string beam;
        float BeamModel::*missing;  // a beam property left at 0, if any
        std::string message;
        void (*tamper)(BeamModel&) = nullptr;
    };
    auto* const run = &run_calculation;
    auto* const reactions = &run_reactions_only;
    const Case cases[] = {
        {run, "simp@0 simp@240", &BeamModel::moment_of_inertia, kMissingProperties},
        {run, "simp@0 simp@240", &BeamModel::elastic_modulus, kMissingProperties},
        // The beam properties are checked before the supports.
        {run, "", &BeamModel::fibre_distance, kMissingProperties},
        {run, "simp@0 simp@240 rm:2 rm:3", nullptr, kNoSupport},
        // Reactions only needs no beam properties.
        {reactions, "", &BeamModel::moment_of_inertia, kNoSupport},
        {run, "simp@0", nullptr, kUnstableBeam},
        {reactions, "simp@0 simp@240 rm:3", nullptr, kUnstableBeam},
        {run, "simp@60 simp@120", nullptr, kSingularMatrix,
         [](BeamModel& m) { move_support(m, 2, 60); }},
        {run, "N:9.99 simp@0 simp@240", nullptr, kInvalidResolution},
        {run, "N:100.5 simp@0 simp@240", nullptr, kInvalidResolution},
        {recalculate, "N:200001 simp@0 simp@240", nullptr, kInvalidResolution},
        {run, "cant@0 simp@240", nullptr, kCantileverPlacement,
         [](BeamModel& m) { move_support(m, 1, 120); }},
        {run, "cant@0 cant@240 simp@200", nullptr, kCantileverPlacement,
         [](BeamModel& m) { m.su_type[3] = "cant"; }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE("row " + std::to_string(&c - cases));
        BeamModel model = beam("pt:1000@100 " + c.beam);
        if (c.missing) model.*c.missing = 0.0f;
        if (c.tamper) c.tamper(model);
        model.moment[0] = kUntouched;
        EXPECT_EQ(c.command(model, {}).message(), c.message);
        EXPECT_FALSE(model.results_valid);
        EXPECT_EQ(model.moment[0], kUntouched);
    }
}

// Every completed run makes the results valid; a singular run after a good one leaves nothing
// of the good one to show; a stopped iteration leaves partial results and says so.
TEST(Commands, ResultsStateAfterEachKindOfRun) {
    BeamModel model = beam("N:1000 simp@60 simp@180 pt:1e20@100");
    model.integration_method = IntegrationMethod::trapezoid;
    const Status stopped = run_calculation(model, [] { return false; });
    EXPECT_TRUE(stopped.is_warning());
    EXPECT_EQ(stopped.message(), kNotConverged);
    EXPECT_FALSE(model.results_valid);
    EXPECT_TRUE(model.results_partial);
    EXPECT_EQ(show_reactions(model).size(), 2u);

    const std::pair<Status (*)(BeamModel&, const ContinueQuestion&), const char*> runs[] = {
        {run_calculation, "calculation"},
        {run_reactions_only, "reactions only"},
        {recalculate, "recalculation"},
    };
    for (const auto& [command, name] : runs) {
        SCOPED_TRACE(name);
        model = beam("simp@0 simp@240 pt:1000@60");
        ASSERT_TRUE(command(model, {}).ok());
        EXPECT_TRUE(model.results_valid);
        EXPECT_FALSE(model.results_partial);
        EXPECT_EQ(show_reactions(model).size(), 2u);
        move_support(model, 2, 0.0);
        EXPECT_EQ(command(model, {}).message(), kSingularMatrix);
        EXPECT_FALSE(model.results_valid);
        EXPECT_TRUE(show_reactions(model).empty());
    }
}

// A light beam, whose deflection stays far below the shooting's absolute tolerance of 1, has its
// largest deflection at mid-span by either method: 1 m with 10 N, 0.1 m with 1 N, 1 mm with 1 mN.
TEST(Commands, LightBeamsDeflectWhereTheHandbookSays) {
    const std::pair<double, double> beams[] = {{1.0, 10.0}, {0.1, 1.0}, {0.001, 0.001}};
    for (const auto method : {IntegrationMethod::exact, IntegrationMethod::trapezoid}) {
        for (const auto& [length, load] : beams) {
            SCOPED_TRACE(std::to_string(length) + " m");
            BeamModel model;
            model.metric_units = true;
            model.beam_length = length;
            model.elastic_modulus = 210e9f;
            model.moment_of_inertia = 8e-6f;
            model.fibre_distance = 0.1f;
            model.integration_method = method;
            ASSERT_TRUE(add_point_load(model, load, length / 2, "m", "N").ok());
            ASSERT_TRUE(add_support(model, 0.0, "simp", "m", "N").ok());
            ASSERT_TRUE(add_support(model, length, "simp", "m", "N").ok());
            ASSERT_TRUE(run_calculation(model, {}).ok());
            const double h = length / model.resolution;
            EXPECT_NEAR(model.max_deflection_at, length / 2, h);
            const double handbook = load * length * length * length / 48.0;  // times E x I
            EXPECT_NEAR(model.max_deflection, handbook, 1e-6 * handbook);
        }
    }
}

// The trapezoid method gives the numbers it always gave: (slope, deflection) at every point of a
// beam shot between simple supports, and of one integrated from a fixed end.
TEST(Trapezoid, KeepsItsNumbers) {
    const std::pair<std::string, std::vector<std::pair<double, double>>> cases[] = {
        {"N:10 simp@60 simp@240 pt:1000@0 di:2:10@24:72",
         {{5181839.9984321147, 227854079.92474151},
          {4893839.9984321147, 106945919.96237075},
          {4018319.9984321143, 0},
          {2737295.9984321143, -81067391.962370738},
          {1449359.9984321143, -131307263.92474148},
          {359567.99843211425, -153014399.88711223},
          {-532080.00156788575, -150944255.84948298},
          {-1225584.0015678857, -129852287.81185372},
          {-1720944.0015678857, -94493951.77422446},
          {-2018160.0015678857, -49624703.736595199},
          {-2117232.0015678857, 0.30103406310081482}}},
        {"N:10 cant@0 pt:1000@240 mo:5000@130",
         {{0, 0},
          {-5352000, 64224000},
          {-10128000, 249984000},
          {-14328000, 543456000},
          {-17952000, 930816000},
          {-21000000, 1398240000},
          {-23532000, 1932624000},
          {-25548000, 2521584000},
          {-26988000, 3152016000},
          {-27852000, 3810096000},
          {-28140000, 4482000000}}},
    };
    for (const auto& [description, expected] : cases) {
        SCOPED_TRACE(description);
        BeamModel model = beam(description);
        model.integration_method = IntegrationMethod::trapezoid;
        ASSERT_TRUE(run_calculation(model, {}).ok());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            EXPECT_NEAR(model.slope[i], expected[i].first, 1e-9 * 5e6) << i;
            EXPECT_NEAR(model.deflection[i], expected[i].second, 1e-9 * 5e9) << i;
        }
    }
}

// A load so large that rounding alone keeps the deflection at the second support beyond +-1.
TEST(IntegrateBetweenSupports, NonConvergenceQuestion) {
    BeamModel model = beam("simp@60 simp@180 pt:1e20@100");
    model.integration_method = IntegrationMethod::trapezoid;
    model.deflection[0] = kUntouched;
    int asked = 0;
    int yes = 0;  // the number of Yes answers before the first No
    const ContinueQuestion answer = [&] { return ++asked <= yes; };
    EXPECT_TRUE(run_calculation(model, answer).is_warning());
    EXPECT_EQ(asked, 1);
    // No stops at once: the overhangs are never integrated.
    EXPECT_EQ(model.deflection[0], kUntouched);
    // Yes continues for another 100 passes and then asks again.
    asked = 0;
    yes = 2;
    EXPECT_FALSE(integrate_between_supports(model, 60.0, 180.0, answer));
    EXPECT_EQ(asked, 3);
}

// Reactions only leaves the moments and stresses of the previous run alone.
TEST(ShowReactions, FormatsEverySupportAfterReactionsOnly) {
    // Metric units?, the beam, and the feature number and text of every support in system order.
    const std::tuple<bool, std::string, std::string> cases[] = {
        {true, "pt:1000@50 simp@0 simp@240", "2: 791.7 N; 3: 208.3 N; "},
        // Fixed at 0, propped at mid-length, loaded at the free end: the prop carries 1250 x 2.5.
        {false, "pt:1250@240 simp@120 cant@0", "3: -1875 lb., -75000 lb.-in.; 2: 3125 lb.; "},
        // Each half is a fixed-fixed span with a centre load; the second fixed support comes last.
        {true, "cant@0 cant@240 simp@120 pt:1000@60 pt:1000@180",
         "1: 500 N, 15000 N-m; 3: 1000 N; 2: 500 N, -15000 N-m; "},
        // The mirror image of the second beam: the fixed end's moment turns the other way.
        {false, "pt:1250@0 simp@120 cant@240", "3: -1875 lb., 75000 lb.-in.; 2: 3125 lb.; "},
        // Whichever fixed support was added first, the one at x = 0 comes first.
        {true, "cant@240 cant@0 simp@120 pt:1000@60 pt:1000@180",
         "2: 500 N, 15000 N-m; 3: 1000 N; 1: 500 N, -15000 N-m; "},
    };
    for (const auto& [metric, description, expected] : cases) {
        BeamModel model = beam(description);
        model.metric_units = metric;
        model.sig_figs = 4;
        model.moment[0] = kUntouched;
        ASSERT_TRUE(run_reactions_only(model, {}).ok());
        EXPECT_TRUE(model.results_valid);
        EXPECT_EQ(model.moment[0], kUntouched);
        std::string texts;
        for (const ReactionText& text : show_reactions(model)) {
            texts += std::to_string(text.feature_number) + ": " + text.text + "; ";
        }
        EXPECT_EQ(texts, expected);
    }
}

TEST(CollectSupports, FixedSupportsGoFirstAndLast) {
    // Each beam with the feature numbers of its supports in system order.
    const std::pair<std::string, std::vector<int>> cases[] = {
        {"simp@200 pt:10@5 simp@0 simp@100", {1, 3, 4}},
        {"simp@240 simp@120 cant@0", {3, 1, 2}},
        // A simple support added after the second fixed one still goes before it.
        {"cant@0 simp@80 cant@240 simp@160 simp@40", {1, 2, 4, 5, 3}},
        {"cant@240 simp@120 cant@0", {3, 2, 1}},
    };
    for (const auto& [description, features] : cases) {
        BeamModel model = beam(description);
        collect_supports(model);
        const auto first = model.reaction_feature.begin() + 1;
        EXPECT_EQ(std::vector<int>(first, first + model.reaction_count), features) << description;
    }
}

// A singular matrix (no expected solution) is refused at an exact zero pivot, which is not replaced
// by a small number.
TEST(LuDecomposition, PivotsOnScaledRowsAndSolves) {
    struct Case {
        std::vector<std::vector<double>> a;
        std::vector<double> b, x;
        std::vector<int> pivots;
    };
    const Case cases[] = {
        // Scaled merits 1/100 and 1/1: row 2 is chosen although its entry is smaller.
        {{{3, 300}, {1, 1}}, {303, 2}, {1, 1}, {2, 2}},
        // Scaled merits tie in column 1 and the later row wins; column 2 then needs the scale of
        // the
        // row moved by the exchange.
        {{{-4, -3, -3}, {-1, 3, -3}, {5, -1, 5}}, {-7, 8, -2}, {1, 2, -1}, {3, 3, 3}},
        {{{1, 2}, {2, 4}}, {}, {}, {}},
    };
    for (const Case& c : cases) {
        ReactionSystem system;
        system.order = static_cast<int>(c.a.size());
        for (int i = 1; i <= system.order; ++i) {
            std::ranges::copy(c.a[i - 1], system.a[i].begin() + 1);
        }
        EXPECT_EQ(lu_decompose(system).message(), c.x.empty() ? kSingularMatrix : "");
        if (c.x.empty()) continue;
        Table<double, kMaxUnknowns> b{};
        std::ranges::copy(c.b, b.begin() + 1);
        lu_solve(system, b);
        for (int i = 1; i <= system.order; ++i) {
            EXPECT_EQ(system.pivot[i], c.pivots[i - 1]) << "column " << i;
            EXPECT_NEAR(b[i], c.x[i - 1], 1e-12) << "unknown " << i;
        }
    }
}

}  // namespace
}  // namespace flexley
