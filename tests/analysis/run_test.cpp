// The run commands: their refusals, what each leaves behind, the iteration, the trapezoid method's
// numbers and the reaction texts.
#include "analysis/run.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>
#include <vector>

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
    // The command, the beam, a beam property left at 0, the message, and a change made behind the
    // model's back.
    using Command = Status (*)(BeamModel&, const ContinueQuestion&);
    const std::tuple<Command, std::string, float BeamModel::*, std::string, void (*)(BeamModel&)>
        cases[] = {
            {run_calculation, "simp@0 simp@240", &BeamModel::moment_of_inertia, kMissingProperties,
             nullptr},
            // The beam properties are checked before the supports.
            {run_calculation, "", &BeamModel::fibre_distance, kMissingProperties, nullptr},
            {run_calculation, "simp@0 simp@240 rm:2 rm:3", nullptr, kNoSupport, nullptr},
            // Reactions only needs no beam properties.
            {run_reactions_only, "", &BeamModel::moment_of_inertia, kNoSupport, nullptr},
            {run_reactions_only, "simp@0 simp@240 rm:3", nullptr, kUnstableBeam, nullptr},
            {run_calculation, "simp@60 simp@120", nullptr, kSingularMatrix,
             [](BeamModel& m) { move_support(m, 2, 60); }},
            {run_calculation, "N:9.99 simp@0 simp@240", nullptr, kInvalidResolution, nullptr},
            {run_calculation, "N:100.5 simp@0 simp@240", nullptr, kInvalidResolution, nullptr},
            {recalculate, "N:200001 simp@0 simp@240", nullptr, kInvalidResolution, nullptr},
            {run_calculation, "cant@0 simp@240", nullptr, kCantileverPlacement,
             [](BeamModel& m) { move_support(m, 1, 120); }},
            {run_calculation, "cant@0 cant@240 simp@200", nullptr, kCantileverPlacement,
             [](BeamModel& m) { m.su_type[3] = "cant"; }},
        };
    for (const auto& [command, description, missing, message, tamper] : cases) {
        SCOPED_TRACE(description);
        BeamModel model = beam("pt:1000@100 " + description);
        if (missing) model.*missing = 0.0f;
        if (tamper) tamper(model);
        model.moment[0] = kUntouched;
        EXPECT_EQ(command(model, {}).message(), message);
        EXPECT_FALSE(model.results_valid);
        EXPECT_EQ(model.moment[0], kUntouched);
    }
}

// A load so large that rounding alone keeps the deflection at the second support beyond +-1: the
// question comes once, and No stops at once, leaving partial results and the overhangs never
// integrated (what Yes does shows in the command-line tool's messages). Every completed run makes
// the results valid; a singular run after a good one leaves nothing of the good one to show.
TEST(Commands, ResultsStateAfterEachKindOfRun) {
    BeamModel model = beam("N:1000 simp@60 simp@180 pt:1e20@100");
    model.integration_method = IntegrationMethod::trapezoid;
    model.deflection[0] = kUntouched;
    int asked = 0;
    const Status stopped = run_calculation(model, [&] {
        ++asked;
        return false;
    });
    EXPECT_TRUE(stopped.is_warning());
    EXPECT_EQ(stopped.message(), kNotConverged);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(model.deflection[0], kUntouched);
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
            ASSERT_TRUE(set_section_properties(model, 8e-6, 210e9, 0.1).ok());
            model.integration_method = method;
            ASSERT_TRUE(add_point_load(model, load, length / 2, "m", "N").ok());
            ASSERT_TRUE(add_support(model, 0.0, "simp", "m", "N").ok());
            ASSERT_TRUE(add_support(model, length, "simp", "m", "N").ok());
            ASSERT_TRUE(run_calculation(model, {}).ok());
            EXPECT_NEAR(model.max_deflection_at, length / 2, length / model.resolution);
            const double handbook = load * length * length * length / 48.0;  // times E x I
            EXPECT_NEAR(model.max_deflection, handbook, 1e-6 * handbook);
        }
    }
}

// The trapezoid method gives the numbers it always gave: (slope, deflection) at every point of a
// beam shot between simple supports, and of one integrated from a fixed end.
TEST(Trapezoid, KeepsItsNumbers) {
    // The beam, then the slopes and the deflections at its 11 grid points.
    const std::tuple<std::string, std::vector<double>, std::vector<double>> cases[] = {
        {"N:10 simp@60 simp@240 pt:1000@0 di:2:10@24:72",
         {5181839.9984321147, 4893839.9984321147, 4018319.9984321143, 2737295.9984321143,
          1449359.9984321143, 359567.99843211425, -532080.00156788575, -1225584.0015678857,
          -1720944.0015678857, -2018160.0015678857, -2117232.0015678857},
         {227854079.92474151, 106945919.96237075, 0, -81067391.962370738, -131307263.92474148,
          -153014399.88711223, -150944255.84948298, -129852287.81185372, -94493951.77422446,
          -49624703.736595199, 0.30103406310081482}},
        {"N:10 cant@0 pt:1000@240 mo:5000@130",
         {0, -5352000, -10128000, -14328000, -17952000, -21000000, -23532000, -25548000, -26988000,
          -27852000, -28140000},
         {0, 64224000, 249984000, 543456000, 930816000, 1398240000, 1932624000, 2521584000,
          3152016000, 3810096000, 4482000000}},
    };
    for (const auto& [description, slopes, deflections] : cases) {
        SCOPED_TRACE(description);
        BeamModel model = beam(description);
        model.integration_method = IntegrationMethod::trapezoid;
        ASSERT_TRUE(run_calculation(model, {}).ok());
        for (std::size_t i = 0; i < slopes.size(); ++i) {
            EXPECT_NEAR(model.slope[i], slopes[i], 1e-9 * 5e6) << i;
            EXPECT_NEAR(model.deflection[i], deflections[i], 1e-9 * 5e9) << i;
        }
    }
}

// Reactions only leaves the moments and stresses of the previous run alone.
TEST(ShowReactions, FormatsEverySupportAfterReactionsOnly) {
    // Metric units?, the beam, and the feature number and text of every support in system order.
    const std::tuple<bool, std::string, std::string> cases[] = {
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
        EXPECT_EQ(model.moment[0], kUntouched);
        std::string texts;
        for (const ReactionText& text : show_reactions(model)) {
            texts += std::to_string(text.feature_number) + ": " + text.text + "; ";
        }
        EXPECT_EQ(texts, expected);
    }
}

}  // namespace
}  // namespace flexley
