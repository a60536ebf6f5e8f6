// The reaction texts shown beside the supports after a run, one per active support feature.
#pragma once

#include <string>
#include <vector>

#include "model/beam_model.h"

namespace flexley {

struct ReactionText {
    int feature_number;
    std::string text;  // "1250 lb." or, for a fixed support, "1250 lb., 30000 lb.-in."
};

// Every support's force, a fixed support's force and then its moment, in system order. Nothing
// while the results are stale, so a support never shows the reaction of an earlier beam.
std::vector<ReactionText> show_reactions(const BeamModel& model);

}  // namespace flexley
