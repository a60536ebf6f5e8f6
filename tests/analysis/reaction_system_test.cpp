// The order of the active supports in the reaction system.
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

}  // namespace
}  // namespace flexley
