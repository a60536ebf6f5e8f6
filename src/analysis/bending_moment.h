// Bending moment and bending stress at every grid point, from the loads and the solved reactions.
#pragma once

#include "model/beam_model.h"

namespace flexley {

// Fills moment(0..N), max_moment (signed; the earlier point wins a tie) and max_moment_at.
// Needs the reactions of collect_supports and lu_solve.
void compute_moments(BeamModel& model);

// Fills stress(0..N) = c x moment / I, max_stress (absolute) and max_stress_at.
void compute_stresses(BeamModel& model);

}  // namespace flexley
