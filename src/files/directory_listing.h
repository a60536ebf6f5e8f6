// Reading one folder for the file dialogs: its visible subfolders and files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/status.h"

namespace flexley {

struct ListedFile {
    std::string name;
    std::int64_t modified = 0;  // seconds since 1970-01-01 UTC
};

struct DirectoryListing {
    // A failure says which folder could not be read and why; the lists are then empty.
    Status status = Status::success();
    std::vector<std::string> subdirectories;  // names only, in the file system's order
    std::vector<ListedFile> files;            // regular files, in the file system's order
};

// Hidden entries (names starting with ".") are left out, as the platform's own browsers do.
DirectoryListing list_directory(const std::string& directory);

}  // namespace flexley
