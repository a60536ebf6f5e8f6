// The indentation, rules and section openings that every part of the text report shares.
#pragma once

#include <string>
#include <vector>

namespace flexley {

inline constexpr const char* kSectionIndent = "    ";
inline constexpr const char* kItemIndent = "        ";

// A rule of hyphens under a section heading (4 blanks in) or a subsection heading (8 blanks in).
inline std::string section_rule(std::size_t hyphens) {
    return kSectionIndent + std::string(hyphens, '-');
}
inline std::string subsection_rule(std::size_t hyphens) {
    return kItemIndent + std::string(hyphens, '-');
}

// Each section opens with two empty lines, its heading and its rule.
inline void open_section(std::vector<std::string>& lines, const std::string& heading,
                         std::size_t rule) {
    lines.emplace_back();
    lines.emplace_back();
    lines.push_back(kSectionIndent + heading);
    lines.push_back(section_rule(rule));
}

}  // namespace flexley
