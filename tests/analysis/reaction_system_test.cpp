// The reaction system: the order of its supports, and its LU decomposition and solve.
#include "analysis/reaction_system.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "analysis/lu_decomposition.h"
#include "analysis/run.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

TEST(CollectSupports, FixedSupportsGoFirstAndLast) {
    struct Case {
        std::string beam;
        std::vector<int> features;  // reaction_feature in system order
        int cantilevers;
    };
    const Case cases[] = {
        {"simp@200 pt:10@5 simp@0 simp@100", {1, 3, 4}, 0},
        {"simp@240 simp@120 cant@0", {3, 1, 2}, 1},
        // A simple support added after the second fixed one still goes before it.
        {"cant@0 simp@80 cant@240 simp@160 simp@40", {1, 2, 4, 5, 3}, 2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.beam);
        BeamModel model = beam(c.beam);
        collect_supports(model);
        EXPECT_EQ(model.cantilever_count, c.cantilevers);
        ASSERT_EQ(model.reaction_count, static_cast<int>(c.features.size()));
        for (int i = 1; i <= model.reaction_count; ++i) {
            EXPECT_EQ(model.reaction_feature[i], c.features[i - 1]) << "support " << i;
            const int support = lookup_feature(model, c.features[i - 1])->index;
            EXPECT_EQ(model.reaction_pos[i], model.su_loc[support]) << "support " << i;
        }
    }
}

// A singular matrix (no expected solution) is refused whether it shows as a row of zeros, before
// any elimination, or as an exact zero pivot, which is not replaced by a small number.
TEST(LuDecomposition, PivotsOnScaledRowsAndSolves) {
    struct Case {
        std::vector<std::vector<double>> a;
        std::vector<double> b, x;
        std::vector<int> pivots;
    };
    const Case cases[] = {
        // Scaled merits 1/100 and 1/1: row 2 is chosen although its entry is smaller.
        {{{3, 300}, {1, 1}}, {303, 2}, {1, 1}, {2, 2}},
        // Scaled merits 1/2 and 1/2 tie: the later row becomes the pivot.
        {{{1, 2}, {2, -4}}, {3, -2}, {1, 1}, {2, 2}},
        // A tie in column 1 again; column 2 then needs the scale of the row moved by the exchange.
        {{{-4, -3, -3}, {-1, 3, -3}, {5, -1, 5}}, {-7, 8, -2}, {1, 2, -1}, {3, 3, 3}},
        {{{1, 2}, {0, 0}}, {}, {}, {}},
        {{{1, 2}, {2, 4}}, {}, {}, {}},
    };
    for (const Case& c : cases) {
        ReactionSystem system;
        system.order = static_cast<int>(c.a.size());
        for (int i = 1; i <= system.order; ++i) {
            for (int j = 1; j <= system.order; ++j) {
                system.a[i][j] = c.a[i - 1][j - 1];
            }
        }
        const Status decomposed = lu_decompose(system);
        if (c.x.empty()) {
            EXPECT_EQ(decomposed.message(), kSingularMatrix);
            continue;
        }
        ASSERT_TRUE(decomposed.ok());
        Table<double, kMaxUnknowns> b{};
        for (int i = 1; i <= system.order; ++i) {
            EXPECT_EQ(system.pivot[i], c.pivots[i - 1]) << "column " << i;
            b[i] = c.b[i - 1];
        }
        lu_solve(system, b);
        for (int i = 1; i <= system.order; ++i) {
            EXPECT_NEAR(b[i], c.x[i - 1], 1e-12) << "unknown " << i;
        }
    }
}

}  // namespace
}  // namespace flexley
