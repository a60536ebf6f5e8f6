// A fresh, empty directory for one test, removed with everything in it when the test ends.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

namespace flexley {

struct TempDir {
    TempDir() { std::filesystem::create_directory(path); }
    ~TempDir() { std::filesystem::remove_all(path, removal_error); }
    std::string file(std::string_view name) const { return (path / name).string(); }

    const std::filesystem::path path = std::filesystem::temp_directory_path() /
                                       ("flexley-test-" + std::to_string(std::random_device()()));
    std::error_code removal_error;  // a directory left behind must not fail the test
};

inline void write_test_file(const std::string& path, std::string_view text) {
    std::ofstream(path, std::ios::binary) << text;
}

inline std::string read_test_file(const std::string& path) {
    return (std::ostringstream() << std::ifstream(path, std::ios::binary).rdbuf()).str();
}

}  // namespace flexley
