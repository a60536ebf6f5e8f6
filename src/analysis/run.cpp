// The analysis commands: preconditions, then the engine steps in order, results into the model.
#include "analysis/run.h"

#include "analysis/bending_moment.h"
#include "analysis/integration.h"
#include "analysis/lu_decomposition.h"
#include "analysis/reaction_system.h"
#include "analysis/table_bounds.h"
#include "model/limits.h"

namespace flexley {

namespace {

bool has_missing_properties(const BeamModel& model) {
    return model.fibre_distance == 0.0f || model.elastic_modulus == 0.0f ||
           model.moment_of_inertia == 0.0f;
}

// Scans the support table in order up to the first cantilever support, which alone makes the
// beam stable; without one at least two simple supports are needed.
Status check_supports(const BeamModel& model) {
    int simple = 0;
    bool cantilever = false;
    for (int k = 1; k <= used_entries(model.su_count, kMaxSupports); ++k) {
        if (model.su_loc[k] < 0.0) continue;
        if (model.su_type[k] == "cant") {
            cantilever = true;
            break;
        }
        if (model.su_type[k] == "simp") ++simple;
    }
    if (!cantilever && simple == 1) return Status::failure(kUnstableBeam);
    if (!cantilever && simple == 0) return Status::failure(kNoSupport);
    return Status::success();
}

Status solve_reactions(BeamModel& model) {
    if (!resolution_in_range(model.resolution)) return Status::failure(kResolutionOutOfRange);
    collect_supports(model);
    if (model.cantilever_count > kMaxCantilevers) return Status::failure(kTooManyCantilevers);
    ReactionSystem system;
    assemble_reaction_system(model, system);
    // A singular system ends the run here: nothing may use an incomplete factorisation.
    if (Status decomposed = lu_decompose(system); !decomposed.ok()) return decomposed;
    lu_solve(system, model.reaction);
    return Status::success();
}

void integrate(BeamModel& model, const ContinueQuestion& continue_iterating) {
    if (model.cantilever_count == 0) {
        integrate_between_supports(model, model.reaction_pos[1], model.reaction_pos[2],
                                   continue_iterating);
    } else {
        integrate_from_cantilever(model, model.reaction_pos[1]);
    }
}

Status run_engine(BeamModel& model, const ContinueQuestion& continue_iterating) {
    if (Status solved = solve_reactions(model); !solved.ok()) return solved;
    compute_moments(model);
    compute_stresses(model);
    integrate(model, continue_iterating);
    return Status::success();
}

}  // namespace

Status run_calculation(BeamModel& model, const ContinueQuestion& continue_iterating) {
    if (has_missing_properties(model)) return Status::failure(kMissingProperties);
    if (Status supported = check_supports(model); !supported.ok()) return supported;
    if (Status ran = run_engine(model, continue_iterating); !ran.ok()) return ran;
    model.results_valid = true;
    return Status::success();
}

Status run_reactions_only(BeamModel& model, const ContinueQuestion& continue_iterating) {
    if (Status supported = check_supports(model); !supported.ok()) return supported;
    if (Status solved = solve_reactions(model); !solved.ok()) return solved;
    integrate(model, continue_iterating);
    model.results_valid = true;
    return Status::success();
}

Status recalculate(BeamModel& model, const ContinueQuestion& continue_iterating) {
    return run_engine(model, continue_iterating);
}

}  // namespace flexley
