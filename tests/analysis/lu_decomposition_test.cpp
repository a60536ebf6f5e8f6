// LU decomposition and solve on small hand-checked systems.
#include "analysis/lu_decomposition.h"

#include <gtest/gtest.h>

#include <vector>

#include "analysis/run.h"

namespace flexley {
namespace {

ReactionSystem make_system(const std::vector<std::vector<double>>& rows) {
    ReactionSystem system;
    system.order = static_cast<int>(rows.size());
    for (int i = 1; i <= system.order; ++i) {
        for (int j = 1; j <= system.order; ++j) {
            system.a[i][j] = rows[i - 1][j - 1];
        }
    }
    return system;
}

Table<double, kMaxUnknowns> make_rhs(const std::vector<double>& values) {
    Table<double, kMaxUnknowns> b{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        b[i + 1] = values[i];
    }
    return b;
}

struct SolveCase {
    const char* name;
    std::vector<std::vector<double>> a;
    std::vector<double> b;
    std::vector<double> x;
    std::vector<int> pivots;
};

void PrintTo(const SolveCase& c, std::ostream* os) {
    *os << c.name;
}

class LuSolveTest : public testing::TestWithParam<SolveCase> {};

TEST_P(LuSolveTest, SolvesAndPivotsAsExpected) {
    const SolveCase& c = GetParam();
    ReactionSystem system = make_system(c.a);
    ASSERT_TRUE(lu_decompose(system).ok());
    for (std::size_t j = 0; j < c.pivots.size(); ++j) {
        EXPECT_EQ(system.pivot[j + 1], c.pivots[j]) << "pivot of column " << j + 1;
    }
    auto b = make_rhs(c.b);
    lu_solve(system, b);
    for (std::size_t i = 0; i < c.x.size(); ++i) {
        EXPECT_NEAR(b[i + 1], c.x[i], 1e-12) << i + 1;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Lu, LuSolveTest,
    testing::Values(
        // Scaled merits 1/3 and 1/1: the second row is chosen although its entry is smaller.
        SolveCase{"ImplicitScalingChoosesRow2", {{3, 300}, {1, 1}}, {303, 2}, {1, 1}, {2, 2}},
        // Scaled merits 1/2 and 1/2 tie: the later row becomes the pivot.
        SolveCase{"TieGoesToLaterRow", {{1, 2}, {2, -4}}, {3, -2}, {1, 1}, {2, 2}},
        SolveCase{"NoExchangeNeeded", {{4, 1}, {1, 3}}, {9, 5}, {2, 1}, {1, 2}},
        SolveCase{"ThreeByThree", {{2, 1, 1}, {4, -6, 0}, {-2, 7, 2}}, {5, -2, 9}, {1, 1, 2}, {}}),
    [](const testing::TestParamInfo<SolveCase>& info) { return std::string(info.param.name); });

// A row of zeros stops before any elimination; proportional rows leave an exact zero pivot,
// which is not replaced by a small number.
TEST(LuDecompose, SingularMatrices) {
    for (const auto& rows : {std::vector<std::vector<double>>{{1, 2}, {0, 0}}, {{1, 2}, {2, 4}}}) {
        ReactionSystem system = make_system(rows);
        EXPECT_EQ(lu_decompose(system).message(), kSingularMatrix);
    }
}

}  // namespace
}  // namespace flexley
