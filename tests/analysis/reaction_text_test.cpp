// The reaction texts beside the supports, for 0, 1 and 2 fixed supports in both unit systems.
#include "analysis/reaction_text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "analysis/run.h"
#include "test_beams.h"

namespace flexley {
namespace {

using namespace testing_beams;

struct TextCase {
    std::string name;
    bool metric;
    int sig_figs;
    std::string beam;
    std::vector<std::pair<int, std::string>> texts;  // feature number, text, in system order
};

void PrintTo(const TextCase& c, std::ostream* os) {
    *os << c.name;
}

class ReactionTextTest : public testing::TestWithParam<TextCase> {};

TEST_P(ReactionTextTest, FormatsEverySupport) {
    const TextCase& c = GetParam();
    BeamModel model = beam(c.beam);
    model.metric_units = c.metric;
    model.sig_figs = static_cast<int16_t>(c.sig_figs);
    ASSERT_TRUE(run_reactions_only(model, {}).ok());
    std::vector<std::pair<int, std::string>> texts;
    for (const ReactionText& text : show_reactions(model)) {
        texts.emplace_back(text.feature_number, text.text);
    }
    EXPECT_EQ(texts, c.texts);
}

// Reactions 791.67 and 208.33.
constexpr const char* kSimple = "pt:1000@50 simp@0 simp@240";
// Fixed at 0, propped at mid-length, loaded at the free end: the prop carries 1250 x 2.5.
constexpr const char* kOneFixed = "pt:1250@240 simp@120 cant@0";
// P at a = 48, b = 192: P b^2 (3a + b) / L^3 and P a b^2 / L^2 at the left end, mirrored at the
// right. With a prop at the middle and a mirrored load each half is such a beam with a = b.
constexpr const char* kTwoFixed = "cant@0 pt:1000@48 cant@240";
constexpr const char* kTwoFixedAndProp = "cant@0 cant@240 simp@120 pt:1000@60 pt:1000@180";

INSTANTIATE_TEST_SUITE_P(
    Texts, ReactionTextTest,
    testing::Values(
        TextCase{"SimpleEnglish", false, 3, kSimple, {{2, "792 lb."}, {3, "208 lb."}}},
        TextCase{"SimpleMetric", true, 3, kSimple, {{2, "792 N"}, {3, "208 N"}}},
        TextCase{"OneCantileverEnglish",
                 false,
                 4,
                 kOneFixed,
                 {{3, "-1875 lb., -75000 lb.-in."}, {2, "3125 lb."}}},
        TextCase{
            "OneCantileverMetric", true, 4, kOneFixed, {{3, "-1875 N, -75000 N-m"}, {2, "3125 N"}}},
        TextCase{"TwoCantileversEnglish",
                 false,
                 4,
                 kTwoFixed,
                 {{1, "896 lb., 30720 lb.-in."}, {3, "104 lb., -7680 lb.-in."}}},
        TextCase{"TwoCantileversAndPropMetric",
                 true,
                 4,
                 kTwoFixedAndProp,
                 {{1, "500 N, 15000 N-m"}, {3, "1000 N"}, {2, "500 N, -15000 N-m"}}}),
    [](const testing::TestParamInfo<TextCase>& info) { return info.param.name; });

}  // namespace
}  // namespace flexley
