// Number-to-text conversion and display rounding on the decimal digits of a number's text.
#include "model/display.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace flexley {
namespace {

// A finite non-zero magnitude as decimal digits d0.d1d2... times 10^exponent.
struct Decimal {
    std::string digits;
    int exponent = 0;
};

// to_chars, unlike printf, ignores the locale: a file must never get a decimal comma.
Decimal to_decimal(double magnitude, int digits) {
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, magnitude,
                                   std::chars_format::scientific, digits - 1)
                         .ptr;
    const std::string text(buffer, end);
    const auto e = text.find('e');
    Decimal decimal;
    for (std::size_t i = 0; i < e; ++i) {
        if (text[i] != '.') decimal.digits += text[i];
    }
    decimal.exponent = std::atoi(text.c_str() + e + 1);
    return decimal;
}

void trim_trailing_zeros(std::string& digits) {
    const auto last = digits.find_last_not_of('0');
    digits.erase(last == std::string::npos ? 1 : last + 1);
}

std::string plain_form(const Decimal& decimal) {
    const auto& digits = decimal.digits;
    const int count = static_cast<int>(digits.size());
    if (decimal.exponent < 0) {
        return "0." + std::string(-decimal.exponent - 1, '0') + digits;
    }
    const int integer_digits = decimal.exponent + 1;
    if (count <= integer_digits) return digits + std::string(integer_digits - count, '0');
    return digits.substr(0, integer_digits) + "." + digits.substr(integer_digits);
}

std::string exponent_form(const Decimal& decimal) {
    std::string text = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1) text += "." + decimal.digits.substr(1);
    char exponent[16];
    std::snprintf(exponent, sizeof exponent, "E%c%02d", decimal.exponent < 0 ? '-' : '+',
                  std::abs(decimal.exponent));
    return text + exponent;
}

// Keeps the first `keep` digits, ties to the even digit; a carry out of the first digit
// raises the exponent (9.99 to two digits is 10).
Decimal round_digits(Decimal decimal, int keep) {
    auto& digits = decimal.digits;
    if (static_cast<int>(digits.size()) <= keep) return decimal;
    const std::string rest = digits.substr(keep);
    digits.erase(keep);
    const bool above_half =
        rest[0] > '5' || (rest[0] == '5' && rest.find_first_not_of('0', 1) != std::string::npos);
    const bool tie = rest[0] == '5' && !above_half;
    const bool odd = (digits.back() - '0') % 2 == 1;
    if (!above_half && !(tie && odd)) return decimal;
    int i = keep - 1;
    while (i >= 0 && digits[i] == '9')
        digits[i--] = '0';
    if (i >= 0) {
        ++digits[i];
    } else {
        digits.insert(digits.begin(), '1');
        digits.pop_back();
        ++decimal.exponent;
    }
    return decimal;
}

}  // namespace

std::string number_text(double value, int max_digits) {
    if (std::isnan(value)) return "NaN";
    if (std::isinf(value)) return value < 0 ? "-Inf" : "Inf";
    if (value == 0.0) return "0";
    Decimal decimal = to_decimal(std::fabs(value), std::clamp(max_digits, 1, 17));
    trim_trailing_zeros(decimal.digits);
    const bool plain = decimal.exponent >= -5 && decimal.exponent < 15;
    const std::string text = plain ? plain_form(decimal) : exponent_form(decimal);
    return value < 0 ? "-" + text : text;
}

double sig_round(double value, int sig_figs) {
    if (!std::isfinite(value) || value == 0.0) return value;
    // The value's own 15-digit text is what gets rounded, so a tie is a tie in decimal.
    const Decimal rounded = round_digits(to_decimal(std::fabs(value), 15), std::max(sig_figs, 1));
    const std::string text = exponent_form(rounded);
    double magnitude = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), magnitude);
    return value < 0 ? -magnitude : magnitude;
}

std::string display_number(double value, int sig_figs) {
    return number_text(sig_round(value, sig_figs));
}

}  // namespace flexley
