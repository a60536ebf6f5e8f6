// Closed-form totals and integrals of the bending moment due to the applied loads alone.
#include "analysis/load_integrals.h"

#include "analysis/table_bounds.h"

namespace flexley {

namespace {

// 1 / n! for n = 0..5.
constexpr double kInverseFactorial[] = {1.0, 1.0, 1.0 / 2.0, 1.0 / 6.0, 1.0 / 24.0, 1.0 / 120.0};

// Adds coefficient x <u>^n / n! integrated once and twice, for n = 0..3. The exact method adds
// every load this way at every segment start, so it multiplies by constants and never divides.
void add_ramp(MomentIntegrals& sum, double coefficient, double u, int n) {
    if (!(u > 0.0)) return;
    double power = u;  // u^(n + 1)
    for (int i = 0; i < n; ++i)
        power *= u;
    const double once = coefficient * power;
    sum.once += once * kInverseFactorial[n + 1];
    sum.twice += once * u * kInverseFactorial[n + 2];
}

// The moment of the loads alone integrated once and twice from 0 to x. A point load's moment is a
// ramp of order 1, a couple's a step; a linearly varying load is two ramps of orders 2 and 3 from
// its start, cancelled from its end on.
MomentIntegrals integrals_of_loads(const BeamModel& model, double x) {
    MomentIntegrals sum;
    for (int k = 1; k <= used_entries(model.pt_count, kMaxPointLoads); ++k) {
        add_ramp(sum, -model.pt_mag[k], x - model.pt_loc[k], 1);
    }
    for (int k = 1; k <= used_entries(model.di_count, kMaxDistributedLoads); ++k) {
        const double a = model.di_start[k];
        const double b = model.di_end[k];
        if (!has_extent(a, b)) continue;
        const double w1 = model.di_mag_start[k];
        const double s = (model.di_mag_end[k] - w1) / (b - a);
        add_ramp(sum, -w1, x - a, 2);
        add_ramp(sum, -s, x - a, 3);
        add_ramp(sum, w1 + s * (b - a), x - b, 2);
        add_ramp(sum, s, x - b, 3);
    }
    for (int k = 1; k <= used_entries(model.mo_count, kMaxMoments); ++k) {
        add_ramp(sum, -model.mo_mag[k], x - model.mo_loc[k], 0);
    }
    return sum;
}

}  // namespace

double total_load(const BeamModel& model) {
    double total = 0.0;
    for (int k = 1; k <= used_entries(model.pt_count, kMaxPointLoads); ++k) {
        total += model.pt_mag[k];
    }
    for (int k = 1; k <= used_entries(model.di_count, kMaxDistributedLoads); ++k) {
        total += (model.di_mag_start[k] + model.di_mag_end[k]) *
                 (model.di_end[k] - model.di_start[k]) / 2.0;
    }
    return total;
}

double load_moment_about(const BeamModel& model, double x1) {
    double moment = 0.0;
    for (int k = 1; k <= used_entries(model.pt_count, kMaxPointLoads); ++k) {
        moment += model.pt_mag[k] * (model.pt_loc[k] - x1);
    }
    for (int k = 1; k <= used_entries(model.di_count, kMaxDistributedLoads); ++k) {
        const double a = model.di_start[k];
        const double d = model.di_end[k] - a;
        const double w1 = model.di_mag_start[k];
        const double w2 = model.di_mag_end[k];
        // The integral of w(t) (t - x1) over a..b, written without the gradient (w2 - w1) / d.
        moment += d * d * (w1 + 2.0 * w2) / 6.0 + (a - x1) * d * (w1 + w2) / 2.0;
    }
    for (int k = 1; k <= used_entries(model.mo_count, kMaxMoments); ++k) {
        moment -= model.mo_mag[k];
    }
    return moment;
}

double load_slope_integral(const BeamModel& model, double x) {
    return integrals_of_loads(model, x).once;
}

double load_deflection_integral(const BeamModel& model, double x) {
    return integrals_of_loads(model, x).twice;
}

MomentIntegrals moment_integrals(const BeamModel& model, double x) {
    MomentIntegrals sum = integrals_of_loads(model, x);
    const int m = model.cantilever_count;
    for (int j = 1; j <= used_entries(model.reaction_count, kMaxSupports); ++j) {
        add_ramp(sum, model.reaction[m + j], x - model.reaction_pos[j], 1);
    }
    if (m > 0) add_ramp(sum, -model.reaction[1], x, 0);
    return sum;
}

}  // namespace flexley
