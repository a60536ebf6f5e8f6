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
    double s_total = 0.0;
    for (int k = 1; k <= used_entries(model.pt_count, kMaxPointLoads); ++k) {
        s_total -= model.pt_mag[k] * power(past(x - model.pt_loc[k]), 2) / 2.0;
    }
    for (int k = 1; k <= used_entries(model.di_count, kMaxDistributedLoads); ++k) {
        const double a = model.di_start[k];
        const double b = model.di_end[k];
        if (!has_extent(a, b)) continue;
        const double w1 = model.di_mag_start[k];
        const double s = (model.di_mag_end[k] - w1) / (b - a);
        const double u = past(x - a);
        const double v = past(x - b);
        s_total += -w1 * power(u, 3) / 6.0 - s * power(u, 4) / 24.0 + w1 * power(v, 3) / 6.0 +
                   s * (power(v, 4) / 24.0 + (b - a) * power(v, 3) / 6.0);
    }
    for (int k = 1; k <= used_entries(model.mo_count, kMaxMoments); ++k) {
        s_total -= model.mo_mag[k] * past(x - model.mo_loc[k]);
    }
    return s_total;
}

double load_deflection_integral(const BeamModel& model, double x) {
    double f_total = 0.0;
    for (int k = 1; k <= used_entries(model.pt_count, kMaxPointLoads); ++k) {
        f_total -= model.pt_mag[k] * power(past(x - model.pt_loc[k]), 3) / 6.0;
    }
    for (int k = 1; k <= used_entries(model.di_count, kMaxDistributedLoads); ++k) {
        const double a = model.di_start[k];
        const double b = model.di_end[k];
        if (!has_extent(a, b)) continue;
        const double w1 = model.di_mag_start[k];
        const double s = (model.di_mag_end[k] - w1) / (b - a);
        const double u = past(x - a);
        const double v = past(x - b);
        f_total += -w1 * power(u, 4) / 24.0 - s * power(u, 5) / 120.0 + w1 * power(v, 4) / 24.0 +
                   s * (power(v, 5) / 120.0 + (b - a) * power(v, 4) / 24.0);
    }
    for (int k = 1; k <= used_entries(model.mo_count, kMaxMoments); ++k) {
        f_total -= model.mo_mag[k] * power(past(x - model.mo_loc[k]), 2) / 2.0;
    }
    return f_total;
}

}  // namespace flexley
