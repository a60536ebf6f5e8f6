// The beam's own settings (length, section properties, calculation resolution) and the staleness
// of results that every change of the beam brings.
#pragma once

#include "model/beam_model.h"
#include "model/status.h"

namespace flexley {

inline constexpr const char* kInvalidBeamLength =
    "Enter a positive non-zero value for beam length.";
inline constexpr const char* kLengthWithFeatures =
    "The beam length can only be changed while no features are on the beam.";
inline constexpr const char* kInvalidSectionProperties =
    "Moment of inertia, modulus of elasticity and fibre distance must each be zero or a positive "
    "number.";
inline constexpr const char* kInvalidResolution =
    "Resolution must be a whole number from 10 to 200,000.";

// Results computed before a change describe another beam; every change of the beam calls this.
void mark_results_stale(BeamModel& model);

// The start dialog's length; English positions are shown in inches on beams shorter than 48.
// Refused for a length that is not above 0, and while live features stand on the beam, whose
// positions were checked against the old length.
Status set_beam_length(BeamModel& model, double length);

// I, E and c, kept in single precision; 0 means "not entered".
Status set_section_properties(BeamModel& model, double inertia, double modulus, double fibre);

// A whole number from 10 to 200,000: the grid counts whole intervals and the result arrays hold
// 200,001 points.
bool is_allowed_resolution(double resolution);
Status set_resolution(BeamModel& model, double resolution);

// The whole number from 10 to 200,000 nearest to `resolution`, for a value a file brings.
float nearest_allowed_resolution(double resolution);

}  // namespace flexley
