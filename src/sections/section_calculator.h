// The moment of inertia calculator: I and c of round and rectangular, solid and tube sections.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/status.h"

namespace flexley {

inline constexpr const char* kInvalidDimensions = "Invalid dimensions";
inline constexpr const char* kEmptyValues = "Empty values.  Calculate values before using.";

// The calculator shows I with at least this many significant figures, because the value is
// copied on into the beam properties and a coarse I would change every stress and deflection.
inline constexpr int kCalculatorMinSigFigs = 6;

enum class CrossSection { round, rectangular };

// The calculator's dimension boxes in the beam properties dialog's display units (inches or
// millimetres). An empty box, or one whose text is not a number, holds nothing.
struct SectionDimensions {
    std::optional<double> outer_diameter = std::nullopt;
    std::optional<double> inner_diameter = std::nullopt;  // round tubes only
    std::optional<double> height = std::nullopt;  // bending acts in the direction of the height
    std::optional<double> width = std::nullopt;
    std::optional<double> wall = std::nullopt;  // rectangular tubes only
};

struct SectionProperties {
    double moment_of_inertia = 0.0;
    double fibre_distance = 0.0;  // c, from the neutral axis to the farthest fibre
};

struct SectionResult {
    Status status = Status::success();
    SectionProperties properties;
};

// I and c of the section, or kInvalidDimensions when a dimension the section needs is missing or
// not positive, or the hollow does not fit inside the outline. A solid section ignores the
// inner diameter and the wall.
SectionResult calculate_section(CrossSection shape, bool tube, const SectionDimensions& dimensions);

struct CalculatorTexts {
    std::string moment_of_inertia;  // rounded to max(sig_figs, kCalculatorMinSigFigs) figures
    std::string fibre_distance;     // not rounded
};

CalculatorTexts calculator_texts(const SectionProperties& properties, int sig_figs);

// "Use These Values" hands on only a calculated pair: an empty result box gives kEmptyValues.
Status check_calculator_texts(std::string_view moment_of_inertia, std::string_view fibre_distance);

}  // namespace flexley
