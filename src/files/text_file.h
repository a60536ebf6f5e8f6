// Whole-file text input and output: bounded reading, and replacing a file only once its new text
// is completely written.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/status.h"

namespace flexley {

struct TextRead {
    std::string text;
    std::string problem;  // why there is no text, as a sentence for the user; empty when read
    bool ok() const { return problem.empty(); }
};

// The file's whole contents; a problem when it is missing, unreadable, not a regular file or
// larger than `max_bytes` (no file this program reads is anywhere near that large when genuine).
TextRead read_text_file(const std::string& path, std::size_t max_bytes);

// Writes the text to a temporary file beside `path` and renames it over `path` once it is written
// and on disk, so a failure at any point leaves the previous file as it was, and success is only
// reported once the new file would survive a power cut. The failure message names the path and
// the reason.
Status replace_file(const std::string& path, std::string_view text);

}  // namespace flexley
