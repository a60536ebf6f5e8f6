// The run commands: their preconditions, guards, failure cases and what each leaves behind.
#include "analysis/run.h"

#include <gtest/gtest.h>

#include <string>

#include "analysis/reaction_text.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

constexpr double kUntouched = 12345.0;

enum class Command { calculation, reactions_only, recalculation };

Status run(Command command, BeamModel& model) {
    switch (command) {
        case Command::calculation:
            return run_calculation(model, {});
        case Command::reactions_only:
            return run_reactions_only(model, {});
        case Command::recalculation:
            return recalculate(model, {});
    }
    return Status::success();
}

struct RefusalCase {
    std::string name;
    Command command;
    std::string beam;
    float BeamModel::*missing;  // a beam property left at 0, if any
    std::string message;
};

void PrintTo(const RefusalCase& c, std::ostream* os) {
    *os << c.name;
}

class RefusalTest : public testing::TestWithParam<RefusalCase> {};

// A refused run shows its message, sets no results and leaves the result arrays as they were.
TEST_P(RefusalTest, RefusesWithMessage) {
    const RefusalCase& c = GetParam();
    BeamModel model = beam("pt:1000@100 " + c.beam);
    if (c.missing) model.*c.missing = 0.0f;
    model.moment[0] = model.stress[0] = model.deflection[0] = kUntouched;
    EXPECT_EQ(run(c.command, model).message(), c.message);
    EXPECT_FALSE(model.results_valid);
    EXPECT_EQ(model.moment[0], kUntouched);
    EXPECT_EQ(model.stress[0], kUntouched);
    EXPECT_EQ(model.deflection[0], kUntouched);
}

constexpr auto kRun = Command::calculation;
constexpr auto kReactions = Command::reactions_only;
constexpr auto kRecalculate = Command::recalculation;
constexpr const char* kTwoSimple = "simp@0 simp@240";

INSTANTIATE_TEST_SUITE_P(
    Run, RefusalTest,
    testing::Values(
        RefusalCase{"NoInertia", kRun, kTwoSimple, &BeamModel::moment_of_inertia,
                    kMissingProperties},
        RefusalCase{"NoModulus", kRun, kTwoSimple, &BeamModel::elastic_modulus, kMissingProperties},
        RefusalCase{"NoFibreDistance", kRun, kTwoSimple, &BeamModel::fibre_distance,
                    kMissingProperties},
        RefusalCase{"PropertiesCheckedFirst", kRun, "", &BeamModel::fibre_distance,
                    kMissingProperties},
        RefusalCase{"NoSupport", kRun, "", nullptr, kNoSupport},
        RefusalCase{"NoSupportReactionsOnly", kReactions, "", nullptr, kNoSupport},
        RefusalCase{"OnlyRemovedSupports", kRun, "simp@0 simp@240 rm:2 rm:3", nullptr, kNoSupport},
        RefusalCase{"OneSimpleSupport", kRun, "simp@0", nullptr, kUnstableBeam},
        RefusalCase{"OneSimpleSupportReactionsOnly", kReactions, "simp@0", nullptr, kUnstableBeam},
        RefusalCase{"SecondSupportRemoved", kRun, "simp@0 simp@240 rm:3", nullptr, kUnstableBeam},
        RefusalCase{"SupportsAtSamePosition", kRun, "simp@60 simp@60", nullptr, kSingularMatrix},
        RefusalCase{"SupportsAtSamePositionReactionsOnly", kReactions, "simp@60 simp@60", nullptr,
                    kSingularMatrix},
        RefusalCase{"ResolutionBelowRange", kRun, "N:9.5 simp@0 simp@240", nullptr,
                    kResolutionOutOfRange},
        RefusalCase{"ResolutionAboveRangeReactionsOnly", kReactions, "N:200001 simp@0 simp@240",
                    nullptr, kResolutionOutOfRange},
        RefusalCase{"ResolutionAboveRangeRecalculation", kRecalculate, "N:250000 simp@0 simp@240",
                    nullptr, kResolutionOutOfRange},
        RefusalCase{"ThirdCantilever", kRun, "cant@0 cant@240 cant@240", nullptr,
                    kTooManyCantilevers}),
    [](const testing::TestParamInfo<RefusalCase>& info) { return info.param.name; });

TEST(RunReactionsOnly, RunsWithoutBeamPropertiesAndComputesNoMoments) {
    BeamModel model = beam("simp@0 simp@240 pt:1000@60");
    model.moment_of_inertia = 0.0f;
    model.moment[0] = model.stress[0] = kUntouched;
    ASSERT_EQ(run_calculation(model, {}).message(), kMissingProperties);

    ASSERT_TRUE(run_reactions_only(model, {}).ok());
    EXPECT_TRUE(model.results_valid);
    EXPECT_NEAR(model.reaction[1], 750.0, 1e-9);
    EXPECT_NEAR(model.reaction[2], 250.0, 1e-9);
    EXPECT_EQ(model.moment[0], kUntouched);
    EXPECT_EQ(model.stress[0], kUntouched);
}

TEST(Recalculate, LeavesResultsValidAsItWas) {
    BeamModel model = beam("simp@0 simp@240 pt:1000@60");
    ASSERT_TRUE(recalculate(model, {}).ok());
    EXPECT_FALSE(model.results_valid);
    EXPECT_NEAR(model.max_moment, 750.0 * 60.0, 1e-6);
}

// A cantilever support anywhere in the table stabilises the beam; the system always puts it first.
TEST(RunCalculation, OneSimpleAndOneFixedSupportInEitherTableOrder) {
    BeamModel fixed_first = beam("cant@0 simp@240 di:10:10@0:240");
    BeamModel simple_first = beam("simp@240 cant@0 di:10:10@0:240");
    for (BeamModel* model : {&fixed_first, &simple_first}) {
        ASSERT_TRUE(run_calculation(*model, {}).ok());
        EXPECT_EQ(model->cantilever_count, 1);
        EXPECT_EQ(model->reaction_pos[1], 0.0);
        EXPECT_NEAR(model->reaction[2], 5.0 * 10.0 * kLength / 8.0, 1e-9);
    }
    EXPECT_EQ(fixed_first.max_deflection, simple_first.max_deflection);
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
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(cluttered.reaction_pos[i], clean.reaction_pos[i]);
        EXPECT_EQ(cluttered.reaction[i], clean.reaction[i]);
    }
    EXPECT_EQ(cluttered.moment, clean.moment);
    EXPECT_EQ(cluttered.deflection, clean.deflection);
    for (const ReactionText& text : show_reactions(cluttered))
        EXPECT_NE(text.feature_number, 2);
}

}  // namespace
}  // namespace flexley
