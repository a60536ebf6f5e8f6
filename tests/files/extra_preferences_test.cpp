// The settings file beside beams.prf, and the recent files list it keeps.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "files/extra_preferences.h"
#include "files/preferences.h"
#include "files/recent_files.h"
#include "temp_dir.h"

namespace flexley {
namespace {

using Paths = std::vector<std::string>;

TEST(RecentFiles, NewestFirstWithoutRepeatsAndAtMostFive) {
    Paths recent;
    for (const char* path : {"/a", "/b", "/c", "/a", "/d", "/e", "/f"})
        remember_recent_file(recent, path);
    EXPECT_EQ(recent, (Paths{"/f", "/e", "/d", "/a", "/c"}));
    forget_recent_file(recent, "/d");
    forget_recent_file(recent, "/never");
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
    const ExtraPreferences read = read_extra_preferences_text(
        "\"integration\",\"simpson\"\n"
        "garbage\n"
        "\"colour\",\"blue\"\n"
        "\"recent\",\"\"\n"
        "\"recent\",\"/1\"\n\"recent\",\"/2\"\n\"recent\",\"/3\"\n"
        "\"recent\",\"/4\"\n\"recent\",\"/5\"\n\"recent\",\"/6\"\n"
        "\"recent\",\"/7\",\"extra\"");
    EXPECT_EQ(read.integration_method, IntegrationMethod::exact);
    EXPECT_EQ(read.recent_files, (Paths{"/1", "/2", "/3", "/4", "/5"}));
}

}  // namespace
}  // namespace flexley
