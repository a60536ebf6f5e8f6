// Slope and deflection (both times E x I) by trapezoidal integration of the moment array.
#pragma once

#include "analysis/run.h"
#include "model/beam_model.h"

namespace flexley {

// Starts with zero slope and deflection at the fixed support at x0 and integrates outwards.
void integrate_from_cantilever(BeamModel& model, double x0);

// For a beam on simple supports: shoots from the support at the smaller of p1, p2 with zero
// deflection, correcting the starting slope at least once and until the deflection at the other
// support lies strictly within +-1, then integrates the overhangs. After every 100 unconverged
// passes `continue_iterating` is asked (an empty function counts as No); No returns at once with
// the values of the last pass. Returns whether the iteration converged.
bool integrate_between_supports(BeamModel& model, double p1, double p2,
                                const ContinueQuestion& continue_iterating);

}  // namespace flexley
