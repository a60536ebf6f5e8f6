// The File menu's list of recently used load files, newest first.
#include "files/recent_files.h"

#include <algorithm>

namespace flexley {

void remember_recent_file(std::vector<std::string>& recent_files, const std::string& path) {
    forget_recent_file(recent_files, path);
    recent_files.insert(recent_files.begin(), path);
    if (recent_files.size() > kMaxRecentFiles) recent_files.resize(kMaxRecentFiles);
}

void forget_recent_file(std::vector<std::string>& recent_files, const std::string& path) {
    std::erase(recent_files, path);
}

}  // namespace flexley
