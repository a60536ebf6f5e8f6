// The line and field syntax shared by the load file and the preferences file.
#include "files/text_fields.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace flexley {

std::optional<std::string_view> LineCursor::next_line() {
    if (rest_.empty()) return std::nullopt;
    const std::size_t end = rest_.find('\n');
    std::string_view line = rest_.substr(0, end);
    rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

bool LineCursor::only_blank_lines_left() const {
    return rest_.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::optional<std::vector<Field>> split_fields(std::string_view line) {
    std::vector<Field> fields;
    std::size_t i = 0;
    while (true) {
        while (i < line.size() && line[i] == ' ')
            ++i;
        Field field;
        std::size_t end;
        if (i < line.size() && line[i] == '"') {
            const std::size_t close = line.find('"', i + 1);
            if (close == std::string_view::npos) return std::nullopt;
            field = {line.substr(i + 1, close - i - 1), true};
            end = close + 1;
            if (end < line.size() && line[end] != ',') return std::nullopt;
        } else {
            end = std::min(line.find(',', i), line.size());
            field = {line.substr(i, end - i), false};
        }
        fields.push_back(field);
        if (end >= line.size()) return fields;
        i = end + 1;
    }
}

std::optional<double> parse_number(const Field& field) {
    // from_chars takes neither blanks nor a plus sign; "inf" and "nan" fail the finiteness test.
    const std::string_view text = field.text;
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<bool> parse_boolean(const Field& field) {
    if (field.quoted) return std::nullopt;
    if (field.text == kTrueText) return true;
    if (field.text == kFalseText) return false;
    return std::nullopt;
}

std::optional<std::string_view> parse_string(const Field& field) {
    if (!field.quoted) return std::nullopt;
    return field.text;
}

std::string quoted(std::string_view text) {
    std::string result;
    result.reserve(text.size() + 2);
    result += '"';
    result += text;
    result += '"';
    return result;
}

std::string_view boolean_text(bool value) {
    return value ? kTrueText : kFalseText;
}

}  // namespace flexley
