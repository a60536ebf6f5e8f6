// Whole-file text input and output: bounded reading, and replacing a file only once its new text
// is completely written.
#include "files/text_file.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace flexley {
namespace {

namespace fs = std::filesystem;

Status save_failure(const std::string& path, const char* reason) {
    return Status::failure("Unable to save " + path + ".  " + reason);
}

// A name beside the target that no file uses yet; the target's own name keeps it recognisable
// should the program be killed between writing and renaming.
std::optional<fs::path> temporary_path(const fs::path& target) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        fs::path candidate = target;
        candidate += "." + std::to_string(attempt) + ".tmp";
        std::error_code error;
        if (!fs::exists(fs::symlink_status(candidate, error))) return candidate;
    }
    return std::nullopt;
}

bool write_all(const fs::path& path, std::string_view text) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.flush();
    out.close();
    return !out.fail();
}

// A replaced file keeps the permissions the user gave the old one.
void copy_permissions(const fs::path& from, const fs::path& to) {
    std::error_code error;
    const fs::file_status status = fs::status(from, error);
    if (!error) fs::permissions(to, status.permissions(), error);
}

}  // namespace

std::optional<std::string> read_text_file(const std::string& path, std::size_t max_bytes) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return std::nullopt;
    const auto size = fs::file_size(path, error);
    if (error || size > max_bytes) return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad() || text.size() > max_bytes) return std::nullopt;
    return text;
}

Status replace_file(const std::string& path, std::string_view text) {
    const fs::path target(path);
    const fs::path directory = target.has_parent_path() ? target.parent_path() : fs::path(".");
    std::error_code error;
    if (!fs::is_directory(directory, error))
        return save_failure(path, "The folder does not exist.");
    const bool replacing = fs::exists(target, error);
    if (replacing && !fs::is_regular_file(target, error)) {
        return save_failure(path, "Something other than a file already has that name.");
    }
    // Renaming would replace a read-only file without complaint; the user meant it to stay.
    if (replacing && !std::ofstream(target, std::ios::binary | std::ios::app)) {
        return save_failure(path, "The file is read-only.");
    }
    const std::optional<fs::path> temporary = temporary_path(target);
    if (!temporary || !write_all(*temporary, text)) {
        if (temporary) fs::remove(*temporary, error);
        return save_failure(path,
                            "The file could not be written: the folder may be read-only or the "
                            "disk full.  Any previous file is unchanged.");
    }
    if (replacing) copy_permissions(target, *temporary);
    fs::rename(*temporary, target, error);
    if (error) {
        fs::remove(*temporary, error);
        return save_failure(path,
                            "The file could not be replaced.  The previous file is unchanged.");
    }
    return Status::success();
}

}  // namespace flexley
