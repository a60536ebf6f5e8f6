// The bending moment evaluated term by term at every grid point: the reference for the fast form.
#pragma once

#include <vector>

#include "model/beam_model.h"

namespace flexley {

// M at grid points 0..N from the loads and the solved reactions already in the model.
std::vector<double> direct_moments(const BeamModel& model);

}  // namespace flexley
