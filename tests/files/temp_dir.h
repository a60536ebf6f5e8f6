// A fresh, empty directory for one test, removed with everything in it when the test ends.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

namespace flexley {

class TempDir {
  public:
    TempDir() {
        std::random_device seed;
        std::mt19937_64 random(seed());
        const std::filesystem::path base = std::filesystem::temp_directory_path();
        for (int attempt = 0; attempt < 100; ++attempt) {
            path_ = base / ("flexley-test-" + std::to_string(random()));
            if (std::filesystem::create_directory(path_)) return;
        }
        throw std::runtime_error("no fresh temporary directory");
    }
    ~TempDir() {
        std::error_code error;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, error);
        std::filesystem::remove_all(path_, error);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::string file(std::string_view name) const { return (path_ / name).string(); }

  private:
    std::filesystem::path path_;
};

inline void write_test_file(const std::string& path, std::string_view text) {
    std::ofstream out(path, std::ios::binary);
    out << text;
}

inline std::string read_test_file(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace flexley
