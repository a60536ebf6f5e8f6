// The bending moment evaluated term by term at every grid point: the reference for the fast form.
#include "direct_moments.h"

namespace flexley {

namespace {

double moment_at(const BeamModel& model, double x) {
    double m = 0.0;
    for (int k = 1; k <= model.pt_count; ++k) {
        if (model.pt_loc[k] < x) m += model.pt_mag[k] * (model.pt_loc[k] - x);
    }
    for (int k = 1; k <= model.di_count; ++k) {
        const double a = model.di_start[k];
        const double b = model.di_end[k];
        if (!(a < x) || b == a) continue;
        const double w1 = model.di_mag_start[k];
        const double s = (model.di_mag_end[k] - w1) / (b - a);
        m = m - w1 * (x - a) * (x - a) / 2.0 - s * (x - a) * (x - a) * (x - a) / 6.0;
        if (b < x) {
            m = m + w1 * (x - b) * (x - b) / 2.0 +
                s * ((x - a) * (x - b) * (x - b) / 2.0 - (x - b) * (x - b) * (x - b) / 3.0);
        }
    }
    for (int k = 1; k <= model.mo_count; ++k) {
        if (model.mo_loc[k] <= x) m -= model.mo_mag[k];
    }
    for (int j = 1; j <= model.reaction_count; ++j) {
        if (model.reaction_pos[j] < x) {
            m += (x - model.reaction_pos[j]) * model.reaction[model.cantilever_count + j];
        }
    }
    if (model.cantilever_count > 0) m -= model.reaction[1];
    return m;
}

}  // namespace

std::vector<double> direct_moments(const BeamModel& model) {
    const double n = model.resolution;
    const double h = model.beam_length / n;
    std::vector<double> moments;
    for (float i = 0.0f; i <= model.resolution; i += 1.0f) {
        moments.push_back(moment_at(model, i * h));
    }
    return moments;
}

}  // namespace flexley
