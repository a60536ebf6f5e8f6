// Reading what the user typed into the Loading Screen's prompts, refusing what cannot be used.
#pragma once

#include <optional>
#include <string_view>

namespace flexley {

inline constexpr const char* kInvalidFeatureNumberMessage = "Invalid feature number";
inline constexpr const char* kSignificantFiguresRefused =
    "Significant figures must be a whole number from 1 to 15.";
inline constexpr int kMaxSignificantFigures = 15;

// The feature number an answer names: a number v with 0 < v <= feature_count, rounded to the
// nearest whole number (halves to even). Nothing for any other answer, text included.
std::optional<int> feature_number_answer(std::string_view answer, int feature_count);

// A whole number of significant figures the number display can show: 1 to 15, since a double
// holds no more than 15 reliable digits.
std::optional<int> significant_figures_answer(std::string_view answer);

}  // namespace flexley
