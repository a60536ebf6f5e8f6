// Reading one folder for the file dialogs: its visible subfolders and files.
#include "files/directory_listing.h"

#include <chrono>
#include <filesystem>
#include <system_error>

namespace flexley {
namespace {

namespace fs = std::filesystem;

Status unreadable(const std::string& directory, const std::error_code& error) {
    return Status::failure("The folder " + directory + " cannot be read.  " + error.message() +
                           ".");
}

std::int64_t seconds_since_epoch(fs::file_time_type time) {
    return std::chrono::duration_cast<std::chrono::seconds>(
               std::chrono::file_clock::to_sys(time).time_since_epoch())
        .count();
}

}  // namespace

DirectoryListing list_directory(const std::string& directory) {
    DirectoryListing listing;
    std::error_code error;
    fs::directory_iterator entries(directory, error);
    // Reading can also fail part way, and a half list would look like a complete one.
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const fs::directory_entry& entry = *entries;
        std::string name = entry.path().filename().string();
        if (name.starts_with('.')) continue;
        // Entries that vanish or cannot be examined meanwhile are simply not listed.
        std::error_code entry_error;
        if (entry.is_directory(entry_error)) {
            listing.subdirectories.push_back(std::move(name));
        } else if (entry.is_regular_file(entry_error)) {
            const fs::file_time_type modified = entry.last_write_time(entry_error);
            listing.files.push_back(
                {std::move(name), entry_error ? 0 : seconds_since_epoch(modified)});
        }
    }
    if (error) return {unreadable(directory, error), {}, {}};
    return listing;
}

}  // namespace flexley
