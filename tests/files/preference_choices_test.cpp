// The preferences dialog's OK: each setting is stored or refused on its own.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "files/preference_choices.h"
#include "temp_dir.h"

namespace flexley {
namespace {

TEST(PreferenceChoices, ARefusedPathKeepsItsOldValueAndHoldsBackNothingElse) {
    TempDir dir;
    const std::string list = dir.file("Beams.LST");
    const std::string work = dir.file("Work");
    write_test_file(list, "W BEAMS\n");
    std::filesystem::create_directory(work);
    const Preferences old{"/old/beams.lst", "/old/work", "english", false};
    struct Row {
        std::string definitions;
        std::string working;
        std::vector<std::string> messages;  // the paths refused keep their old values
    };
    const Row rows[] = {
        {list, work + "/", {}},
        {list, "", {}},  // no working folder at all
        {work, work, {kBeamDefinitionFileMissing}},
        {list, list, {kWorkingFilesPathMissing}},
        {"", dir.file("work"), {kBeamDefinitionFileMissing, kWorkingFilesPathMissing}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.definitions + " | " + row.working);
        Preferences stored = old;
        EXPECT_EQ(apply_preference_choices(stored, {row.definitions, row.working, "metric", true}),
                  row.messages);
        const auto refused = [&](const char* message) {
            return std::find(row.messages.begin(), row.messages.end(), message) !=
                   row.messages.end();
        };
        EXPECT_EQ(stored.beam_definition_path,
                  refused(kBeamDefinitionFileMissing) ? old.beam_definition_path : row.definitions);
        EXPECT_EQ(stored.working_files_path,
                  refused(kWorkingFilesPathMissing) ? old.working_files_path : row.working);
        EXPECT_EQ(stored.default_units, "metric");
        EXPECT_TRUE(stored.outline_only);
    }
}

}  // namespace
}  // namespace flexley
