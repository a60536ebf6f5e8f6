// Closed-form totals and integrals of the bending moment due to the applied loads alone.
#include "analysis/load_integrals.h"

#include "analysis/table_bounds.h"

namespace flexley {

namespace {

// <u>: the distance past a load's position, zero before it.
double past(double u) {
    return u > 0.0 ? u : 0.0;
}

double power(double u, int k) {
    double result = 1.0;
    for (int i = 0; i < k; ++i) {
        result *= u;
    }
    return result;
}

// <u>^n / n!, the n-th integral from 0 of a unit step at u = 0.
double ramp(double u, int n) {
    double factorial = 1.0;
    for (int i = 2; i <= n; ++i) {
        factorial *= i;
    }
    return power(past(u), n) / factorial;
}

// The moment of the loads alone integrated `times` times from 0 to x. A point load's moment is a
// ramp of order 1, a couple's a step; a linearly varying load is two ramps of orders 2 and 3 from
// its start, cancelled from its end on.
double repeated_load_integral(const BeamModel& model, double x, int times) {
    double total = 0.0;
    for (int k = 1; k <= used_entries(model.pt_count, kMaxPointLoads); ++k) {
        total -= model.pt_mag[k] * ramp(x - model.pt_loc[k], times + 1);
    }
    for (int k = 1; k <= used_entries(model.di_count, kMaxDistributedLoads); ++k) {
        const double a = model.di_start[k];
        const double b = model.di_end[k];
        if (!has_extent(a, b)) continue;
        const double w1 = model.di_mag_start[k];
        const double s = (model.di_mag_end[k] - w1) / (b - a);
        total += -w1 * ramp(x - a, times + 2) - s * ramp(x - a, times + 3) +
                 w1 * ramp(x - b, times + 2) +
                 s * (ramp(x - b, times + 3) + (b - a) * ramp(x - b, times + 2));
    }
    for (int k = 1; k <= used_entries(model.mo_count, kMaxMoments); ++k) {
        total -= model.mo_mag[k] * ramp(x - model.mo_loc[k], times);
    }
    return total;
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
    return repeated_load_integral(model, x, 1);
}

double load_deflection_integral(const BeamModel& model, double x) {
    return repeated_load_integral(model, x, 2);
}

double moment_integral(const BeamModel& model, double x, int times) {
    double total = repeated_load_integral(model, x, times);
    const int m = model.cantilever_count;
    for (int j = 1; j <= used_entries(model.reaction_count, kMaxSupports); ++j) {
        total += model.reaction[m + j] * ramp(x - model.reaction_pos[j], times + 1);
    }
    if (m > 0) total -= model.reaction[1] * ramp(x, times);
    return total;
}

}  // namespace flexley
