// The beam definition file: field rules, case-sensitive headers, records and section limits.
#include <gtest/gtest.h>

#include <string>

#include "files/beam_definitions.h"
#include "temp_dir.h"

namespace flexley {
namespace {

constexpr int kWide = 0;
constexpr int kChannel = 2;
constexpr int kUser = 4;

std::string names(const std::vector<SectionRecord>& records) {
    std::string text;
    for (const SectionRecord& record : records)
        text += "[" + record.name + "]";
    return text;
}

std::string fields(const SectionRecord& r) {
    return r.name + "|" + r.i_xx + "|" + r.c_xx + "|" + r.i_yy + "|" + r.c_yy + "|" + r.unit_flag;
}

TEST(BeamDefinitions, ReadsTheDocumentedExample) {
    const BeamDefinitions defs = parse_beam_definitions(
        "Enter beams below, one per line, name first.\r\nW BEAMS\r\n"
        "W36 X 300, 100, 10, 50, 5, E\r\n\"\"\r\n");
    ASSERT_EQ(defs.sections[kWide].size(), 1u);
    EXPECT_EQ(fields(defs.sections[kWide][0]), "W36 X 300|100|10|50|5|E");
    for (int k = 1; k < kSectionKindCount; ++k)
        EXPECT_TRUE(defs.sections[k].empty());
}

TEST(BeamDefinitions, EachHeaderFillsItsOwnSection) {
    std::string text;
    for (const SectionKind& kind : kSectionKinds) {
        text += std::string(kind.header) + "\n" + std::string(kind.header) + " 1,1,1,1,1,M\n\n";
    }
    const BeamDefinitions defs = parse_beam_definitions(text);
    for (int k = 0; k < kSectionKindCount; ++k) {
        EXPECT_EQ(names(defs.sections[k]), "[" + std::string(kSectionKinds[k].header) + " 1]");
    }
}

struct FieldCase {
    const char* name;
    const char* text;
    int section;
    const char* names;
};

class BeamDefinitionFields : public ::testing::TestWithParam<FieldCase> {};

TEST_P(BeamDefinitionFields, GiveTheseRecordNames) {
    const BeamDefinitions defs = parse_beam_definitions(GetParam().text);
    EXPECT_EQ(names(defs.sections[GetParam().section]), GetParam().names);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, BeamDefinitionFields,
    ::testing::Values(
        FieldCase{"header_in_other_case_is_text", "w beams\nW1,1,1,1,1,E\n", kWide, ""},
        FieldCase{"header_with_spaces_around", "  CHANNEL  \nC15 X 50,1,1,1,1,E\n", kChannel,
                  "[C15 X 50]"},
        FieldCase{"quoted_name_keeps_commas", "CHANNEL\n\"C, special\",1,1,1,1,E\n", kChannel,
                  "[C, special]"},
        FieldCase{"quoted_name_keeps_spaces", "CHANNEL\n\" C1 \",1,1,1,1,E\n", kChannel, "[ C1 ]"},
        FieldCase{"record_over_several_lines", "CHANNEL\nC1\n1\n1,1\n1,E\nC2,1,1,1,1,M\n", kChannel,
                  "[C1][C2]"},
        FieldCase{"empty_line_ends_section", "CHANNEL\nC1,1,1,1,1,E\n\nC2,1,1,1,1,E\n", kChannel,
                  "[C1]"},
        FieldCase{"empty_quotes_end_section", "CHANNEL\nC1,1,1,1,1,E,\"\",C2,1,1,1,1,E\n", kChannel,
                  "[C1]"},
        FieldCase{"trailing_comma_ends_section", "CHANNEL\nC1,1,1,1,1,E,\nC2,1,1,1,1,E\n", kChannel,
                  "[C1]"},
        FieldCase{"incomplete_last_record_dropped", "CHANNEL\nC1,1,1,1,1,E\nC2,1,1\n", kChannel,
                  "[C1]"},
        FieldCase{"header_inside_section_is_a_name", "CHANNEL\nUSER-DEFINED,1,1,1,1,E\n", kChannel,
                  "[USER-DEFINED]"},
        FieldCase{"repeated_header_refills",
                  "USER-DEFINED\nU1,1,1,1,1,E\nU2,1,1,1,1,E\n\n"
                  "USER-DEFINED\nU3,1,1,1,1,E\n",
                  kUser, "[U3]"},
        FieldCase{"later_sections_after_refill",
                  "USER-DEFINED\nU1,1,1,1,1,E\n\nCHANNEL\n"
                  "C1,1,1,1,1,E\n\nUSER-DEFINED\nU2,1,1,1,1,E\n",
                  kChannel, "[C1]"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(BeamDefinitions, UnquotedFieldsLoseSurroundingSpaces) {
    const BeamDefinitions defs =
        parse_beam_definitions("ANGLE\n L8 X 6 X 1 , 1.5 ,\"2\", 3,4 , M \n");
    ASSERT_EQ(defs.sections[3].size(), 1u);
    EXPECT_EQ(fields(defs.sections[3][0]), "L8 X 6 X 1|1.5|2|3|4|M");
}

TEST(BeamDefinitions, KeepsFiveHundredRecordsPerSection) {
    std::string text = "USER-DEFINED\n";
    for (int i = 1; i <= 502; ++i)
        text += "U" + std::to_string(i) + ",1,1,1,1,E\n";
    text += "\nCHANNEL\nC1,1,1,1,1,E\n";
    const BeamDefinitions defs = parse_beam_definitions(text);
    ASSERT_EQ(defs.sections[kUser].size(), static_cast<std::size_t>(kMaxSectionRecords));
    EXPECT_EQ(defs.sections[kUser].back().name, "U500");
    EXPECT_EQ(names(defs.sections[kChannel]), "[C1]");
}

TEST(BeamDefinitions, FileThatCannotBeOpenedGivesNothing) {
    TempDir dir;
    EXPECT_FALSE(read_beam_definitions(dir.file("beams.lst")).has_value());
    EXPECT_FALSE(read_beam_definitions(dir.path().string()).has_value());
    write_test_file(dir.file("beams.lst"), "S BEAMS\r\nS24 X 100,1,2,3,4,E\r\n");
    const auto defs = read_beam_definitions(dir.file("beams.lst"));
    ASSERT_TRUE(defs.has_value());
    EXPECT_EQ(names(defs->sections[1]), "[S24 X 100]");
}

}  // namespace
}  // namespace flexley
