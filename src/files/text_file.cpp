// Whole-file text input and output: bounded reading, and replacing a file only once its new text
// is completely written.
#include "files/text_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
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

// Written, flushed to the disk and closed; the rename that follows must never expose a file whose
// blocks are not yet stored.
bool write_all(const fs::path& path, std::string_view text) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0) return false;
    bool written = true;
    while (written && !text.empty()) {
        const ssize_t count = ::write(fd, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        written = count > 0;
        if (written) text.remove_prefix(static_cast<std::size_t>(count));
    }
    written = written && ::fsync(fd) == 0;
    return ::close(fd) == 0 && written;
}

// The rename itself lives in the directory; until the directory is on disk a power cut could
// bring back the old file. File systems that cannot sync a directory answer EINVAL: they order
// the rename themselves.
bool sync_directory(const fs::path& directory) {
    const int fd = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return false;
    const bool synced = ::fsync(fd) == 0 || errno == EINVAL;
    return ::close(fd) == 0 && synced;
}

// A replaced file keeps the permissions the user gave the old one.
void copy_permissions(const fs::path& from, const fs::path& to) {
    std::error_code error;
    const fs::file_status status = fs::status(from, error);
    if (!error) fs::permissions(to, status.permissions(), error);
}

}  // namespace

TextRead read_text_file(const std::string& path, std::size_t max_bytes) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) return {"", "The file does not exist."};
    if (fs::is_directory(status)) return {"", "It is a folder, not a file."};
    if (!fs::is_regular_file(status)) return {"", "It is not a regular file."};
    const std::string too_large = "It is larger than " + std::to_string(max_bytes) +
                                  " bytes, far beyond any genuine file of its kind.";
    const auto size = fs::file_size(path, error);
    if (!error && size > max_bytes) return {"", too_large};
    std::ifstream in(path, std::ios::binary);
    if (!in || error) return {"", "It could not be opened for reading."};
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) return {"", "It could not be read to its end."};
    if (text.size() > max_bytes) return {"", too_large};
    return {std::move(text), ""};
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
    if (!sync_directory(directory)) {
        return save_failure(path,
                            "The file was written, but the system could not confirm that it is "
                            "safely on disk.");
    }
    return Status::success();
}

}  // namespace flexley
