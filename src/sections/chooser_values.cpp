// Unit conversion of listed sections between the file's units and the chooser's shown units.
#include "sections/chooser_values.h"

#include <cmath>
#include <optional>

#include "model/display.h"
#include "model/typed_number.h"
#include "model/units.h"

namespace flexley {
namespace {

constexpr double kMega = 1e6;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kMillimetresPerMetre = 1000.0;

std::string converted(std::string_view text, double (*convert)(double), int sig_figs) {
    const std::optional<double> value = typed_number(text);
    return value ? display_number(convert(*value), sig_figs) : std::string();
}

}  // namespace

double english_to_chooser_metric_i(double inch4) {
    return inch4 * std::pow(kMillimetresPerInch, 4.0) / kMega;
}

double english_to_chooser_metric_c(double inch) {
    return inch * kInchToMetre * kMillimetresPerMetre;
}

double chooser_metric_to_english_i(double mega_mm4) {
    return mega_mm4 * kMega * std::pow(kMetreToInch / kMillimetresPerMetre, 4.0);
}

double chooser_metric_to_english_c(double mm) {
    return mm * kMetreToInch / kMillimetresPerMetre;
}

AxisTexts shown_axis_values(std::string_view moment_of_inertia, std::string_view fibre_distance,
                            std::string_view unit_flag, bool metric_units, int sig_figs) {
    if (unit_flag == "E" && metric_units) {
        return {converted(moment_of_inertia, english_to_chooser_metric_i, sig_figs),
                converted(fibre_distance, english_to_chooser_metric_c, sig_figs)};
    }
    if (unit_flag == "M" && !metric_units) {
        return {converted(moment_of_inertia, chooser_metric_to_english_i, sig_figs),
                converted(fibre_distance, chooser_metric_to_english_c, sig_figs)};
    }
    return {std::string(moment_of_inertia), std::string(fibre_distance)};
}

std::string properties_moment_of_inertia(std::string_view shown, bool metric_units) {
    if (!metric_units || shown.empty()) return std::string(shown);
    const std::optional<double> value = typed_number(shown);
    return value ? number_text(*value * kMega) : std::string();
}

}  // namespace flexley
