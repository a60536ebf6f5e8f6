// Switching the whole model between English and metric units.
#include "model/units.h"

#include <cmath>

#include "model/beam_settings.h"
#include "model/features.h"

namespace flexley {
namespace {

// The factors of one direction. Derived quantities are converted with products and powers of the
// length and force factors only, applied left to right, so a round trip differs from the start
// only by those two products.
struct Factors {
    double length;
    double force;
    void moment(double& v) const { v = v * force * length; }
    void intensity(double& v) const { v = v * force / length; }
};

// I, E and c are computed in double precision and kept in single precision.
float scaled(float value, double factor) {
    return static_cast<float>(value * factor);
}

void convert_values(BeamModel& model, const Factors& f) {
    model.beam_length *= f.length;
    model.pt_maxmag *= f.force;
    model.pt_scalemag *= f.force;
    f.moment(model.mo_maxmag);
    f.moment(model.mo_scalemag);
    f.intensity(model.di_maxmag);
    f.intensity(model.di_scalemag);
    model.fibre_distance = scaled(model.fibre_distance, f.length);
    model.moment_of_inertia = scaled(model.moment_of_inertia, std::pow(f.length, 4.0));
    model.elastic_modulus =
        static_cast<float>(model.elastic_modulus * f.force / std::pow(f.length, 2.0));
    for (int i = 1; i <= model.pt_count; ++i) {
        model.pt_mag[i] *= f.force;
        model.pt_loc[i] *= f.length;
    }
    for (int i = 1; i <= model.di_count; ++i) {
        f.intensity(model.di_mag_start[i]);
        f.intensity(model.di_mag_end[i]);
        model.di_start[i] *= f.length;
        model.di_end[i] *= f.length;
    }
    for (int i = 1; i <= model.mo_count; ++i) {
        f.moment(model.mo_mag[i]);
        model.mo_loc[i] *= f.length;
    }
    for (int i = 1; i <= model.su_count; ++i) {
        if (model.su_loc[i] != -1.0) model.su_loc[i] *= f.length;
    }
}

// After a switch every feature is shown in the base units of the new system.
void rewrite_unit_codes(BeamModel& model) {
    for (int n = 1; n <= model.feature_count; ++n) {
        if (model.metric_units) {
            model.loc_unit[n] = "m";
            model.mag_unit[n] = "N";
            continue;
        }
        const auto feature = parse_feature_entry(model.feature_list[n]);
        const bool per_inch = feature && (feature->kind == FeatureKind::distributed_load ||
                                          feature->kind == FeatureKind::moment);
        model.loc_unit[n] = "in";
        model.mag_unit[n] = per_inch ? "pi" : "lb";
    }
}

}  // namespace

void convert_units(BeamModel& model, std::string_view direction, const RedrawHook& redraw) {
    if (redraw) redraw(kPenErase);
    const bool to_english = direction == "met_to_eng" && model.metric_units;
    const bool to_metric = direction == "eng_to_met" && !model.metric_units;
    if (to_english || to_metric) {
        model.metric_units = to_metric;
        convert_values(model, to_metric ? Factors{kInchToMetre, kPoundToNewton}
                                        : Factors{kMetreToInch, kNewtonToPound});
        rewrite_unit_codes(model);
        mark_results_stale(model);
    }
    if (redraw) redraw(kPenDraw);
}

}  // namespace flexley
