// The run commands: their refusals, what each leaves behind, the iteration and the reaction texts.
#include "analysis/run.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "analysis/integration.h"
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
        {reactions, "", nullptr, kNoSupport},
        {run, "simp@0", nullptr, kUnstableBeam},
        {reactions, "simp@0 simp@240 rm:3", nullptr, kUnstableBeam},
        {run, "simp@60 simp@60", nullptr, kSingularMatrix},
        {run, "N:9.99 simp@0 simp@240", nullptr, kResolutionOutOfRange},
        {reactions, "N:200001 simp@0 simp@240", nullptr, kResolutionOutOfRange},
        {recalculate, "N:200001 simp@0 simp@240", nullptr, kResolutionOutOfRange},
        {run, "cant@0 cant@240 cant@240", nullptr, kTooManyCantilevers},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE("row " + std::to_string(&c - cases));
        BeamModel model = beam("pt:1000@100 " + c.beam);
        if (c.missing) model.*c.missing = 0.0f;
        model.moment[0] = model.deflection[0] = kUntouched;
        EXPECT_EQ(c.command(model, {}).message(), c.message);
        EXPECT_FALSE(model.results_valid);
        EXPECT_EQ(model.moment[0], kUntouched);
        EXPECT_EQ(model.deflection[0], kUntouched);
    }
}

// Recalculation leaves results_valid as it was; reactions only needs no beam properties and
// leaves the moments and stresses of the previous run alone.
TEST(Commands, RecalculationAndReactionsOnly) {
    BeamModel model = beam("simp@0 simp@240 pt:1000@60");
    ASSERT_TRUE(recalculate(model, {}).ok());
    EXPECT_FALSE(model.results_valid);
    EXPECT_NEAR(model.max_moment, 750.0 * 60.0, 1e-6);

    model.moment_of_inertia = 0.0f;
    model.moment[0] = kUntouched;
    ASSERT_TRUE(run_reactions_only(model, {}).ok());
    EXPECT_TRUE(model.results_valid);
    EXPECT_EQ(model.moment[0], kUntouched);
}

// Removed loads and supports must give exactly the results of a beam that never had them.
TEST(RunCalculation, RemovedFeaturesChangeNothing) {
    const std::string beam_itself = " simp@0 pt:800@50 di:4:9@20:200 mo:3000@130 simp@150 simp@240";
    BeamModel clean = beam(beam_itself);
    BeamModel cluttered =
        beam("pt:5000@70 simp@90 di:7:1@0:100 mo:900@10" + beam_itself + " rm:1 rm:2 rm:3 rm:4");
    ASSERT_TRUE(run_calculation(clean, {}).ok());
    ASSERT_TRUE(run_calculation(cluttered, {}).ok());
    ASSERT_EQ(cluttered.reaction_count, 3);
    EXPECT_EQ(cluttered.reaction_pos, clean.reaction_pos);
    EXPECT_EQ(cluttered.reaction, clean.reaction);
    EXPECT_EQ(cluttered.moment, clean.moment);
    EXPECT_EQ(cluttered.deflection, clean.deflection);
    for (const ReactionText& text : show_reactions(cluttered)) {
        EXPECT_NE(text.feature_number, 2);
    }
}

// A load so large that rounding alone keeps the deflection at the second support beyond +-1.
TEST(IntegrateBetweenSupports, NonConvergenceQuestion) {
    BeamModel model = beam("simp@60 simp@180 pt:1e20@100");
    model.deflection[0] = kUntouched;
    int asked = 0;
    // Answers Yes `yes` times, then No.
    const auto answers = [&asked](int yes) {
        return ContinueQuestion([&asked, yes] { return ++asked <= yes; });
    };
    EXPECT_TRUE(run_calculation(model, answers(0)).ok());
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(model.results_valid);
    EXPECT_GE(std::abs(model.deflection[7500]), 1.0);
    // No stops at once: the overhangs are never integrated.
    EXPECT_EQ(model.deflection[0], kUntouched);

    // Yes continues for another 100 passes and then asks again.
    asked = 0;
    EXPECT_FALSE(integrate_between_supports(model, 60.0, 180.0, answers(2)));
    EXPECT_EQ(asked, 3);
}

TEST(ShowReactions, FormatsEverySupport) {
    struct Case {
        bool metric;
        std::string beam;
        std::string texts;  // feature number and text of every support, in system order
    };
    const Case cases[] = {
        {true, "pt:1000@50 simp@0 simp@240", "2: 791.7 N; 3: 208.3 N; "},
        // Fixed at 0, propped at mid-length, loaded at the free end: the prop carries 1250 x 2.5.
        {false, "pt:1250@240 simp@120 cant@0", "3: -1875 lb., -75000 lb.-in.; 2: 3125 lb.; "},
        // Each half is a fixed-fixed span with a centre load; the second fixed support comes last.
        {true, "cant@0 cant@240 simp@120 pt:1000@60 pt:1000@180",
         "1: 500 N, 15000 N-m; 3: 1000 N; 2: 500 N, -15000 N-m; "},
    };
    for (const Case& c : cases) {
        BeamModel model = beam(c.beam);
        model.metric_units = c.metric;
        model.sig_figs = 4;
        ASSERT_TRUE(run_reactions_only(model, {}).ok());
        std::string texts;
        for (const ReactionText& text : show_reactions(model)) {
            texts += std::to_string(text.feature_number) + ": " + text.text + "; ";
        }
        EXPECT_EQ(texts, c.texts);
    }
}

}  // namespace
}  // namespace flexley
