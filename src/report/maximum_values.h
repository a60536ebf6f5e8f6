// The texts of the maximum values read-out: each result maximum and where it occurs.
#pragma once

#include <string>

#include "model/beam_model.h"
#include "model/status.h"

namespace flexley {

// Each value text is a display number with its unit ("-125 lb.-ft."), each position text the
// same for the position along the beam ("15 ft.").
struct MaximumValueTexts {
    std::string moment;
    std::string moment_at;
    std::string stress;
    std::string stress_at;
    std::string deflection;
    std::string deflection_at;
    std::string slope;
    std::string slope_at;
};

struct MaximumValuesResult {
    Status status;  // kResultsOutOfDate when the beam has changed since its run; texts then empty
    MaximumValueTexts texts;
};

// Formats the maxima of the last analysis run; E and I must be non-zero.
MaximumValuesResult maximum_value_texts(const BeamModel& model);

}  // namespace flexley
