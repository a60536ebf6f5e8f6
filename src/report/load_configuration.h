// The load configuration section of the text report: the loads and supports still on the beam.
#pragma once

#include <string>
#include <vector>

#include "model/beam_model.h"

namespace flexley {

// Appends the section: point loads, distributed loads, moments and supports in table order, each
// in the units its feature is shown in; removed features are left out. With `with_reactions`
// every support solved by the last run ends with its reaction text.
void append_load_configuration(std::vector<std::string>& lines, const BeamModel& model,
                               bool with_reactions);

}  // namespace flexley
