// The reaction texts beside the supports, for 0, 1 and 2 fixed supports in both unit systems.
#include "analysis/reaction_text.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
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
    std::function<void(BeamModel&)> build;
    std::vector<std::pair<int, std::string>> texts;  // feature number, text, in system order
};

void PrintTo(const TextCase& c, std::ostream* os) {
    *os << c.name;
}

class ReactionTextTest : public testing::TestWithParam<TextCase> {};

TEST_P(ReactionTextTest, FormatsEverySupport) {
    const TextCase& c = GetParam();
    BeamModel model = beam();
    model.metric_units = c.metric;
    model.sig_figs = static_cast<int16_t>(c.sig_figs);
    c.build(model);
    ASSERT_TRUE(run_reactions_only(model, {}).ok());
    const auto texts = show_reactions(model);
    ASSERT_EQ(texts.size(), c.texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(texts[i].feature_number, c.texts[i].first) << i;
        EXPECT_EQ(texts[i].text, c.texts[i].second) << i;
    }
}

// Reactions 791.67 and 208.33.
void simply_supported(BeamModel& m) {
    point_load(m, 1000.0, 50.0);
    simple_support(m, 0.0);
    simple_support(m, kLength);
}

// Fixed at 0, propped at 12, loaded at the free end 24: the prop carries 1250 x 2.5.
void propped_overhang(BeamModel& m) {
    m.beam_length = 24.0;
    simple_support(m, 12.0);
    point_load(m, 1250.0, 24.0);
    fixed_support(m, 0.0);
}

// Fixed-fixed with P at a = 48, b = 192: P b^2 (3a + b) / L^3, P a b^2 / L^2 and mirrored.
void fixed_ends(BeamModel& m) {
    fixed_support(m, 0.0);
    point_load(m, 1000.0, 48.0);
    fixed_support(m, kLength);
}

// Symmetric about the middle support: each half acts as a fixed-fixed span with a centre load.
void fixed_ends_and_prop(BeamModel& m) {
    fixed_support(m, 0.0);
    fixed_support(m, kLength);
    simple_support(m, kLength / 2.0);
    point_load(m, 1000.0, 60.0);
    point_load(m, 1000.0, 180.0);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ReactionTextTest,
    testing::Values(
        TextCase{"SimpleEnglish", false, 3, simply_supported, {{2, "792 lb."}, {3, "208 lb."}}},
        TextCase{"SimpleMetric", true, 3, simply_supported, {{2, "792 N"}, {3, "208 N"}}},
        TextCase{"OneCantileverEnglish",
                 false,
                 4,
                 propped_overhang,
                 {{3, "-1875 lb., -7500 lb.-in."}, {1, "3125 lb."}}},
        TextCase{"OneCantileverMetric",
                 true,
                 4,
                 propped_overhang,
                 {{3, "-1875 N, -7500 N-m"}, {1, "3125 N"}}},
        TextCase{"TwoCantileversEnglish",
                 false,
                 4,
                 fixed_ends,
                 {{1, "896 lb., 30720 lb.-in."}, {3, "104 lb., -7680 lb.-in."}}},
        TextCase{"TwoCantileversAndPropMetric",
                 true,
                 4,
                 fixed_ends_and_prop,
                 {{1, "500 N, 15000 N-m"}, {3, "1000 N"}, {2, "500 N, -15000 N-m"}}}),
    [](const testing::TestParamInfo<TextCase>& info) { return info.param.name; });

}  // namespace
}  // namespace flexley
