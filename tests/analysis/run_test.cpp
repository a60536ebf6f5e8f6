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
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

constexpr double kUntouched = 12345.0;

// A refused run shows its message, sets no results and leaves the result arrays as they were.
TEST(Commands, RefuseWithMessage) {
    struct Case {
        Status (*command)(BeamModel&, const ContinueQuestion&);
        std::string beam;
        float BeamModel::*missing;  // a beam property left at 0, if any
        std::string message;
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
        {run, "simp@60 simp@60", nullptr, kSingularMatrix},
        {run, "N:9.99 simp@0 simp@240", nullptr, kResolutionOutOfRange},
        {recalculate, "N:200001 simp@0 simp@240", nullptr, kResolutionOutOfRange},
        {run, "cant@0 cant@240 cant@240", nullptr, kTooManyCantilevers},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE("row " + std::to_string(&c - cases));
        BeamModel model = beam("pt:1000@100 " + c.beam);
        if (c.missing) model.*c.missing = 0.0f;
        model.moment[0] = kUntouched;
        EXPECT_EQ(c.command(model, {}).message(), c.message);
        EXPECT_FALSE(model.results_valid);
        EXPECT_EQ(model.moment[0], kUntouched);
    }
}

// Recalculation computes everything but leaves results_valid as it was.
TEST(Commands, Recalculation) {
    BeamModel model = beam("simp@0 simp@240 pt:1000@60");
    ASSERT_TRUE(recalculate(model, {}).ok());
    EXPECT_FALSE(model.results_valid);
    EXPECT_NEAR(model.max_moment, 750.0 * 60.0, 1e-6);
}

// A load so large that rounding alone keeps the deflection at the second support beyond +-1.
TEST(IntegrateBetweenSupports, NonConvergenceQuestion) {
    BeamModel model = beam("simp@60 simp@180 pt:1e20@100");
    model.deflection[0] = kUntouched;
    int asked = 0;
    int yes = 0;  // the number of Yes answers before the first No
    const ContinueQuestion answer = [&] { return ++asked <= yes; };
    EXPECT_TRUE(run_calculation(model, answer).ok());
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
