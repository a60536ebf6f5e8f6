// Slope and deflection (both times E x I) in closed form at every grid point.
#pragma once

#include "model/beam_model.h"

namespace flexley {

// Integrates the piecewise cubic moment exactly, twice: the slope is the moment's integral plus
// a starting slope, the deflection minus the slope's integral plus a starting deflection. Both
// constants are zero at a fixed support at x = 0; on simple supports they make the deflection zero
// at the first two supports, and the reactions then make it zero at every other support. Couples
// and supports act at their true positions, on the grid or between grid points.
// Fills slope and deflection at 0..N and their signed maxima, scanned from x = 0 upward, a tie
// keeping the earlier point. Needs the solved reactions.
void integrate_exactly(BeamModel& model);

}  // namespace flexley
