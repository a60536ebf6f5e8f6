// Values at a point: reading a typed position and the four result texts at the nearest grid point.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/beam_model.h"
#include "model/status.h"

namespace flexley {

inline constexpr const char* kInvalidLocation = "Invalid location.";

// A typed position in base units: the text must be a number (blanks around it allowed); in
// English units `in_feet` (the "ft." choice) multiplies it by 12, in metric it is metres.
// Nothing when the text is empty or not a finite number.
std::optional<double> typed_position(std::string_view text, bool metric, bool in_feet);

// The typed position when it is a number within 0..beam_length (both ends included).
std::optional<double> position_on_beam(const BeamModel& model, std::string_view text, bool in_feet);

// The grid point nearest to a position: N x / L rounded with halves to even, so that a position
// midway between two points takes the even one. A position off the beam gives the nearer end.
int nearest_point(const BeamModel& model, double position);

// Each a display number with the unit chosen from that value's own size.
struct PointValueTexts {
    std::string moment;
    std::string stress;
    std::string deflection;
    std::string slope;
};

// The results at the grid point nearest to `position` (base units); E and I must be non-zero.
PointValueTexts point_value_texts(const BeamModel& model, double position);

struct PointValuesResult {
    // kInvalidLocation when the text is refused, kResultsOutOfDate when the beam has changed
    // since its run; the texts are then empty.
    Status status;
    PointValueTexts texts;
};

// "Find Values": validates the typed position and the results, then gives the four texts.
PointValuesResult find_point_values(const BeamModel& model, std::string_view text, bool in_feet);

}  // namespace flexley
