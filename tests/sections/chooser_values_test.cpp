// Standard section chooser: unit conversion of listed sections and the I handed to the dialog.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "sections/chooser_values.h"

namespace flexley {
namespace {

TEST(SectionChooserConversion, UsesTheInchAndMillimetreFactors) {
    EXPECT_DOUBLE_EQ(english_to_chooser_metric_i(1.0), 0.41623142560000);
    EXPECT_DOUBLE_EQ(english_to_chooser_metric_c(1.0), 25.4);
    EXPECT_DOUBLE_EQ(chooser_metric_to_english_i(1.0), 2.402509610028835);
    EXPECT_DOUBLE_EQ(chooser_metric_to_english_c(1.0), 0.0393700787401575);
}

TEST(SectionChooserConversion, RoundTripComesBackToTheStartingValue) {
    EXPECT_NEAR(chooser_metric_to_english_i(english_to_chooser_metric_i(204.0)), 204.0, 1e-9);
    EXPECT_NEAR(chooser_metric_to_english_c(english_to_chooser_metric_c(6.1)), 6.1, 1e-12);
}

struct ShownCase {
    std::string name;
    std::string i_text;
    std::string c_text;
    std::string flag;
    bool metric_units;
    std::string shown_i;
    std::string shown_c;
};

// Names the row in test listings instead of dumping its bytes.
void PrintTo(const ShownCase& row, std::ostream* out) {
    *out << row.name;
}

class SectionChooserShown : public testing::TestWithParam<ShownCase> {};

TEST_P(SectionChooserShown, ConvertOnlyAcrossUnitSystems) {
    const ShownCase& row = GetParam();
    const AxisTexts shown =
        shown_axis_values(row.i_text, row.c_text, row.flag, row.metric_units, kChooserSigFigs);
    EXPECT_EQ(shown.moment_of_inertia, row.shown_i);
    EXPECT_EQ(shown.fibre_distance, row.shown_c);
}

INSTANTIATE_TEST_SUITE_P(
    Sections, SectionChooserShown,
    testing::Values(
        // W12 X 26 about X-X: 204 in^4 is 84.91121 x 10^6 mm^4, 6.1 in is 154.94 mm.
        ShownCase{"EnglishSectionOnMetricBeam", "204", "6.1", "E", true, "84.9112", "154.94"},
        // IPE 300 about X-X: 83.56 x 10^6 mm^4 is 200.7537 in^4, 150 mm is 5.905512 in.
        ShownCase{"MetricSectionOnEnglishBeam", "83.56", "150", "M", false, "200.754", "5.90551"},
        // Matching systems keep the file's own digits, trailing zeros and blanks included.
        ShownCase{"EnglishSectionOnEnglishBeam", "204.000", "6.10", "E", false, "204.000", "6.10"},
        ShownCase{"MetricSectionOnMetricBeam", "83.5600001", "150", "M", true, "83.5600001", "150"},
        // Only "E" and "M" are unit flags; anything else is shown untouched.
        ShownCase{"LowerCaseFlagIsNoFlag", "204", "6.1", "e", true, "204", "6.1"},
        ShownCase{"TextThatIsNoNumberShowsEmpty", "n/a", "6.1", "E", true, "", "154.94"}),
    [](const testing::TestParamInfo<ShownCase>& info) { return info.param.name; });

TEST(SectionChooserValues, RoundsConvertedValuesToTheGivenFigures) {
    EXPECT_EQ(shown_axis_values("204", "6.1", "E", true, 3).moment_of_inertia, "84.9");
}

TEST(SectionChooserPropertiesI, MetricValueGoesToTheDialogInMillimetresToTheFourth) {
    EXPECT_EQ(properties_moment_of_inertia("84.9112", true), "84911200");
    EXPECT_EQ(properties_moment_of_inertia("0.08", true), "80000");
}

TEST(SectionChooserPropertiesI, EnglishValueIsCopiedAsShown) {
    EXPECT_EQ(properties_moment_of_inertia("204.000", false), "204.000");
}

TEST(SectionChooserPropertiesI, NothingSelectedCopiesNothing) {
    EXPECT_EQ(properties_moment_of_inertia("", true), "");
    EXPECT_EQ(properties_moment_of_inertia("", false), "");
}

}  // namespace
}  // namespace flexley
