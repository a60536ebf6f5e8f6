// Solving a beam whose only fixed support stands at its right end, as its mirror image.
#include "analysis/mirrored_beam.h"

#include <algorithm>
#include <cmath>

#include "analysis/table_bounds.h"
#include "model/grid.h"

namespace flexley {

namespace {

void reverse_results(BeamModel& model) {
    const int last = analysis_grid(model).last;
    for (auto* values : {&model.moment, &model.stress, &model.slope, &model.deflection}) {
        std::reverse(values->begin(), values->begin() + last + 1);
    }
    for (int i = 0; i <= last; ++i) {
        model.slope[i] = -model.slope[i];
    }
}

void track(double& maximum, double& position, double value, double at) {
    if (std::abs(value) > std::abs(maximum)) {
        maximum = value;
        position = at;
    }
}

// The maxima as a run from x = 0 finds them; all-zero results keep their previous positions.
void rescan_maxima(BeamModel& model) {
    const Grid grid = analysis_grid(model);
    model.max_moment = model.max_stress = model.max_slope = model.max_deflection = 0.0;
    for (int i = 0; i <= grid.last; ++i) {
        const double at = i * model.beam_length / grid.intervals;
        track(model.max_moment, model.max_moment_at, model.moment[i], grid.x(i));
        track(model.max_stress, model.max_stress_at, std::abs(model.stress[i]), grid.spacing * i);
        track(model.max_slope, model.max_slope_at, model.slope[i], at);
        track(model.max_deflection, model.max_deflection_at, model.deflection[i], at);
    }
}

}  // namespace

bool needs_mirroring(const BeamModel& model) {
    return model.cantilever_count == 1 && model.reaction_pos[1] != 0.0;
}

MirroredBeam::MirroredBeam(BeamModel& model)
    : model_(model),
      pt_loc_(model.pt_loc),
      di_start_(model.di_start),
      di_end_(model.di_end),
      di_mag_start_(model.di_mag_start),
      di_mag_end_(model.di_mag_end),
      mo_mag_(model.mo_mag),
      mo_loc_(model.mo_loc),
      reaction_pos_(model.reaction_pos) {
    const double length = model.beam_length;
    for (int k = 1; k <= used_entries(model.pt_count, kMaxPointLoads); ++k) {
        model.pt_loc[k] = length - pt_loc_[k];
    }
    for (int k = 1; k <= used_entries(model.di_count, kMaxDistributedLoads); ++k) {
        model.di_start[k] = length - di_end_[k];
        model.di_end[k] = length - di_start_[k];
        model.di_mag_start[k] = di_mag_end_[k];
        model.di_mag_end[k] = di_mag_start_[k];
    }
    for (int k = 1; k <= used_entries(model.mo_count, kMaxMoments); ++k) {
        model.mo_loc[k] = length - mo_loc_[k];
        model.mo_mag[k] = -mo_mag_[k];
    }
    for (int j = 1; j <= used_entries(model.reaction_count, kMaxSupports); ++j) {
        model.reaction_pos[j] = length - reaction_pos_[j];
    }
    reverse_results(model);
}

MirroredBeam::~MirroredBeam() {
    model_.pt_loc = pt_loc_;
    model_.di_start = di_start_;
    model_.di_end = di_end_;
    model_.di_mag_start = di_mag_start_;
    model_.di_mag_end = di_mag_end_;
    model_.mo_mag = mo_mag_;
    model_.mo_loc = mo_loc_;
    model_.reaction_pos = reaction_pos_;
    model_.reaction[1] = -model_.reaction[1];
    reverse_results(model_);
    rescan_maxima(model_);
}

}  // namespace flexley
