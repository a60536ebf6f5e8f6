// The File menu's list of recently used load files, newest first.
#pragma once

#include <string>
#include <vector>

namespace flexley {

inline constexpr int kMaxRecentFiles = 5;

// Puts `path` first, removing an earlier mention of it and the oldest entries beyond five.
void remember_recent_file(std::vector<std::string>& recent_files, const std::string& path);

// Drops `path` from the list, as when the file has gone.
void forget_recent_file(std::vector<std::string>& recent_files, const std::string& path);

}  // namespace flexley
