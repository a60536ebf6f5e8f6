// The reactions of the last run, one entry per active support feature, decoded in one place.
#pragma once

#include <optional>
#include <vector>

#include "model/beam_model.h"

namespace flexley {

struct SupportReaction {
    int feature_number;
    double position;
    bool fixed;                    // a cantilever (fixed) support
    double force;                  // positive balances a positive (downward) load
    std::optional<double> moment;  // the moment reaction of a fixed support
};

// In system order (reaction_feature): the fixed support at x = 0 first, the one at the beam's
// end last. Empty unless the results are valid or partial, so no caller can show the reactions
// of a beam that has changed since its last run.
std::vector<SupportReaction> support_reactions(const BeamModel& model);

}  // namespace flexley
