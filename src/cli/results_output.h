// What analyze and table print: the summary, the JSON object and the CSV of every grid point.
#pragma once

#include <ostream>
#include <vector>

#include "model/beam_model.h"
#include "model/status.h"

namespace flexley::cli {

// A short summary for a person: the beam, each reaction and the four maxima, as the program
// shows them (display precision, units chosen by size).
void print_summary(const BeamModel& model, std::ostream& out);

// One JSON object with full-precision values in base units; slope and deflection physical
// (divided by E x I), the deflection negative downward, the slope in radians. `at` holds
// positions on the beam, each reported at its nearest grid point. `status` is the run's: the
// object names the integration method and says whether the deflection converged.
void print_json(const BeamModel& model, const std::vector<double>& at, const Status& status,
                std::ostream& out);

// x,moment,stress,slope,deflection for every grid point, in the same units and signs as the JSON.
void print_table(const BeamModel& model, std::ostream& out);

}  // namespace flexley::cli
