// Bending moment and bending stress at every grid point, from the loads and the solved reactions.
#include "analysis/bending_moment.h"

#include <cmath>

#include "analysis/moment_segments.h"
#include "model/grid.h"

namespace flexley {

void compute_moments(BeamModel& model) {
    const Grid grid = analysis_grid(model);
    model.max_moment = 0.0;
    for (const MomentSegment& segment : moment_segments(model)) {
        for (int i = segment.first; i <= segment.last; ++i) {
            const double x = grid.x(i);
            const double m = segment.moment.at(x - segment.x0);
            model.moment[i] = m;
            if (std::abs(m) > std::abs(model.max_moment)) {
                model.max_moment = m;
                model.max_moment_at = x;
            }
        }
    }
}

void compute_stresses(BeamModel& model) {
    const Grid grid = analysis_grid(model);
    const double c = model.fibre_distance;
    const double inertia = model.moment_of_inertia;
    model.max_stress = 0.0;
    for (int i = 0; i <= grid.last; ++i) {
        const double stress = c * model.moment[i] / inertia;
        model.stress[i] = stress;
        if (std::abs(stress) > model.max_stress) {
            model.max_stress = std::abs(stress);
            model.max_stress_at = grid.spacing * i;
        }
    }
}

}  // namespace flexley
