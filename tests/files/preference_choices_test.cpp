// The preferences dialog's OK: each setting is stored or refused on its own.
#include <gtest/gtest.h>

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
    write_test_file(list, "W BEAMS\n");
    std::filesystem::create_directory(dir.path / "Work");
    const std::string work = dir.file("Work");
    const Preferences old{"/old/beams.lst", "/old/work", "english", false};

    struct Row {
        const char* name;
        std::string definitions;
        std::string working;
        Preferences stored;
        std::vector<std::string> messages;
    };
    const Row rows[] = {
        {"both_good", list, work, {list, work, "metric", true}, {}},
        {"trailing_separator", list, work + "/", {list, work + "/", "metric", true}, {}},
        {"no_working_path", list, "", {list, "", "metric", true}, {}},
        {"missing_list",
         dir.file("beams.lst"),
         work,
         {old.beam_definition_path, work, "metric", true},
         {kBeamDefinitionFileMissing}},
        {"list_is_a_folder",
         work,
         work,
         {old.beam_definition_path, work, "metric", true},
         {kBeamDefinitionFileMissing}},
        {"working_path_is_a_file",
         list,
         list,
         {list, old.working_files_path, "metric", true},
         {kWorkingFilesPathMissing}},
        {"both_missing",
         "",
         dir.file("work"),
         {old.beam_definition_path, old.working_files_path, "metric", true},
         {kBeamDefinitionFileMissing, kWorkingFilesPathMissing}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Preferences stored = old;
        const auto messages =
            apply_preference_choices(stored, {row.definitions, row.working, "metric", true});
        EXPECT_EQ(messages, row.messages);
        EXPECT_EQ(stored.beam_definition_path, row.stored.beam_definition_path);
        EXPECT_EQ(stored.working_files_path, row.stored.working_files_path);
        EXPECT_EQ(stored.default_units, "metric");
        EXPECT_TRUE(stored.outline_only);
    }
}

}  // namespace
}  // namespace flexley
