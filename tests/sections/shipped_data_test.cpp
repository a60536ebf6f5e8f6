// The shipped data: the standard-section list is complete and plausible, and the sample beams
// give the reactions the examples README works out by hand.
#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "analysis/run.h"
#include "files/beam_definitions.h"
#include "files/load_file.h"
#include "model/typed_number.h"

namespace flexley {
namespace {

TEST(SectionBeamList, EverySectionHoldsCompletePlausibleRecords) {
    const std::optional<BeamDefinitions> list = read_beam_definitions(FLEXLEY_BEAM_LIST);
    ASSERT_TRUE(list.has_value()) << FLEXLEY_BEAM_LIST;
    const auto value = [](const std::string& text) { return typed_number(text).value_or(0.0); };
    for (int k = 0; k < kSectionKindCount; ++k) {
        EXPECT_FALSE(list->sections[k].empty()) << kSectionKinds[k].header;
        for (const SectionRecord& r : list->sections[k]) {
            const double v[] = {value(r.i_xx), value(r.c_xx), value(r.i_yy), value(r.c_yy)};
            EXPECT_TRUE(v[0] > 0 && v[1] > 0 && v[2] > 0 && v[3] > 0) << r.name;
            // A W shape is always stiffer about its strong axis; swapped columns would show here.
            EXPECT_TRUE(kSectionKinds[k].header != "W BEAMS" || v[0] > v[2]) << r.name;
        }
    }
}

// Reactions hold the cantilever moments first, then one force per support.
TEST(SectionExamples, GiveTheHandCalculatedReactions) {
    const std::pair<const char*, std::vector<double>> cases[] = {
        {"simply-supported-point-load.lod", {2500, 2500}},
        {"cantilever-distributed-load.lod", {300000, 5000}},
        {"propped-cantilever-point-load.lod", {432000, 5500, 2500}},
        {"continuous-beam-three-spans.lod", {4800, 13200, 13200, 4800}},
        {"metric-ipe300-combined-loads.lod", {130000.0 / 3, 110000.0 / 3}},
    };
    for (const auto& [file, reactions] : cases) {
        SCOPED_TRACE(file);
        BeamModel model;
        const std::string path = std::string(FLEXLEY_EXAMPLES_DIR) + "/" + file;
        ASSERT_TRUE(read_load_configuration(path, model).status.ok());
        ASSERT_TRUE(run_calculation(model, [] { return false; }).ok());
        ASSERT_EQ(model.reaction_count + model.cantilever_count, std::ssize(reactions));
        for (std::size_t k = 0; k < reactions.size(); ++k) {
            EXPECT_NEAR(model.reaction[k + 1], reactions[k], 1e-9 * std::abs(reactions[k]));
        }
    }
}

}  // namespace
}  // namespace flexley
