// Reading what the user typed into the Loading Screen's prompts, refusing what cannot be used.
#include "ui/loading/prompt_answers.h"

#include <cmath>

#include "model/typed_number.h"

namespace flexley {

std::optional<int> feature_number_answer(std::string_view answer, int feature_count) {
    const std::optional<double> value = typed_number(answer);
    if (!value || *value <= 0.0 || *value > feature_count) return std::nullopt;
    // nearbyint rounds halves to even in the default rounding mode; 0.5 thus names no feature.
    const int number = static_cast<int>(std::nearbyint(*value));
    if (number < 1) return std::nullopt;
    return number;
}

std::optional<int> significant_figures_answer(std::string_view answer) {
    const std::optional<double> value = typed_number(answer);
    if (!value || *value != std::floor(*value)) return std::nullopt;
    if (*value < 1.0 || *value > kMaxSignificantFigures) return std::nullopt;
    return static_cast<int>(*value);
}

}  // namespace flexley
