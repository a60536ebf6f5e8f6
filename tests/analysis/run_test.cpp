// The run commands: their preconditions, guards, failure cases and what each leaves behind.
#include "analysis/run.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "analysis/reaction_text.h"
#include "model/features.h"
#include "model/limits.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

constexpr double kUntouched = 12345.0;

enum class Command { calculation, reactions_only, recalculation };

Status run(Command command, BeamModel& model) {
    const ContinueQuestion stop = [] { return false; };
    switch (command) {
        case Command::calculation:
            return run_calculation(model, stop);
        case Command::reactions_only:
            return run_reactions_only(model, stop);
        case Command::recalculation:
            return recalculate(model, stop);
    }
    return Status::success();
}

struct RefusalCase {
    const char* name;
    Command command;
    std::vector<std::pair<const char*, double>> supports;  // kind and position, features 2, 3...
    std::vector<int> removed;                              // feature numbers
    float resolution;
    float BeamModel::*missing;  // a beam property left at 0, if any
    const char* message;
};

void PrintTo(const RefusalCase& c, std::ostream* os) {
    *os << c.name;
}

using Supports = std::vector<std::pair<const char*, double>>;

RefusalCase refusal(const char* name, Command command, Supports supports, std::vector<int> removed,
                    float resolution, float BeamModel::*missing, const char* message) {
    return RefusalCase{name,    command, std::move(supports), std::move(removed), resolution,
                       missing, message};
}

class RefusalTest : public testing::TestWithParam<RefusalCase> {};

// A refused run shows its message, sets no results and leaves the result arrays as they were.
TEST_P(RefusalTest, RefusesWithMessage) {
    const RefusalCase& c = GetParam();
    BeamModel model = beam();
    point_load(model, 1000.0, 100.0);
    for (const auto& [kind, at] : c.supports) {
        ASSERT_TRUE(add_support(model, at, kind, "in", "lb").ok());
    }
    for (int number : c.removed) {
        ASSERT_TRUE(remove_feature(model, number).ok());
    }
    model.resolution = c.resolution;
    if (c.missing) model.*c.missing = 0.0f;
    model.moment[0] = model.stress[0] = model.deflection[0] = kUntouched;
    EXPECT_EQ(run(c.command, model).message(), c.message);
    EXPECT_FALSE(model.results_valid);
    EXPECT_EQ(model.moment[0], kUntouched);
    EXPECT_EQ(model.stress[0], kUntouched);
    EXPECT_EQ(model.deflection[0], kUntouched);
}

constexpr auto kCalculation = Command::calculation;
constexpr auto kReactionsOnly = Command::reactions_only;
constexpr float kN = kDefaultResolution;
const Supports kTwoSimple = {{"simp", 0.0}, {"simp", kLength}};

INSTANTIATE_TEST_SUITE_P(
    Run, RefusalTest,
    testing::Values(
        refusal("NoInertia", kCalculation, kTwoSimple, {}, kN, &BeamModel::moment_of_inertia,
                kMissingProperties),
        refusal("NoModulus", kCalculation, kTwoSimple, {}, kN, &BeamModel::elastic_modulus,
                kMissingProperties),
        refusal("NoFibreDistance", kCalculation, kTwoSimple, {}, kN, &BeamModel::fibre_distance,
                kMissingProperties),
        refusal("PropertiesCheckedFirst", kCalculation, {}, {}, kN, &BeamModel::fibre_distance,
                kMissingProperties),
        refusal("NoSupport", kCalculation, {}, {}, kN, nullptr, kNoSupport),
        refusal("NoSupportReactionsOnly", kReactionsOnly, {}, {}, kN, nullptr, kNoSupport),
        refusal("OnlyRemovedSupports", kCalculation, kTwoSimple, {2, 3}, kN, nullptr, kNoSupport),
        refusal("OneSimpleSupport", kCalculation, {{"simp", 0.0}}, {}, kN, nullptr, kUnstableBeam),
        refusal("OneSimpleSupportReactionsOnly", kReactionsOnly, {{"simp", 0.0}}, {}, kN, nullptr,
                kUnstableBeam),
        refusal("SecondSupportRemoved", kCalculation, kTwoSimple, {3}, kN, nullptr, kUnstableBeam),
        refusal("SupportsAtSamePosition", kCalculation, {{"simp", 60.0}, {"simp", 60.0}}, {}, kN,
                nullptr, kSingularMatrix),
        refusal("SupportsAtSamePositionReactionsOnly", kReactionsOnly,
                {{"simp", 60.0}, {"simp", 60.0}}, {}, kN, nullptr, kSingularMatrix),
        refusal("ResolutionBelowRange", kCalculation, kTwoSimple, {}, 9.5f, nullptr,
                kResolutionOutOfRange),
        refusal("ResolutionAboveRangeReactionsOnly", kReactionsOnly, kTwoSimple, {}, 200001.0f,
                nullptr, kResolutionOutOfRange),
        refusal("ResolutionAboveRangeRecalculation", Command::recalculation, kTwoSimple, {},
                250000.0f, nullptr, kResolutionOutOfRange),
        refusal("ThirdCantilever", kCalculation,
                {{"cant", 0.0}, {"cant", kLength}, {"cant", kLength}}, {}, kN, nullptr,
                kTooManyCantilevers)),
    [](const testing::TestParamInfo<RefusalCase>& info) { return std::string(info.param.name); });

