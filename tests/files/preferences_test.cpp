// The preferences: the one-line file and its defaults, the settings file beside it with the recent
// files, and which of the preferences dialog's choices are stored.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "files/extra_preferences.h"
#include "files/preference_choices.h"
#include "files/preferences.h"
#include "files/recent_files.h"
#include "temp_dir.h"

namespace flexley {
namespace {

TEST(Preferences, SavedOnesAreReadAtTheNextStartAndAnythingElseGivesTheDefaults) {
    TempDir dir;
    const std::string current = dir.path.string();
    const std::string defaults =
        "\"" + dir.file("beams.lst") + "\",\"" + current + "\",\"english\",#FALSE#\r\n";
    // The first run finds no file and must not create one; a damaged file counts as none.
    for (const char* text : {"", "\"a\",\"b\",\"metric\"", "\"a\",\"b\",\"metric\",#TRUE#,\"c\"",
                             "a,\"b\",\"metric\",#TRUE#", "\"a\",\"b\",\"metric\",\"#TRUE#\""}) {
        if (*text) write_test_file(dir.file(kPreferencesFileName), text);
        const PreferencesResult read = open_preferences(current);
        EXPECT_EQ(read.status.message(), kNoPreferencesFile) << text;
        EXPECT_EQ(preferences_text(read.preferences), defaults) << text;
        EXPECT_EQ(std::filesystem::is_empty(dir.path), !*text) << text;
    }
    ASSERT_TRUE(write_preferences({"c:\\beams.lst", "", "metric", true}, current).ok());
    const std::string saved = "\"c:\\beams.lst\",\"\",\"metric\",#TRUE#\r\n";
    EXPECT_EQ(read_test_file(dir.file(kPreferencesFileName)), saved);
    EXPECT_EQ(preferences_text(open_preferences(current).preferences), saved);
    EXPECT_EQ(write_preferences({}, dir.file("missing")).message(), kUnableToSavePreferences);
}

using Paths = std::vector<std::string>;

TEST(RecentFiles, NewestFirstWithoutRepeatsAndAtMostFive) {
    Paths recent;
    for (const char* path : {"/a", "/b", "/c", "/a", "/d", "/e", "/f"})
        remember_recent_file(recent, path);
    EXPECT_EQ(recent, (Paths{"/f", "/e", "/d", "/a", "/c"}));
    forget_recent_file(recent, "/d");
    EXPECT_EQ(recent, (Paths{"/f", "/e", "/a", "/c"}));
}

TEST(ExtraPreferences, SurviveARestartInTheirOwnFile) {
    TempDir dir;
    const std::string folder = dir.path.string();
    EXPECT_EQ(open_extra_preferences(folder).integration_method, IntegrationMethod::exact);
    EXPECT_TRUE(open_extra_preferences(folder).recent_files.empty());

    const ExtraPreferences saved{IntegrationMethod::trapezoid,
                                 {"/work/a b.lod", "C:\\old\\v1.lod", "/bad\"quote.lod"}};
    ASSERT_TRUE(write_extra_preferences(saved, folder).ok());
    EXPECT_EQ(read_test_file(dir.file(kExtraPreferencesFileName)),
              "\"integration\",\"trapezoid\"\r\n\"recent\",\"/work/a b.lod\"\r\n"
              "\"recent\",\"C:\\old\\v1.lod\"\r\n");
    const ExtraPreferences read = open_extra_preferences(folder);
    EXPECT_EQ(read.integration_method, IntegrationMethod::trapezoid);
    EXPECT_EQ(read.recent_files, (Paths{"/work/a b.lod", "C:\\old\\v1.lod"}));

    EXPECT_EQ(write_extra_preferences(saved, dir.file("missing")).message(),
              kUnableToSavePreferences);
}

TEST(ExtraPreferences, ADamagedOrNewerFileGivesWhatItCan) {
    std::string text =
        "\"integration\",\"simpson\"\ngarbage\n\"colour\",\"blue\"\n\"recent\",\"\"\n";
    for (int i = 1; i <= 6; ++i)
        text += "\"recent\",\"/" + std::to_string(i) + "\"\n";
    const ExtraPreferences read = read_extra_preferences_text(text + "\"recent\",\"/7\",\"extra\"");
    EXPECT_EQ(read.integration_method, IntegrationMethod::exact);
    EXPECT_EQ(read.recent_files, (Paths{"/1", "/2", "/3", "/4", "/5"}));
}

TEST(PreferenceChoices, ARefusedPathKeepsItsOldValueAndHoldsBackNothingElse) {
    TempDir dir;
    const std::string list = dir.file("Beams.LST"), work = dir.file("Work");
    write_test_file(list, "W BEAMS\n");
    std::filesystem::create_directory(work);
    const Preferences old{"/old/beams.lst", "/old/work", "english", false};
    const struct {
        std::string definitions, working;
        std::vector<std::string> messages;
        std::string stored;  // the two paths as stored, refused ones keeping their old values
    } rows[] = {
        {list, work + "/", {}, list + "|" + work + "/"},
        {list, "", {}, list + "|"},  // no working folder at all
        {work, work, {kBeamDefinitionFileMissing}, "/old/beams.lst|" + work},
        {list, list, {kWorkingFilesPathMissing}, list + "|/old/work"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.definitions + " | " + row.working);
        Preferences stored = old;
        EXPECT_EQ(apply_preference_choices(stored, {row.definitions, row.working, "metric", true}),
                  row.messages);
        EXPECT_EQ(stored.beam_definition_path + "|" + stored.working_files_path, row.stored);
        EXPECT_TRUE(stored.default_units == "metric" && stored.outline_only);
    }
}

}  // namespace
}  // namespace flexley
