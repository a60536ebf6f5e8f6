// The analysis commands: preconditions, then the engine steps in order, results into the model.
#include "analysis/run.h"

#include <optional>

#include "analysis/bending_moment.h"
#include "analysis/exact_deflection.h"
#include "analysis/integration.h"
#include "analysis/lu_decomposition.h"
#include "analysis/mirrored_beam.h"
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

// The reaction system takes fixed supports at x = 0 and at x = L only, one at each end.
bool fixed_supports_at_ends(const BeamModel& model) {
    const int m = model.cantilever_count;
    const int n = model.reaction_count;
    const auto at_end = [&](double x) { return x == 0.0 || x == model.beam_length; };
    if (m > kMaxCantilevers) return false;
    if (m >= 1 && !at_end(model.reaction_pos[1])) return false;
    return m < 2 || (model.reaction_pos[1] == 0.0 && model.reaction_pos[n] == model.beam_length);
}

Status solve_reactions(BeamModel& model) {
    ReactionSystem system;
    assemble_reaction_system(model, system);
    // A singular system ends the run here: nothing may use an incomplete factorisation.
    if (Status decomposed = lu_decompose(system); !decomposed.ok()) return decomposed;
    lu_solve(system, model.reaction);
    return Status::success();
}

// True unless the user stopped an unconverged iteration.
bool integrate(BeamModel& model, const ContinueQuestion& continue_iterating) {
    if (model.integration_method == IntegrationMethod::exact) {
        integrate_exactly(model);
        return true;
    }
    if (model.cantilever_count == 0) {
        return integrate_between_supports(model, model.reaction_pos[1], model.reaction_pos[2],
                                          continue_iterating);
    }
    integrate_from_cantilever(model, model.reaction_pos[1]);
    return true;
}

enum class Steps { all, reactions_and_integration };

// The engine proper, in the frame where any fixed support stands at x = 0. Empty when the
// iteration was stopped unconverged.
std::optional<Status> run_steps(BeamModel& model, Steps steps,
                                const ContinueQuestion& continue_iterating) {
    if (Status solved = solve_reactions(model); !solved.ok()) return solved;
    if (steps == Steps::all) {
        compute_moments(model);
        compute_stresses(model);
    }
    if (!integrate(model, continue_iterating)) return std::nullopt;
    return Status::success();
}

Status run_engine(BeamModel& model, Steps steps, const ContinueQuestion& continue_iterating) {
    model.results_valid = false;
    model.results_partial = false;
    // The result arrays hold 200,001 points and the grid must end at the beam's end, whatever
    // the model was given.
    if (!is_allowed_resolution(model.resolution)) return Status::failure(kInvalidResolution);
    collect_supports(model);
    if (!fixed_supports_at_ends(model)) return Status::failure(kCantileverPlacement);
    std::optional<Status> outcome;
    if (needs_mirroring(model)) {
        const MirroredBeam mirrored(model);
        outcome = run_steps(model, steps, continue_iterating);
    } else {
        outcome = run_steps(model, steps, continue_iterating);
    }
    if (!outcome) {
        model.results_partial = true;
        return Status::warning(kNotConverged);
    }
    model.results_valid = outcome->ok();
    return *outcome;
}

}  // namespace

Status run_calculation(BeamModel& model, const ContinueQuestion& continue_iterating) {
    if (has_missing_properties(model)) return Status::failure(kMissingProperties);
    if (Status supported = check_supports(model); !supported.ok()) return supported;
    return run_engine(model, Steps::all, continue_iterating);
}

Status run_reactions_only(BeamModel& model, const ContinueQuestion& continue_iterating) {
    if (Status supported = check_supports(model); !supported.ok()) return supported;
    return run_engine(model, Steps::reactions_and_integration, continue_iterating);
}

Status recalculate(BeamModel& model, const ContinueQuestion& continue_iterating) {
    return run_engine(model, Steps::all, continue_iterating);
}

}  // namespace flexley
