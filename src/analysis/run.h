// The analysis commands: preconditions, then the engine steps in order, results into the model.
#pragma once

#include <functional>

#include "model/beam_model.h"
#include "model/status.h"

namespace flexley {

// Asked after every 100 passes of the simple-support iteration that have not converged;
// true continues for another 100 passes, false stops with the values reached.
using ContinueQuestion = std::function<bool()>;
inline constexpr const char* kNonConvergenceTitle = "Warning";
inline constexpr const char* kNonConvergenceQuestion =
    "Solution does not appear to be converging. 100 iterations complete.  "
    "Continue for another 100 iterations?";

inline constexpr const char* kMissingProperties =
    "Enter beam properties before calculating deflection.";
inline constexpr const char* kUnstableBeam = "Beam is unstable.  Add more support.";
inline constexpr const char* kNoSupport = "Add support to beam before calculating reactions.";
inline constexpr const char* kSingularMatrix = "Singular matrix in routine LU_decomp.";
// The result arrays hold 200,001 points and the reaction system two fixed supports, so the
// engine refuses to run outside those limits whatever the model says.
inline constexpr const char* kResolutionOutOfRange = "Resolution must be between 10 and 200,000.";
inline constexpr const char* kTooManyCantilevers =
    "Cantilever supports may only be placed at the ends of the beam.";

// "Calculate Stress and Deflection": reactions, moment, stress, slope and deflection.
// A failed precondition or a singular reaction system returns its message; results_valid is set
// only by a completed run. Allocates nothing on success. The reaction texts are made afterwards
// by the caller (reaction_text.h), so that the run itself needs no strings.
Status run_calculation(BeamModel& model, const ContinueQuestion& continue_iterating);

// "Calculate Support Reactions Only": no beam-property check, no moments or stresses; the
// integration works on the moment array left by the previous run.
Status run_reactions_only(BeamModel& model, const ContinueQuestion& continue_iterating);

// The results window's recalculation after a unit switch: the engine steps without preconditions.
Status recalculate(BeamModel& model, const ContinueQuestion& continue_iterating);

}  // namespace flexley
