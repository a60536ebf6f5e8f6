// Slope and deflection (both times E x I) in closed form at every grid point.
//
// On each moment segment the slope and deflection are polynomials of degree 4 and 5 in
// t = x - x0; their values at x0 come from the closed-form integrals of all loads and reactions,
// so every point is evaluated on its own and nothing accumulates along the beam.
#include "analysis/exact_deflection.h"

#include <cmath>

#include "analysis/load_integrals.h"
#include "analysis/moment_segments.h"
#include "model/grid.h"

namespace flexley {

namespace {

// slope(x) = start_slope + S(x), deflection(x) = start_deflection - start_slope x - F(x), with S
// and F the moment integrated once and twice from 0.
struct StartingValues {
    double slope = 0.0;
    double deflection = 0.0;
};

StartingValues starting_values(const BeamModel& model) {
    if (model.cantilever_count > 0) return {};
    const double xa = model.reaction_pos[1];
    const double xb = model.reaction_pos[2];
    const double fa = moment_integrals(model, xa).twice;
    const double fb = moment_integrals(model, xb).twice;
    const double slope = (fa - fb) / (xb - xa);
    return {slope, fa + slope * xa};
}

// The moment's first and second integrals on one segment, about its first point.
struct SegmentIntegrals {
    double s0, s1, s2, s3, s4;      // S(x0 + t) = s0 + s1 t + ... + s4 t^4
    double f0, f1, f2, f3, f4, f5;  // F(x0 + t) = f0 + f1 t + ... + f5 t^5

    SegmentIntegrals(const BeamModel& model, const MomentSegment& segment) {
        const Cubic& m = segment.moment;
        const MomentIntegrals at_start = moment_integrals(model, segment.x0);
        s0 = at_start.once;
        s1 = m.c0;
        s2 = m.c1 / 2.0;
        s3 = m.c2 / 3.0;
        s4 = m.c3 / 4.0;
        f0 = at_start.twice;
        f1 = s0;
        f2 = m.c0 / 2.0;
        f3 = m.c1 / 6.0;
        f4 = m.c2 / 12.0;
        f5 = m.c3 / 20.0;
    }

    double slope_integral(double t) const { return (((s4 * t + s3) * t + s2) * t + s1) * t + s0; }
    double deflection_integral(double t) const {
        return ((((f5 * t + f4) * t + f3) * t + f2) * t + f1) * t + f0;
    }
};

// The position is worked out only when the maximum moves: a division per point would cost more
// than the point's whole evaluation.
void track(const BeamModel& model, double& maximum, double& position, double value, int index) {
    if (std::abs(value) > std::abs(maximum)) {
        maximum = value;
        position = index * model.beam_length / model.resolution;
    }
}

}  // namespace

void integrate_exactly(BeamModel& model) {
    const Grid grid = analysis_grid(model);
    const StartingValues start = starting_values(model);
    model.max_slope = 0.0;
    model.max_deflection = 0.0;
    for (const MomentSegment& segment : moment_segments(model)) {
        const SegmentIntegrals integrals(model, segment);
        for (int i = segment.first; i <= segment.last; ++i) {
            const double x = grid.x(i);
            const double t = x - segment.x0;
            const double slope = start.slope + integrals.slope_integral(t);
            const double deflection =
                start.deflection - start.slope * x - integrals.deflection_integral(t);
            model.slope[i] = slope;
            model.deflection[i] = deflection;
            track(model, model.max_slope, model.max_slope_at, slope, i);
            track(model, model.max_deflection, model.max_deflection_at, deflection, i);
        }
    }
}

}  // namespace flexley
