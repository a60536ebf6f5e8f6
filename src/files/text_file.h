// Whole-file text input and output: bounded reading, and replacing a file only once its new text
// is completely written.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/status.h"

namespace flexley {

// The file's whole contents; nothing when it is missing, unreadable, not a regular file or larger
// than `max_bytes` (no file this program reads is anywhere near that large when it is genuine).
std::optional<std::string> read_text_file(const std::string& path, std::size_t max_bytes);

// Writes the text to a temporary file beside `path` and renames it over `path` once it is written
// and closed, so a failure at any point leaves the previous file as it was. The failure message
// names the path and the reason.
Status replace_file(const std::string& path, std::string_view text);

}  // namespace flexley
