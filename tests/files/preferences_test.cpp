// The preferences file: its one line, its defaults and the messages of its two operations.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "files/preferences.h"
#include "temp_dir.h"

namespace flexley {
namespace {

TEST(Preferences, SavedOnesAreReadAtTheNextStartAndAnythingElseGivesTheDefaults) {
    TempDir dir;
    const std::string current = dir.path.string();
    const std::string defaults =
        "\"" + dir.file("beams.lst") + "\",\"" + current + "\",\"english\",#FALSE#\r\n";
    // The first run finds no file, and must not create one.
    PreferencesResult read = open_preferences(current);
    EXPECT_EQ(read.status.message(), kNoPreferencesFile);
    EXPECT_EQ(preferences_text(read.preferences), defaults);
    EXPECT_TRUE(std::filesystem::is_empty(dir.path));

    ASSERT_TRUE(write_preferences({"c:\\beams.lst", "", "metric", true}, current).ok());
    const std::string saved = "\"c:\\beams.lst\",\"\",\"metric\",#TRUE#\r\n";
    EXPECT_EQ(read_test_file(dir.file(kPreferencesFileName)), saved);
    EXPECT_EQ(preferences_text(open_preferences(current).preferences), saved);

    for (const char* text : {"\"a\",\"b\",\"metric\"", "\"a\",\"b\",\"metric\",#TRUE#,\"c\"",
                             "a,\"b\",\"metric\",#TRUE#", "\"a\",\"b\",\"metric\",\"#TRUE#\""}) {
        write_test_file(dir.file(kPreferencesFileName), text);
        read = open_preferences(current);
        EXPECT_EQ(read.status.message(), kNoPreferencesFile) << text;
        EXPECT_EQ(preferences_text(read.preferences), defaults) << text;
    }
    EXPECT_EQ(write_preferences({}, dir.file("missing")).message(), kUnableToSavePreferences);
}

}  // namespace
}  // namespace flexley
