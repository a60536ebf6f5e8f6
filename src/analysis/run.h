// The analysis commands: preconditions, then the engine steps in order, results into the model.
#pragma once

#include <functional>

#include "model/beam_model.h"
#include "model/beam_settings.h"
#include "model/status.h"

namespace flexley {

// Asked after every 100 passes of the simple-support iteration that have not converged;
// true continues for another 100 passes, false stops with the values reached.
using ContinueQuestion = std::function<bool()>;
inline constexpr const char* kNonConvergenceTitle = "Warning";
inline constexpr const char* kNonConvergenceQuestion =
    "Solution does not appear to be converging. 100 iterations complete.  "
    "Continue for another 100 iterations?";
// The warning of a run whose iteration was stopped: the reactions, moments and stresses are
// right, slope and deflection are not.
inline constexpr const char* kNotConverged =
    "The deflection calculation was stopped before it converged.  Reactions, moments and "
    "stresses are complete, but slope and deflection are those of the last pass and may be "
    "wrong.";

inline constexpr const char* kMissingProperties =
    "Enter beam properties before calculating deflection.";
inline constexpr const char* kUnstableBeam = "Beam is unstable.  Add more support.";
inline constexpr const char* kNoSupport = "Add support to beam before calculating reactions.";
inline constexpr const char* kSingularMatrix = "Singular matrix in routine LU_decomp.";
// The reaction system has moment unknowns for fixed supports at the two ends only.
inline constexpr const char* kCantileverPlacement =
    "Cantilever supports may only be placed at the ends of the beam.";

// "Calculate Stress and Deflection": reactions, moment, stress, slope and deflection, by the
// model's integration method. A failed precondition returns its message and changes nothing.
// Once the engine starts, the results are stale until it completes: a singular reaction system
// returns its message with the results stale; a completed run makes them valid, or partial with
// a warning status when the non-convergence question was answered No. Allocates nothing. The
// reaction texts are made afterwards by the caller (reaction_text.h).
Status run_calculation(BeamModel& model, const ContinueQuestion& continue_iterating);

// "Calculate Support Reactions Only": no beam-property check, no moments or stresses; the
// integration works on the moment array left by the previous run.
Status run_reactions_only(BeamModel& model, const ContinueQuestion& continue_iterating);

// The results window's recalculation after a unit switch: the engine steps without the
// beam-property and support checks.
Status recalculate(BeamModel& model, const ContinueQuestion& continue_iterating);

}  // namespace flexley
