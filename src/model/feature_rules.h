// The geometry every feature on the beam obeys, however it arrives: added, edited or read from a
// file. The engine relies on these rules; it cannot solve a beam that breaks them.
#pragma once

#include <string_view>

#include "model/beam_model.h"
#include "model/status.h"

namespace flexley {

inline constexpr const char* kInvalidLoadLocation = "Invalid load location.";
inline constexpr const char* kInvalidStartingLocation = "Invalid starting location.";
inline constexpr const char* kInvalidEndingLocation = "Invalid ending location.";
inline constexpr const char* kInvalidMomentLocation = "Invalid moment location.";
inline constexpr const char* kInvalidSupportLocation = "Invalid support location.";
inline constexpr const char* kSupportExists = "Support already exists at that location.";
inline constexpr const char* kCantileverAtEndsOnly =
    "Cantilever supports may only be placed at the ends of the beam.";
inline constexpr const char* kCantileverCannotMove = "Can not move cantilever supports.";
inline constexpr const char* kNonZeroLoad = "Enter a non-zero load.";
inline constexpr const char* kNonZeroMoment = "Enter a non-zero moment.";
inline constexpr const char* kInvalidLoadMagnitude = "Invalid load magnitude.";
inline constexpr const char* kInvalidMomentMagnitude = "Invalid moment magnitude.";
inline constexpr const char* kUnknownSupportKind = "A support must be simple or cantilever.";

// Each check gives success, or a failure whose message is the dialog's text and whose detail
// names the values and the rule in a sentence, e.g. "support position 300 lies outside the beam
// (0 to 240)." Positions lie on the beam, ends included; magnitudes are finite and non-zero.
Status check_point_load(const BeamModel& model, double magnitude, double location);
// The start lies before the beam's end and the end beyond the start, at most at the beam's end;
// one zero intensity is a triangular load, two are no load.
Status check_distributed_load(const BeamModel& model, double start, double end, double mag_start,
                              double mag_end);
Status check_moment(const BeamModel& model, double magnitude, double location);
// A support is "simp" or "cant", stands on the beam where no other active support stands, and a
// cantilever stands exactly at x = 0 or x = beam_length. `own_index` is the table index of the
// support being moved or checked in place, which does not block itself; 0 for a new support.
Status check_support(const BeamModel& model, double location, std::string_view type,
                     int own_index = 0);

}  // namespace flexley
