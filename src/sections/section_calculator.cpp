// Closed-form I and c of the calculator's four cross-sections, with their validity rules.
#include "sections/section_calculator.h"

#include <algorithm>
#include <cmath>

#include "model/display.h"

namespace flexley {
namespace {

// The calculator has always used this rounding of pi; changing it would change shown values.
constexpr double kPi = 3.14159265;

bool positive(const std::optional<double>& dimension) {
    return dimension.has_value() && *dimension > 0.0;
}

SectionResult invalid() {
    return {Status::failure(kInvalidDimensions), {}};
}

SectionResult valid(double moment_of_inertia, double fibre_distance) {
    // Dimensions near the largest double overflow to an infinite I, which nothing can use.
    if (!std::isfinite(moment_of_inertia)) return invalid();
    return {Status::success(), {moment_of_inertia, fibre_distance}};
}

SectionResult round_section(bool tube, const SectionDimensions& d) {
    if (!positive(d.outer_diameter)) return invalid();
    const double outer = *d.outer_diameter / 2.0;
    if (!tube) return valid(kPi * std::pow(outer, 4.0) / 4.0, outer);
    if (!positive(d.inner_diameter) || *d.inner_diameter >= *d.outer_diameter) return invalid();
    const double inner = *d.inner_diameter / 2.0;
    return valid(kPi * (std::pow(outer, 4.0) - std::pow(inner, 4.0)) / 4.0, outer);
}

SectionResult rectangular_section(bool tube, const SectionDimensions& d) {
    if (!positive(d.height) || !positive(d.width)) return invalid();
    const double height = *d.height;
    const double width = *d.width;
    const double full = width * std::pow(height, 3.0);
    if (!tube) return valid(full / 12.0, height / 2.0);
    if (!positive(d.wall)) return invalid();
    const double walls = 2.0 * *d.wall;
    if (walls >= width || walls >= height) return invalid();
    const double hollow = (width - walls) * std::pow(height - walls, 3.0);
    return valid((full - hollow) / 12.0, height / 2.0);
}

}  // namespace

SectionResult calculate_section(CrossSection shape, bool tube,
                                const SectionDimensions& dimensions) {
    return shape == CrossSection::round ? round_section(tube, dimensions)
                                        : rectangular_section(tube, dimensions);
}

CalculatorTexts calculator_texts(const SectionProperties& properties, int sig_figs) {
    const int figures = std::max(sig_figs, kCalculatorMinSigFigs);
    return {display_number(properties.moment_of_inertia, figures),
            number_text(properties.fibre_distance)};
}

Status check_calculator_texts(std::string_view moment_of_inertia, std::string_view fibre_distance) {
    if (moment_of_inertia.empty() || fibre_distance.empty()) {
        return Status::failure(kEmptyValues);
    }
    return Status::success();
}

}  // namespace flexley
