// Completing typed file names, testing for files, and saving without ever losing the old file.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "files/file_names.h"
#include "files/load_file.h"
#include "sample_beams.h"
#include "temp_dir.h"

namespace flexley {
namespace {

namespace fs = std::filesystem;

struct NameCase {
    const char* typed;
    const char* completed;
};

class FileNameCompletion : public ::testing::TestWithParam<NameCase> {};

TEST_P(FileNameCompletion, AppendsLodUnlessAThreeLetterExtensionIsThere) {
    EXPECT_EQ(complete_file_name(GetParam().typed), GetParam().completed);
}

INSTANTIATE_TEST_SUITE_P(
    Names, FileNameCompletion,
    ::testing::Values(NameCase{"beam", "beam.lod"}, NameCase{"beam.txt", "beam.txt"},
                      NameCase{"beam.lod", "beam.lod"}, NameCase{"a.b", "a.b.lod"},
                      NameCase{"abc", "abc.lod"}, NameCase{"x.lo", "x.lo.lod"},
                      NameCase{"beam.lod2", "beam.lod2.lod"}, NameCase{".lod", ".lod"}));

TEST(DirectoryCompletion, AppendsTheSeparatorOnlyWhenMissing) {
    const std::string separator(1, fs::path::preferred_separator);
    EXPECT_EQ(complete_directory("work"), "work" + separator);
    EXPECT_EQ(complete_directory("work" + separator), "work" + separator);
}

TEST(FileExists, OnlyForRegularFiles) {
    TempDir dir;
    write_test_file(dir.file("beam.lod"), "x");
    fs::create_directory(dir.path() / "sub.lod");
    EXPECT_TRUE(file_exists(dir.file("beam.lod")));
    EXPECT_FALSE(file_exists(dir.file("sub.lod")));
    EXPECT_FALSE(file_exists(dir.file("other.lod")));
    EXPECT_FALSE(file_exists(""));
}

TEST(AtomicSave, ReplacesALongerOldFileCompletely) {
    TempDir dir;
    const std::string path = dir.file("beam.lod");
    write_test_file(path, load_configuration_text(*english_beam()));
    ASSERT_TRUE(write_load_configuration(*worked_example_beam(), path).ok());
    EXPECT_EQ(read_test_file(path), kWorkedExampleText);
    EXPECT_EQ(std::distance(fs::directory_iterator(dir.path()), fs::directory_iterator()), 1)
        << "a temporary file was left behind";
}

TEST(AtomicSave, KeepsThePermissionsOfTheReplacedFile) {
    TempDir dir;
    const std::string path = dir.file("beam.lod");
    write_test_file(path, "old");
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_TRUE(write_load_configuration(*worked_example_beam(), path).ok());
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

// Whether permissions bind this process: a privileged user writes into read-only places anyway.
bool permissions_are_enforced(const TempDir& dir) {
    const fs::path probe_dir = dir.path() / "probe";
    fs::create_directory(probe_dir);
    fs::permissions(probe_dir, fs::perms::owner_read | fs::perms::owner_exec);
    write_test_file((probe_dir / "x").string(), "x");
    const bool enforced = !fs::exists(probe_dir / "x");
    fs::permissions(probe_dir, fs::perms::owner_all);
    fs::remove_all(probe_dir);
    return enforced;
}

enum class Obstacle { missing_directory, target_is_directory, read_only_file, read_only_directory };

struct SaveFailureCase {
    const char* name;
    Obstacle obstacle;
};

class AtomicSaveFailure : public ::testing::TestWithParam<SaveFailureCase> {};

TEST_P(AtomicSaveFailure, LeavesTheOldFileAndSaysWhy) {
    TempDir dir;
    const Obstacle obstacle = GetParam().obstacle;
    const bool needs_permissions =
        obstacle == Obstacle::read_only_file || obstacle == Obstacle::read_only_directory;
    if (needs_permissions && !permissions_are_enforced(dir)) {
        GTEST_SKIP() << "file permissions do not bind this user";
    }
    std::string path = dir.file("beam.lod");
    const std::string old_text = "old contents";
    switch (obstacle) {
        case Obstacle::missing_directory:
            path = dir.file("missing/beam.lod");
            break;
        case Obstacle::target_is_directory:
            fs::create_directory(path);
            break;
        case Obstacle::read_only_file:
            write_test_file(path, old_text);
            fs::permissions(path, fs::perms::owner_read);
            break;
        case Obstacle::read_only_directory:
            write_test_file(path, old_text);
            fs::permissions(dir.path(), fs::perms::owner_read | fs::perms::owner_exec);
            break;
    }
    const Status status = write_load_configuration(*worked_example_beam(), path);
    fs::permissions(dir.path(), fs::perms::owner_all);
    EXPECT_FALSE(status.ok());
    EXPECT_NE(status.message().find(path), std::string::npos) << status.message();
    if (needs_permissions) {
        EXPECT_EQ(read_test_file(path), old_text);
    }
    const auto entries =
        std::distance(fs::directory_iterator(dir.path()), fs::directory_iterator());
    EXPECT_EQ(entries, obstacle == Obstacle::missing_directory ? 0 : 1)
        << "a temporary file was left behind";
}

INSTANTIATE_TEST_SUITE_P(
    Obstacles, AtomicSaveFailure,
    ::testing::Values(SaveFailureCase{"missing_directory", Obstacle::missing_directory},
                      SaveFailureCase{"target_is_directory", Obstacle::target_is_directory},
                      SaveFailureCase{"read_only_file", Obstacle::read_only_file},
                      SaveFailureCase{"read_only_directory", Obstacle::read_only_directory}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace flexley
