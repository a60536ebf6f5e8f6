// The preferences file: its one line, its defaults and the messages of its two operations.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "files/preferences.h"
#include "temp_dir.h"

namespace flexley {
namespace {

const std::string kSeparator(1, std::filesystem::path::preferred_separator);

void expect_same(const Preferences& a, const Preferences& b) {
    EXPECT_EQ(a.beam_definition_path, b.beam_definition_path);
    EXPECT_EQ(a.working_files_path, b.working_files_path);
    EXPECT_EQ(a.default_units, b.default_units);
    EXPECT_EQ(a.outline_only, b.outline_only);
}

TEST(PreferenceDefaults, FollowTheCurrentDirectory) {
    const std::string dir = kSeparator + "work";
    expect_same(default_preferences(dir), {dir + kSeparator + "beams.lst", dir, "english", false});
    expect_same(default_preferences(dir + kSeparator),
                {dir + kSeparator + "beams.lst", dir + kSeparator, "english", false});
}

TEST(PreferencesText, IsOneLineOfFourFields) {
    const Preferences preferences{"c:\\beams\\beams.lst", "c:\\beams\\work", "metric", false};
    EXPECT_EQ(preferences_text(preferences),
              "\"c:\\beams\\beams.lst\",\"c:\\beams\\work\",\"metric\",#FALSE#\r\n");
    const PreferencesResult read = read_preferences_text(preferences_text(preferences), "x");
    ASSERT_TRUE(read.status.ok());
    expect_same(read.preferences, preferences);
}

class PreferencesRefused : public ::testing::TestWithParam<const char*> {};

TEST_P(PreferencesRefused, GiveTheDefaultsAndTheMessage) {
    const PreferencesResult read = read_preferences_text(GetParam(), "/work");
    EXPECT_EQ(read.status.message(), kNoPreferencesFile);
    expect_same(read.preferences, default_preferences("/work"));
}

INSTANTIATE_TEST_SUITE_P(Faults, PreferencesRefused,
                         ::testing::Values("", "\"a\",\"b\",\"metric\"\r\n",
                                           "\"a\",\"b\",\"metric\",#TRUE#,\"extra\"\r\n",
                                           "a,\"b\",\"metric\",#TRUE#\r\n",
                                           "\"a\",\"b\",\"metric\",\"#TRUE#\"\r\n",
                                           "\"a\",\"b\",\"metric\",1\r\n", "\"a,\"b\"\r\n"));

TEST(PreferencesFile, FirstRunGivesDefaultsAndCreatesNothing) {
    TempDir dir;
    const PreferencesResult read = open_preferences(dir.path().string());
    EXPECT_EQ(read.status.message(), kNoPreferencesFile);
    expect_same(read.preferences, default_preferences(dir.path().string()));
    EXPECT_TRUE(std::filesystem::is_empty(dir.path()));
}

TEST(PreferencesFile, WrittenPreferencesAreReadAtTheNextStart) {
    TempDir dir;
    const Preferences preferences{"/data/beams.lst", "", "metric", true};
    ASSERT_TRUE(write_preferences(preferences, dir.path().string()).ok());
    EXPECT_EQ(read_test_file(dir.file(kPreferencesFileName)), preferences_text(preferences));
    const PreferencesResult read = open_preferences(dir.path().string());
    ASSERT_TRUE(read.status.ok());
    expect_same(read.preferences, preferences);
}

TEST(PreferencesFile, FailedWriteSaysSo) {
    TempDir dir;
    const Status status = write_preferences(default_preferences("/"), dir.file("missing"));
    EXPECT_EQ(status.message(), kUnableToSavePreferences);
}

}  // namespace
}  // namespace flexley
