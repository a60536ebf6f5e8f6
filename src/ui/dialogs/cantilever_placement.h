// Where a new cantilever support goes: the first at the left end, the second at the right end.
#pragma once

#include "model/beam_model.h"

namespace flexley {

inline constexpr const char* kFirstCantileverAtLeft =
    "First cantilever support must be placed at left end of beam.";

struct CantileverPlacement {
    double location = 0.0;
    const char* refusal = nullptr;  // the message when there is no place for it
};

// The engine integrates from a fixed left end, so the left end is taken first; a simple support
// already standing there leaves no place, as does a third cantilever or an occupied right end.
// Removed supports count for nothing.
CantileverPlacement place_cantilever(const BeamModel& model);

}  // namespace flexley
