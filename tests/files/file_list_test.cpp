// The file dialogs' list rules: the sort order, the filter's refreshes and patterns, and the
// listing of a folder.
#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "files/directory_listing.h"
#include "files/file_list.h"
#include "temp_dir.h"

namespace flexley {
namespace {

using Names = std::vector<std::string>;

TEST(SortList, SortsInBinaryOrderWhateverTheLength) {
    // Binary order, which std::sort gives strings, puts digits, then capitals, then the underscore,
    // then small letters. Every gap sequence must end fully sorted, including the shortest lists
    // and lengths just off a power of two.
    std::mt19937 random(7);
    for (std::size_t n : {0u, 1u, 2u, 7u, 8u, 9u, 100u}) {
        Names list(n);
        std::generate(list.begin(), list.end(),
                      [&] { return "1B_b"[random() % 4] + std::to_string(random() % 50); });
        Names expected = list;
        std::sort(expected.begin(), expected.end());
        sort_list(list);
        EXPECT_EQ(list, expected) << n << " items";
    }
}

TEST(FilterBox, RefreshesWhenAPatternIsCompleteAndOnLeavingOnlyWhenNotDoneYet) {
    const struct {
        const char* text;
        const char* pattern;
        bool refresh_on_edit, refresh_on_leave;
    } rows[] = {{kLoadFilesFilter, "*.lod", false, false}, {kAllFilesFilter, "*.*", false, false},
                {"beam*.lod", "beam*.lod", true, false},   {"*.da", "*.da", false, true},
                {"*.lodx", "*.lod", false, true},          {"", "", false, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(filter_pattern(row.text), row.pattern);
        EXPECT_EQ(filter_edit_refreshes(row.text), row.refresh_on_edit);
        EXPECT_EQ(filter_leave_refreshes(row.text), row.refresh_on_leave);
    }
}

TEST(FilterBox, PatternsMatchWholeNamesIgnoringCase) {
    const struct {
        const char* name;
        const char* pattern;
        bool matches;
    } rows[] = {{"BEAM.LOD", "*.lod", true},
                {"beam.lod.bak", "*.lod", false},
                {"README", "*.*", true},
                {"beam1.lod", "beam?.lod", true},
                {"beam12.lod", "beam?.lod", false},
                {"abc", "a*b*c*", true},
                {"acb", "a*b*c", false},
                {"x", "", false}};
    for (const auto& row : rows)
        EXPECT_EQ(matches_pattern(row.name, row.pattern), row.matches)
            << row.name << " ~ " << row.pattern;
}

TEST(DirectoryListing, ListsVisibleFilesAndFoldersAndSaysWhyAFolderCannotBeRead) {
    TempDir dir;
    write_test_file(dir.file("beam.lod"), "x");
    write_test_file(dir.file(".hidden.lod"), "x");
    std::filesystem::create_directory(dir.path / "sub");
    std::filesystem::create_directory(dir.path / ".cache");
    const auto stamp = std::filesystem::file_time_type::clock::now() - std::chrono::hours(48);
    std::filesystem::last_write_time(dir.file("beam.lod"), stamp);

    const DirectoryListing listing = list_directory(dir.path.string());
    ASSERT_TRUE(listing.status.ok());
    EXPECT_EQ(listing.subdirectories, Names{"sub"});
    ASSERT_EQ(listing.files.size(), 1u);
    EXPECT_EQ(listing.files[0].name, "beam.lod");
    EXPECT_NEAR(static_cast<double>(std::time(nullptr) - listing.files[0].modified), 48 * 3600.0,
                60.0);

    EXPECT_EQ(list_directory(dir.file("missing")).status.message(),
              "The folder " + dir.file("missing") + " cannot be read.  No such file or directory.");
}

}  // namespace
}  // namespace flexley
