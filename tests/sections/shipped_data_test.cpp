// The shipped standard-section list is complete and plausible.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "files/beam_definitions.h"
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

}  // namespace
}  // namespace flexley
