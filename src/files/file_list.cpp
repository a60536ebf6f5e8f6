// The file dialogs' rules for their list of files: the filter's pattern, when the filter refreshes
// the list, which names a pattern matches, and the order of the names.
#include "files/file_list.h"

#include <cmath>
#include <cstddef>

namespace flexley {
namespace {

bool has_three_letter_extension(std::string_view text) {
    return text.size() >= 4 && text[text.size() - 4] == '.';
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

void sort_list(std::vector<std::string>& list) {
    const std::size_t n = list.size();
    if (n < 1) return;
    // log2(n) halvings of the gap always end on a gap of 1, which leaves the list fully sorted.
    const int passes = static_cast<int>(std::log(static_cast<double>(n)) / std::log(2.0));
    std::size_t gap = n;
    for (int pass = 0; pass < passes; ++pass) {
        gap /= 2;
        for (std::size_t i = gap; i < n; ++i) {
            std::string item = std::move(list[i]);
            std::size_t j = i;
            // std::string compares characters as unsigned codes: upper case before lower case.
            while (j >= gap && list[j - gap] > item) {
                list[j] = std::move(list[j - gap]);
                j -= gap;
            }
            list[j] = std::move(item);
        }
    }
}

std::string filter_pattern(std::string_view filter_text) {
    if (filter_text.starts_with("*.*")) return "*.*";
    if (filter_text.starts_with("*.lod")) return "*.lod";
    return std::string(filter_text);
}

bool filter_edit_refreshes(std::string_view filter_text) {
    return has_three_letter_extension(filter_text) || filter_text.ends_with(".*");
}

bool filter_leave_refreshes(std::string_view filter_text) {
    return !filter_edit_refreshes(filter_text) && !filter_text.ends_with(")");
}

bool matches_pattern(std::string_view name, std::string_view pattern) {
    if (pattern == "*.*") return true;
    // Greedy matching with one step back to the last star: linear in practice, no recursion.
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t star = std::string_view::npos;
    std::size_t star_name = 0;
    while (n < name.size()) {
        if (p < pattern.size() && (pattern[p] == '?' || lower(pattern[p]) == lower(name[n]))) {
            ++n;
            ++p;
        } else if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            star_name = n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++star_name;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*')
        ++p;
    return p == pattern.size();
}

}  // namespace flexley
