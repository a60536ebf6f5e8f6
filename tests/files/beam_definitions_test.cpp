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
                    " L8 X 6 X 1 , 100,\"10\", 50,5 , E \r\n");
    const SectionRecord r = read_beam_definitions(dir.file("beams.lst")).value().sections[3].at(0);
    EXPECT_EQ(
        r.name + "|" + r.i_xx + "|" + r.c_xx + "|" + r.i_yy + "|" + r.c_yy + "|" + r.unit_flag,
        "L8 X 6 X 1|100|10|50|5|E");
}

TEST(BeamDefinitions, FieldAndSectionRules) {
    // Records beyond the limit must still be skipped as records, not taken for headers.
    std::string beyond_limit = "USER-DEFINED\n", kept;
    for (int i = 1; i <= kMaxSectionRecords + 2; ++i) {
        beyond_limit += "U" + std::to_string(i) + ",1,1,1,1,E\n";
        if (i <= kMaxSectionRecords) kept += "[U" + std::to_string(i) + "]";
    }
    beyond_limit += "CHANNEL,1,1,1,1,E\n\nCHANNEL\nC1,1,1,1,1,E\n";
    const struct {
        std::string text;
        int section;
        std::string names;
    } rows[] = {
        {"W BEAMS\nW1,1,1,1,1,E\n\nw beams\nX1,1,1,1,1,E\n", 0, "[W1]"},
        {"CHANNEL\n\"C, special\",1,1,1,1,E\nC2,1,1,1,1,E\n", 2, "[C, special][C2]"},
        {"CHANNEL\nC1\n1\n1,1\n1,E\nC2,1,1,1,1,M\n", 2, "[C1][C2]"},
        {"CHANNEL\nC1,1,1,1,1,E\n\nC2,1,1,1,1,E\n", 2, "[C1]"},
        {"CHANNEL\nC1,1,1,1,1,E\nC2,1,1\n", 2, "[C1]"},
        {"USER-DEFINED\nU1,1,1,1,1,E\nU2,1,1,1,1,E\n\nUSER-DEFINED\nU3,1,1,1,1,E\n", 4, "[U3]"},
        {beyond_limit, 4, kept},
        {beyond_limit, 2, "[C1]"},
    };
    for (const auto& [text, section, expected] : rows)
        EXPECT_EQ(names(parse_beam_definitions(text).sections[section]), expected) << text;
}

}  // namespace
}  // namespace flexley
