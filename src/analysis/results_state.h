// Whether the model's results belong to the beam as it is now.
#pragma once

#include "model/beam_model.h"

namespace flexley {

// Shown instead of a read-out when the beam has changed since its last run.
inline constexpr const char* kResultsOutOfDate =
    "The beam has changed since it was last calculated.  Calculate again to see its results.";

// Valid results, or partial ones whose run was stopped unconverged and said so: either belongs to
// the beam as it is now. Stale results never reach the user.
inline bool results_available(const BeamModel& model) {
    return model.results_valid || model.results_partial;
}

}  // namespace flexley
