// The order of the active supports in the reaction system, and the assembled system itself.
#include "analysis/reaction_system.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "model/features.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

struct OrderCase {
    std::string name;
    std::function<void(BeamModel&)> build;
    std::vector<int> features;  // reaction_feature in system order
    int cantilevers;
};

void PrintTo(const OrderCase& c, std::ostream* os) {
    *os << c.name;
}

class CollectSupportsTest : public testing::TestWithParam<OrderCase> {};

TEST_P(CollectSupportsTest, OrdersSupports) {
    const OrderCase& c = GetParam();
    BeamModel model = beam();
    c.build(model);
    collect_supports(model);
    ASSERT_EQ(model.reaction_count, static_cast<int>(c.features.size()));
    EXPECT_EQ(model.cantilever_count, c.cantilevers);
    for (int i = 1; i <= model.reaction_count; ++i) {
        const int feature = c.features[i - 1];
        EXPECT_EQ(model.reaction_feature[i], feature) << "system support " << i;
        const auto ref = lookup_feature(model, feature);
        ASSERT_TRUE(ref.has_value());
        EXPECT_EQ(model.reaction_pos[i], model.su_loc[ref->index]) << "system support " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Supports, CollectSupportsTest,
                         testing::Values(OrderCase{"SimpleOnlyInFeatureOrder",
                                                   [](BeamModel& m) {
                                                       simple_support(m, 200.0);
                                                       point_load(m, 10.0, 5.0);
                                                       simple_support(m, 0.0);
                                                       simple_support(m, 100.0);
                                                   },
                                                   {1, 3, 4},
                                                   0},
                                         OrderCase{"FixedAddedAfterSimpleMovesToFront",
                                                   [](BeamModel& m) {
                                                       simple_support(m, kLength);
                                                       simple_support(m, 120.0);
                                                       fixed_support(m, 0.0);
                                                   },
                                                   {3, 1, 2},
                                                   1},
                                         OrderCase{"SimpleAddedAfterSecondFixedStaysBeforeIt",
                                                   [](BeamModel& m) {
                                                       fixed_support(m, 0.0);
                                                       simple_support(m, 80.0);
                                                       fixed_support(m, kLength);
                                                       simple_support(m, 160.0);
                                                       simple_support(m, 40.0);
                                                   },
                                                   {1, 2, 4, 5, 3},
                                                   2},
                                         OrderCase{"RemovedSupportsLeftOut",
                                                   [](BeamModel& m) {
                                                       simple_support(m, 0.0);
                                                       simple_support(m, 50.0);
                                                       fixed_support(m, 0.0);
                                                       simple_support(m, kLength);
                                                       ASSERT_TRUE(remove_feature(m, 2).ok());
                                                       ASSERT_TRUE(remove_feature(m, 3).ok());
                                                   },
                                                   {1, 4},
                                                   0}),
                         [](const testing::TestParamInfo<OrderCase>& info) {
                             return info.param.name;
                         });

// Three simple supports: the third row states zero deflection at support 3 relative to the line
// through supports 1 and 2; with supports at 0, L and L/2 the coefficients follow by hand.
TEST(AssembleReactionSystem, ThirdSupportRowOfContinuousBeam) {
    BeamModel model = beam(2.0);
    simple_support(model, 0.0);
    simple_support(model, 2.0);
    simple_support(model, 1.0);
    point_load(model, 6.0, 0.5);
    collect_supports(model);
    ReactionSystem system;
    assemble_reaction_system(model, system);
    ASSERT_EQ(system.order, 3);
    const double expected[3][3] = {{1.0, 1.0, 1.0}, {0.0, 2.0, 1.0}, {-0.5, 0.0, -1.0 / 12.0}};
    for (int i = 1; i <= 3; ++i) {
        for (int k = 1; k <= 3; ++k)
            EXPECT_DOUBLE_EQ(system.a[i][k], expected[i - 1][k - 1]);
    }
    // F(x) = -6 <x - 0.5>^3 / 6: F(0) = 0, F(2) = -3.375, F(1) = -0.125; t = 0.5.
    EXPECT_DOUBLE_EQ(model.reaction[1], 6.0);
    EXPECT_DOUBLE_EQ(model.reaction[2], 3.0);
    EXPECT_DOUBLE_EQ(model.reaction[3], 0.125 - 3.375 * 0.5);
}

}  // namespace
}  // namespace flexley
