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

// With no cantilever support: every support shows its force.
std::vector<ReactionText> show_reactions_simple(const BeamModel& model);

// With one: the fixed support shows force and moment, every other support its force.
std::vector<ReactionText> show_reactions_one_cantilever(const BeamModel& model);

// With two: both fixed supports show force and moment, every other support its force.
std::vector<ReactionText> show_reactions_two_cantilevers(const BeamModel& model);

// The texts for the reactions of the last run, by its number of cantilever supports.
std::vector<ReactionText> show_reactions(const BeamModel& model);

}  // namespace flexley
