// Completing the names a user types for a load file, and testing whether a file is there.
#pragma once

#include <string>
#include <string_view>

namespace flexley {

// The directory with the platform's path separator appended when it does not end in one.
std::string complete_directory(std::string_view directory);

// The name with ".lod" appended unless its fourth character from the end is "." (any
// three-letter extension is kept): beam -> beam.lod, beam.txt stays, a.b -> a.b.lod.
std::string complete_file_name(std::string_view file_name);

// True only when `path` names an existing regular file (not a directory).
bool file_exists(const std::string& path);

}  // namespace flexley
