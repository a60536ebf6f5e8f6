// The file dialogs' rules for their list of files: the filter's pattern, when the filter refreshes
// the list, which names a pattern matches, and the order of the names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace flexley {

inline constexpr const char* kLoadFilesFilter = "*.lod (Flexley files)";
inline constexpr const char* kAllFilesFilter = "*.* (all files)";

// Sorts in place in binary order (character codes, so "B" comes before "a"), by the Shell sort
// whose passes halve the gap down to 1.
void sort_list(std::vector<std::string>& list);

// The wildcard pattern a filter text stands for: "*.*" and "*.lod" for texts that start with
// them (the two list items), else the text as typed.
std::string filter_pattern(std::string_view filter_text);

// Whether typing has just completed a pattern: a three-letter extension ("*.dat") or ".*".
bool filter_edit_refreshes(std::string_view filter_text);

// Whether leaving the filter box must refresh the list: not when typing refreshed it already,
// nor for one of the list's items, whose choice refreshed it.
bool filter_leave_refreshes(std::string_view filter_text);

// Whether a file name matches a pattern of "*" (any run of characters) and "?" (any one); case
// is ignored, as on the file systems load files come from. "*.*" matches every name, with or
// without a dot.
bool matches_pattern(std::string_view name, std::string_view pattern);

}  // namespace flexley
