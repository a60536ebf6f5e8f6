// The support reaction system: ordering the active supports and assembling their linear system.
#pragma once

#include <array>

#include "model/beam_model.h"
#include "model/limits.h"

namespace flexley {

// Working storage of one reaction solve, indexed from 1 like the model's reaction table:
// the coefficient matrix (factorised in place by lu_decompose), the row scales and the pivots.
struct ReactionSystem {
    int order = 0;
    std::array<std::array<double, kMaxUnknowns + 1>, kMaxUnknowns + 1> a{};
    std::array<double, kMaxUnknowns + 1> scale{};
    std::array<int, kMaxUnknowns + 1> pivot{};
};

// Fills reaction_pos, reaction_feature, reaction_count and cantilever_count from the active
// supports in feature order, a fixed support first and, of two, the one at x = 0 first and the
// other last.
void collect_supports(BeamModel& model);

// Fills the matrix of `system` and writes the right-hand side into model.reaction, for the
// supports gathered by collect_supports (0, 1 or 2 cantilever supports).
void assemble_reaction_system(BeamModel& model, ReactionSystem& system);

}  // namespace flexley
