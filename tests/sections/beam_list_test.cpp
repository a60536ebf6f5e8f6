// The shipped standard-section list: every section filled, every record complete and plausible.
#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>

#include "files/beam_definitions.h"
#include "sections/section_number.h"

namespace flexley {
namespace {

struct ListedSection {
    const char* header;
    char shape_letter;  // first letter of every name; 0 for the user's own sections
    const char* unit_flag;
};

constexpr ListedSection kExpected[kSectionKindCount] = {
    {"W BEAMS", 'W', "E"}, {"S BEAMS", 'S', "E"},    {"CHANNEL", 'C', "E"},
    {"ANGLE", 'L', "E"},   {"USER-DEFINED", 0, "M"},
};

double positive_value(const std::string& text, const std::string& name) {
    const std::optional<double> value = section_number(text);
    EXPECT_TRUE(value && *value > 0.0) << name << ": \"" << text << '"';
    return value.value_or(0.0);
}

// "W36 X 300" has a nominal depth of 36 inches, which the actual depth 2c stays close to; a
// slipped decimal point in c would be far off.
void expect_depth_matches_name(const SectionRecord& record, double c_xx) {
    const double nominal = std::stod(record.name.substr(1));
    EXPECT_LT(std::abs(2.0 * c_xx - nominal), 0.1 * nominal) << record.name;
}

void check_record(const ListedSection& expected, const SectionRecord& record) {
    SCOPED_TRACE(record.name);
    EXPECT_EQ(record.unit_flag, expected.unit_flag);
    const double i_xx = positive_value(record.i_xx, record.name);
    const double c_xx = positive_value(record.c_xx, record.name);
    const double i_yy = positive_value(record.i_yy, record.name);
    positive_value(record.c_yy, record.name);
    if (expected.shape_letter == 0) {
        EXPECT_GT(i_xx, i_yy);
        return;
    }
    ASSERT_EQ(record.name.front(), expected.shape_letter);
    if (expected.shape_letter == 'L') {
        // Angles list the long leg first: X-X equals Y-Y for equal legs and exceeds it otherwise.
        EXPECT_GE(i_xx, i_yy);
    } else {
        EXPECT_GT(i_xx, i_yy);
        expect_depth_matches_name(record, c_xx);
    }
}

TEST(SectionBeamList, EverySectionHoldsCompletePlausibleRecords) {
    const std::optional<BeamDefinitions> list = read_beam_definitions(FLEXLEY_BEAM_LIST);
    ASSERT_TRUE(list.has_value()) << FLEXLEY_BEAM_LIST;
    for (int k = 0; k < kSectionKindCount; ++k) {
        ASSERT_EQ(kSectionKinds[k].header, kExpected[k].header);
        EXPECT_FALSE(list->sections[k].empty()) << kExpected[k].header;
        for (const SectionRecord& record : list->sections[k]) {
            check_record(kExpected[k], record);
        }
    }
}

}  // namespace
}  // namespace flexley
