// Completing the names a user types for a load file, and testing whether a file is there.
#include "files/file_names.h"

#include <filesystem>
#include <system_error>

namespace flexley {

std::string complete_directory(std::string_view directory) {
    constexpr char separator = std::filesystem::path::preferred_separator;
    std::string result(directory);
    if (result.empty() || result.back() != separator) result += separator;
    return result;
}

std::string complete_file_name(std::string_view file_name) {
    std::string result(file_name);
    if (result.size() < 4 || result[result.size() - 4] != '.') result += ".lod";
    return result;
}

bool file_exists(const std::string& path) {
    std::error_code error;
    return !path.empty() && std::filesystem::is_regular_file(path, error);
}

}  // namespace flexley
