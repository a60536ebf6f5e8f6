// The load file's exact text, round trips through it, and every way a file can be refused.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "files/load_file.h"
#include "model/features.h"
#include "sample_beams.h"
#include "temp_dir.h"

namespace flexley {
namespace {

std::vector<std::string> worked_example_lines() {
    return {
        "1,0,0,2,1,0,0,2,3,", "5,2000,0,0,0,0,0", "0,0,0,10000,#TRUE#,#TRUE#", "2000,2",
        "0,\"simp\"",         "5,\"simp\"",       "\"pt1\",\"m\",\"N\"",       "\"su1\",\"\",\"\"",
        "\"su2\",\"\",\"\""};
}

// The worked example with line `line` (1-based) replaced.
std::string worked_example_with(int line, const std::string& replacement) {
    std::vector<std::string> lines = worked_example_lines();
    lines[line - 1] = replacement;
    std::string text;
    for (const std::string& l : lines)
        text += l + "\r\n";
    return text;
}

std::string joined(const std::vector<std::string>& lines, const std::string& end) {
    std::string text;
    for (const std::string& l : lines)
        text += l + end;
    return text;
}

std::string worked_example_first_lines(std::size_t count) {
    std::vector<std::string> lines = worked_example_lines();
    lines.resize(count);
    return joined(lines, "\r\n");
}

std::string without_last_line_end(std::string text) {
    text.resize(text.size() - 2);
    return text;
}

TEST(LoadFileText, WorkedExampleComesOutByteForByte) {
    EXPECT_EQ(load_configuration_text(*worked_example_beam()), kWorkedExampleText);
}

TEST(LoadFileText, BeamWithoutFeaturesIsThreeLines) {
    BeamModel model;
    model.beam_length = 120;
    EXPECT_EQ(load_configuration_text(model),
              "0,0,0,0,0,0,0,0,0,\r\n120,0,0,0,0,0,0\r\n0,0,0,10000,#FALSE#,#FALSE#\r\n");
}

TEST(LoadFileText, NumbersKeepFifteenOrSevenDigits) {
    BeamModel model;
    model.beam_length = 1.0 / 3.0;
    model.elastic_modulus = 1.0f / 3.0f;
    add_point_load(model, 2.5e-7, 0.1 + 0.2, "in", "lb");
    const std::string text = load_configuration_text(model);
    EXPECT_NE(text.find("\r\n0.333333333333333,"), std::string::npos) << text;
    EXPECT_NE(text.find(",0.3333333,10000,"), std::string::npos) << text;
    EXPECT_NE(text.find("\r\n2.5E-07,0.3\r\n"), std::string::npos) << text;
}

struct RoundTripCase {
    const char* name;
    std::unique_ptr<BeamModel> (*make)();
};

class LoadRoundTrip : public ::testing::TestWithParam<RoundTripCase> {};

TEST_P(LoadRoundTrip, ReadingWhatWasWrittenRestoresEveryField) {
    const std::unique_ptr<BeamModel> written = GetParam().make();
    // Start from a different beam: reading must replace everything, not merge.
    const std::unique_ptr<BeamModel> read = english_beam();
    read->metric_units = !written->metric_units;
    const LoadResult result =
        read_load_configuration_text(load_configuration_text(*written), *read);
    ASSERT_TRUE(result.status.ok()) << result.status.message();
    EXPECT_EQ(load_configuration_text(*read), load_configuration_text(*written));
}

TEST_P(LoadRoundTrip, RemovedFeaturesComeBackAsPlaceholders) {
    const std::unique_ptr<BeamModel> written = GetParam().make();
    BeamModel read;
    const LoadResult result = read_load_configuration_text(load_configuration_text(*written), read);
    ASSERT_EQ(static_cast<int>(result.label_groups.size()), written->feature_count);
    for (int n = 1; n <= written->feature_count; ++n) {
        const bool removed = is_removed(*written, *lookup_feature(*written, n));
        EXPECT_EQ(result.label_groups[n - 1],
                  removed ? LabelGroup::placeholder : LabelGroup::feature)
            << "feature " << n;
    }
}

INSTANTIATE_TEST_SUITE_P(Beams, LoadRoundTrip,
                         ::testing::Values(RoundTripCase{"worked_example", worked_example_beam},
                                           RoundTripCase{"english", english_beam},
                                           RoundTripCase{"metric", metric_beam}),
                         [](const auto& info) { return std::string(info.param.name); });

struct AcceptedCase {
    const char* name;
    std::string text;
};

class LoadReaderAccepts : public ::testing::TestWithParam<AcceptedCase> {};

TEST_P(LoadReaderAccepts, ReadsTheWorkedExampleBeam) {
    BeamModel model;
    const LoadResult result = read_load_configuration_text(GetParam().text, model);
    ASSERT_TRUE(result.status.ok());
    EXPECT_EQ(load_configuration_text(model), load_configuration_text(*worked_example_beam()));
}

INSTANTIATE_TEST_SUITE_P(
    Variants, LoadReaderAccepts,
    ::testing::Values(
        AcceptedCase{"lf_line_ends", joined(worked_example_lines(), "\n")},
        AcceptedCase{"no_final_line_end", without_last_line_end(kWorkedExampleText)},
        AcceptedCase{"trailing_blank_lines", std::string(kWorkedExampleText) + "\r\n  \r\n"},
        AcceptedCase{"spaces_before_fields", worked_example_with(4, "  2000,   2")},
        AcceptedCase{"spaces_before_strings", worked_example_with(7, " \"pt1\", \"m\",  \"N\"")},
        AcceptedCase{"quoted_numbers", worked_example_with(4, "\"2000\",\"2\"")},
        AcceptedCase{"quoted_count", worked_example_with(1, "\"1\",0,0,2,1,0,0,2,3,")},
        AcceptedCase{"exponent_forms", worked_example_with(4, "2E+03,2e0")},
        AcceptedCase{"decimals", worked_example_with(4, "2000.0,2.")},
        AcceptedCase{"no_leading_zero", worked_example_with(2, "5,2000,.0,-.0,0,0,0")}),
    [](const auto& info) { return std::string(info.param.name); });

struct RefusedCase {
    const char* name;
    std::string text;
    LoadFormat format = LoadFormat::current;
};

class LoadReaderRefuses : public ::testing::TestWithParam<RefusedCase> {};

TEST_P(LoadReaderRefuses, WithFileAccessErrorAndAnEmptyBeam) {
    const std::unique_ptr<BeamModel> model = english_beam();
    const LoadResult result =
        read_load_configuration_text(GetParam().text, *model, GetParam().format);
    EXPECT_EQ(result.status.message(), kFileAccessError);
    EXPECT_TRUE(result.label_groups.empty());
    EXPECT_EQ(cleared_problem(*model), "");
}

const std::string kThreeCantilevers =
    "0,0,0,3,0,0,0,3,0,\r\n10,0,0,0,0,0,0\r\n0,0,0,10000,#FALSE#,#FALSE#\r\n"
    "0,\"cant\"\r\n10,\"cant\"\r\n5,\"cant\"\r\n";

INSTANTIATE_TEST_SUITE_P(
    Faults, LoadReaderRefuses,
    ::testing::Values(
        RefusedCase{"empty", ""}, RefusedCase{"premature_end", worked_example_first_lines(2)},
        RefusedCase{"missing_feature_line", worked_example_first_lines(8)},
        RefusedCase{"blank_line_inside", worked_example_with(4, "")},
        RefusedCase{"counts_without_tenth_field", worked_example_with(1, "1,0,0,2,1,0,0,2,3")},
        RefusedCase{"tenth_field_not_empty", worked_example_with(1, "1,0,0,2,1,0,0,2,3,7")},
        RefusedCase{"too_many_fields", worked_example_with(4, "2000,2,0")},
        RefusedCase{"too_few_fields", worked_example_with(4, "2000")},
        RefusedCase{"point_loads_beyond_50", worked_example_with(1, "51,0,0,2,1,0,0,2,3,")},
        RefusedCase{"distributed_beyond_50", worked_example_with(1, "1,51,0,2,1,0,0,2,3,")},
        RefusedCase{"moments_beyond_50", worked_example_with(1, "1,0,51,2,1,0,0,2,3,")},
        RefusedCase{"supports_beyond_20", worked_example_with(1, "1,0,0,21,1,0,0,2,3,")},
        RefusedCase{"features_beyond_170", worked_example_with(1, "1,0,0,2,1,0,0,2,171,")},
        RefusedCase{"negative_count", worked_example_with(1, "-1,0,0,2,1,0,0,2,3,")},
        RefusedCase{"fractional_count", worked_example_with(1, "1.5,0,0,2,1,0,0,2,3,")},
        RefusedCase{"drawn_beyond_count", worked_example_with(1, "1,0,0,2,2,0,0,2,3,")},
        RefusedCase{"word_for_number", worked_example_with(4, "2000,two")},
        RefusedCase{"plus_sign", worked_example_with(4, "+2000,2")},
        RefusedCase{"number_with_unit", worked_example_with(4, "2000N,2")},
        RefusedCase{"nan_text", worked_example_with(4, "nan,2")},
        RefusedCase{"inf_text", worked_example_with(4, "2000,-inf")},
        RefusedCase{"quoted_infinity", worked_example_with(4, "\"Infinity\",2")},
        RefusedCase{"double_overflow", worked_example_with(4, "1E+999,2")},
        RefusedCase{"single_overflow", worked_example_with(3, "0,0,1E+39,10000,#TRUE#,#TRUE#")},
        RefusedCase{"resolution_below_10", worked_example_with(3, "0,0,0,9,#TRUE#,#TRUE#")},
        RefusedCase{"resolution_above_200000",
                    worked_example_with(3, "0,0,0,200001,#TRUE#,#TRUE#")},
        RefusedCase{"zero_length", worked_example_with(2, "0,2000,0,0,0,0,0")},
        RefusedCase{"bad_boolean", worked_example_with(3, "0,0,0,10000,#TRUE#,TRUE")},
        RefusedCase{"quoted_boolean", worked_example_with(3, "0,0,0,10000,\"#TRUE#\",#TRUE#")},
        RefusedCase{"unquoted_string", worked_example_with(5, "0,simp")},
        RefusedCase{"unknown_support_kind", worked_example_with(5, "0,\"fixed\"")},
        RefusedCase{"unterminated_quote", worked_example_with(7, "\"pt1,\"m\",\"N\"")},
        RefusedCase{"text_after_quote", worked_example_with(7, "\"pt1\"x,\"m\",\"N\"")},
        RefusedCase{"index_not_a_number", worked_example_with(7, "\"ptx\",\"m\",\"N\"")},
        RefusedCase{"index_missing", worked_example_with(7, "\"pt\",\"m\",\"N\"")},
        RefusedCase{"index_zero", worked_example_with(7, "\"pt0\",\"m\",\"N\"")},
        RefusedCase{"index_beyond_table", worked_example_with(7, "\"pt2\",\"m\",\"N\"")},
        RefusedCase{"unknown_kind", worked_example_with(7, "\"xx1\",\"m\",\"N\"")},
        RefusedCase{"unknown_unit", worked_example_with(7, "\"pt1\",\"yd\",\"N\"")},
        RefusedCase{"three_cantilevers", kThreeCantilevers},
        RefusedCase{"text_after_last_line", std::string(kWorkedExampleText) + "junk\r\n"},
        RefusedCase{"version1_read_as_current", kVersion1Text},
        RefusedCase{"current_read_as_version1", kWorkedExampleText, LoadFormat::version1}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(LoadReaderRefuses, KeepsTheLengthAndUnitFlagsReadBeforeTheFaultButNoInvalidLength) {
    BeamModel model;
    ASSERT_FALSE(read_load_configuration_text(worked_example_with(5, "x"), model).status.ok());
    EXPECT_EQ(model.beam_length, 5);
    EXPECT_TRUE(model.metric_units);
    EXPECT_TRUE(model.positions_in_inches);
    read_load_configuration_text(worked_example_with(2, "-5,2000,0,0,0,0,0"), model);
    EXPECT_EQ(model.beam_length, 5);
}

TEST(Version1Reader, ImportsAnEnglishBeamWithUniformLoadsSavedInTheCurrentLayout) {
    BeamModel model;
    model.metric_units = true;
    const LoadResult result =
        read_load_configuration_text(kVersion1Text, model, LoadFormat::version1);
    ASSERT_TRUE(result.status.ok());
    EXPECT_EQ(load_configuration_text(model),
              "2,1,0,1,2,1,0,1,4,\r\n120,500,0,0,0,12,0\r\n6,100,29000000,10000,#FALSE#,#FALSE#\r\n"
              "0,30\r\n500,60\r\n12,12,0,120\r\n0,\"simp\"\r\n\"pt1\",\"ft\",\"lb\"\r\n"
              "\"pt2\",\"ft\",\"lb\"\r\n\"di1\",\"ft\",\"pf\"\r\n\"su1\",\"ft\",\"lb\"\r\n");
    const std::vector<LabelGroup> expected{LabelGroup::placeholder, LabelGroup::feature,
                                           LabelGroup::feature, LabelGroup::feature};
    EXPECT_EQ(result.label_groups, expected);
}

TEST(LoadFilePaths, WrittenFileReadsBack) {
    TempDir dir;
    const std::string path = dir.file("beam.lod");
    ASSERT_TRUE(write_load_configuration(*metric_beam(), path).ok());
    EXPECT_EQ(read_test_file(path), load_configuration_text(*metric_beam()));
    BeamModel model;
    ASSERT_TRUE(read_load_configuration(path, model).status.ok());
    EXPECT_EQ(load_configuration_text(model), load_configuration_text(*metric_beam()));
}

TEST(LoadFilePaths, MissingFileAndDirectoryAreFileAccessErrors) {
    TempDir dir;
    for (const std::string& path : {dir.file("missing.lod"), dir.path().string(), std::string()}) {
        const std::unique_ptr<BeamModel> model = english_beam();
        EXPECT_EQ(read_load_configuration(path, *model).status.message(), kFileAccessError) << path;
        EXPECT_EQ(cleared_problem(*model), "") << path;
    }
}

}  // namespace
}  // namespace flexley
