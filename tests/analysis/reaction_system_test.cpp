// The order of the active supports in the reaction system.
#include "analysis/reaction_system.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/features.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

struct OrderCase {
    std::string name;
    std::string beam;
    std::vector<int> features;  // reaction_feature in system order
    int cantilevers;
};

void PrintTo(const OrderCase& c, std::ostream* os) {
    *os << c.name;
}

class CollectSupportsTest : public testing::TestWithParam<OrderCase> {};

TEST_P(CollectSupportsTest, OrdersSupports) {
    const OrderCase& c = GetParam();
    BeamModel model = beam(c.beam);
    collect_supports(model);
    ASSERT_EQ(model.reaction_count, static_cast<int>(c.features.size()));
    EXPECT_EQ(model.cantilever_count, c.cantilevers);
    for (int i = 1; i <= model.reaction_count; ++i) {
        const int feature = c.features[i - 1];
        EXPECT_EQ(model.reaction_feature[i], feature) << "system support " << i;
        const auto support = lookup_feature(model, feature);
        ASSERT_TRUE(support.has_value());
        EXPECT_EQ(model.reaction_pos[i], model.su_loc[support->index]) << "system support " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Supports, CollectSupportsTest,
    testing::Values(
        OrderCase{"SimpleOnlyInFeatureOrder", "simp@200 pt:10@5 simp@0 simp@100", {1, 3, 4}, 0},
        OrderCase{"FixedAddedAfterSimpleMovesToFront", "simp@240 simp@120 cant@0", {3, 1, 2}, 1},
        OrderCase{"SimpleAddedAfterSecondFixedStaysBeforeIt",
                  "cant@0 simp@80 cant@240 simp@160 simp@40",
                  {1, 2, 4, 5, 3},
                  2},
        OrderCase{"RemovedSupportsLeftOut", "simp@0 simp@50 cant@0 simp@240 rm:2 rm:3", {1, 4}, 0}),
    [](const testing::TestParamInfo<OrderCase>& info) { return info.param.name; });

}  // namespace
}  // namespace flexley