TEST(RunReactionsOnly, RunsWithoutBeamPropertiesAndComputesNoMoments) {
    BeamModel model = beam();
    model.moment_of_inertia = 0.0f;
    simple_support(model, 0.0);
    simple_support(model, kLength);
    point_load(model, 1000.0, 60.0);
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
    BeamModel model = beam();
    simple_support(model, 0.0);
    simple_support(model, kLength);
    point_load(model, 1000.0, 60.0);
    ASSERT_TRUE(recalculate(model, {}).ok());
    EXPECT_FALSE(model.results_valid);
    EXPECT_NEAR(model.max_moment, 750.0 * 60.0, 1e-6);
}

// A cantilever support anywhere in the table stabilises the beam; the system always puts it first.
TEST(RunCalculation, OneSimpleAndOneFixedSupportInEitherTableOrder) {
    BeamModel fixed_first = beam();
    fixed_support(fixed_first, 0.0);
    simple_support(fixed_first, kLength);
    BeamModel simple_first = beam();
    simple_support(simple_first, kLength);
    fixed_support(simple_first, 0.0);
    for (BeamModel* model : {&fixed_first, &simple_first}) {
        distributed_load(*model, 0.0, kLength, 10.0, 10.0);
        ASSERT_TRUE(run_calculation(*model, {}).ok());
        EXPECT_EQ(model->cantilever_count, 1);
        EXPECT_EQ(model->reaction_pos[1], 0.0);
        EXPECT_NEAR(model->reaction[2], 5.0 * 10.0 * kLength / 8.0, 1e-9);
    }
    EXPECT_EQ(fixed_first.max_deflection, simple_first.max_deflection);
}

// Removed loads and supports must give exactly the results of a beam that never had them.
TEST(RunCalculation, RemovedFeaturesChangeNothing) {
    const auto build = [](BeamModel& m) {
        simple_support(m, 0.0);
        point_load(m, 800.0, 50.0);
        distributed_load(m, 20.0, 200.0, 4.0, 9.0);
        couple(m, 3000.0, 130.0);
        simple_support(m, 150.0);
        simple_support(m, kLength);
    };
    BeamModel clean = beam();
    build(clean);
    BeamModel cluttered = beam();
    point_load(cluttered, 5000.0, 70.0);
    simple_support(cluttered, 90.0);
    distributed_load(cluttered, 0.0, 100.0, 7.0, 1.0);
    couple(cluttered, 900.0, 10.0);
    build(cluttered);
    for (int number = 1; number <= 4; ++number) {
        ASSERT_TRUE(remove_feature(cluttered, number).ok());
    }

    ASSERT_TRUE(run_calculation(clean, {}).ok());
    ASSERT_TRUE(run_calculation(cluttered, {}).ok());
    ASSERT_EQ(cluttered.reaction_count, 3);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(cluttered.reaction_pos[i], clean.reaction_pos[i]);
        EXPECT_EQ(cluttered.reaction[i], clean.reaction[i]);
    }
    EXPECT_EQ(cluttered.moment, clean.moment);
    EXPECT_EQ(cluttered.deflection, clean.deflection);
    const auto texts = show_reactions(cluttered);
    ASSERT_EQ(texts.size(), 3u);
    for (const auto& text : texts) {
        EXPECT_NE(text.feature_number, 2);
    }
}

}  // namespace
}  // namespace flexley
