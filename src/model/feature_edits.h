// Changing a feature already on the beam: new values and unit codes for a live feature, under the
// same rules as adding, with the kind's drawing scale kept up to date.
#pragma once

#include <string>

#include "model/beam_model.h"
#include "model/status.h"

namespace flexley {

// `number` is the feature number the user knows. A number that does not name a live feature of
// the operation's kind gives "Invalid feature number."; a refused value gives the rule's message
// (feature_rules.h); either way nothing changes. The caller passes the stored value for anything
// the user left as it was, so that an edit never rounds a value through its displayed text.
Status edit_point_load(BeamModel& model, int number, double magnitude, double location,
                       std::string loc_unit, std::string mag_unit);
Status edit_distributed_load(BeamModel& model, int number, double start, double end,
                             double mag_start, double mag_end, std::string loc_unit,
                             std::string mag_unit);
Status edit_moment(BeamModel& model, int number, double magnitude, double location,
                   std::string loc_unit, std::string mag_unit);
// Moves a simple support; a support keeps its kind, and a cantilever support cannot be moved
// ("Can not move cantilever supports.").
Status edit_support(BeamModel& model, int number, double location, std::string loc_unit);

}  // namespace flexley
