// The beam definition file: field rules, case-sensitive headers, records and section limits.
#include <gtest/gtest.h>

#include <string>

#include "files/beam_definitions.h"
#include "temp_dir.h"

namespace flexley {
namespace {

std::string names(const std::vector<SectionRecord>& records) {
    std::string text;
    for (const SectionRecord& record : records)
        text += "[" + record.name + "]";
    return text;
}

TEST(BeamDefinitions, FileGivesTheSixFieldsOfEachRecordAfterTheInstructions) {
    TempDir dir;
    EXPECT_FALSE(read_beam_definitions(dir.file("beams.lst")).has_value());
    write_test_file(dir.file("beams.lst"),
                    "Enter beams below, one per line, name first.\r\nANGLE\r\n"
                    " L8 X 6 X 1 , 100,\"10\", 50,5 , E \r\n\"\"\r\n");
    const auto defs = read_beam_definitions(dir.file("beams.lst"));
    ASSERT_TRUE(defs && defs->sections[3].size() == 1);
    const SectionRecord& r = defs->sections[3][0];
    EXPECT_EQ(
        r.name + "|" + r.i_xx + "|" + r.c_xx + "|" + r.i_yy + "|" + r.c_yy + "|" + r.unit_flag,
        "L8 X 6 X 1|100|10|50|5|E");
}

TEST(BeamDefinitions, FieldAndSectionRules) {
    const struct {
        const char* text;
        int section;
        const char* names;
    } rows[] = {
        {"W BEAMS\nW1,1,1,1,1,E\n", 0, "[W1]"},
        {"w beams\nW1,1,1,1,1,E\n", 0, ""},
        {"  S BEAMS  \nS1,1,1,1,1,E\n", 1, "[S1]"},
        {"CHANNEL\n\"C, special\",1,1,1,1,E\nC2,1,1,1,1,E\n", 2, "[C, special][C2]"},
        {"CHANNEL\nC1\n1\n1,1\n1,E\nC2,1,1,1,1,M\n", 2, "[C1][C2]"},
        {"CHANNEL\nC1,1,1,1,1,E\n\nC2,1,1,1,1,E\n", 2, "[C1]"},
        {"CHANNEL\nC1,1,1,1,1,E\nC2,1,1\n", 2, "[C1]"},
        {"CHANNEL\nUSER-DEFINED,1,1,1,1,E\n", 2, "[USER-DEFINED]"},
        {"USER-DEFINED\nU1,1,1,1,1,E\nU2,1,1,1,1,E\n\nUSER-DEFINED\nU3,1,1,1,1,E\n", 4, "[U3]"},
    };
    for (const auto& [text, section, expected] : rows)
        EXPECT_EQ(names(parse_beam_definitions(text).sections[section]), expected) << text;
}

TEST(BeamDefinitions, KeepsFiveHundredRecordsPerSection) {
    std::string text = "USER-DEFINED\n";
    for (int i = 1; i <= 502; ++i)
        text += "U" + std::to_string(i) + ",1,1,1,1,E\n";
    // Records beyond the limit must still be skipped as records, not taken for headers.
    text += "CHANNEL,1,1,1,1,E\n\nCHANNEL\nC1,1,1,1,1,E\n";
    const BeamDefinitions defs = parse_beam_definitions(text);
    ASSERT_EQ(defs.sections[4].size(), static_cast<std::size_t>(kMaxSectionRecords));
    EXPECT_EQ(defs.sections[4].back().name, "U500");
    EXPECT_EQ(names(defs.sections[2]), "[C1]");
}

}  // namespace
}  // namespace flexley
