// Whole-text number reading for typed values: "12abc" is not 12.
#include "model/typed_number.h"

#include <charconv>
#include <cmath>

namespace flexley {

std::optional<double> typed_number(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    text = text.substr(first, text.find_last_not_of(" \t") - first + 1);
    // from_chars refuses a leading plus sign, which a user may well type.
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) {
        return {};
    }
    return value;
}

}  // namespace flexley
