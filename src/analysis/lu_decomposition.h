// Crout LU decomposition with implicit partial pivoting, and the solve that uses it.
#pragma once

#include "analysis/reaction_system.h"
#include "model/beam_model.h"
#include "model/status.h"

namespace flexley {

// Factorises system.a in place, recording row exchanges in system.pivot. A row of zeros or a
// zero pivot stops the factorisation and returns the singular-matrix message.
Status lu_decompose(ReactionSystem& system);

// Solves in place for the right-hand side b(1..order), using a successful lu_decompose.
void lu_solve(const ReactionSystem& system, Table<double, kMaxUnknowns>& b);

}  // namespace flexley
