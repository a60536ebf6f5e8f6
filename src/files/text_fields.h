// The line and field syntax shared by the load file and the preferences file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace flexley {

inline constexpr std::string_view kLineEnd = "\r\n";
inline constexpr std::string_view kTrueText = "#TRUE#";
inline constexpr std::string_view kFalseText = "#FALSE#";

struct Field {
    std::string_view text;  // without the quotes of a quoted field
    bool quoted = false;
};

// Hands out the lines of a text one at a time; a line ends at LF, with or without a CR before it,
// and the last line needs no line end.
class LineCursor {
  public:
    explicit LineCursor(std::string_view text) : rest_(text) {}

    std::optional<std::string_view> next_line();

    // Whether nothing but blank lines remains, as editors often leave at the end of a file.
    bool only_blank_lines_left() const;

  private:
    std::string_view rest_;
};

// The comma-separated fields of one line: spaces before a field are skipped, a quoted field runs
// to the next double quote and must be followed by a comma or the line end. A line ending in a
// comma ends with an empty field. Nothing for a malformed line.
std::optional<std::vector<Field>> split_fields(std::string_view line);

// A decimal number with optional leading minus, fraction and exponent ("-.5", "3E+07"), also
// inside quotes. Nothing for other text, NaN or infinity texts, or a value beyond a double.
std::optional<double> parse_number(const Field& field);

std::optional<bool> parse_boolean(const Field& field);

// The text of a quoted field; nothing for an unquoted one.
std::optional<std::string_view> parse_string(const Field& field);

std::string quoted(std::string_view text);
std::string_view boolean_text(bool value);

}  // namespace flexley
