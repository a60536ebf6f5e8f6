// Setting the beam's length, section properties and resolution, and marking results stale.
#include "model/beam_settings.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

#include "model/features.h"

namespace flexley {
namespace {

bool has_live_features(const BeamModel& model) {
    for (int number = 1; number <= model.feature_count; ++number) {
        const auto feature = lookup_feature(model, number);
        if (feature && !is_removed(model, *feature)) return true;
    }
    return false;
}

// Single precision holds it without becoming infinite; negative values have no physical sense.
bool is_section_property(double value) {
    return value >= 0.0 && value <= FLT_MAX;
}

}  // namespace

void mark_results_stale(BeamModel& model) {
    model.results_valid = false;
    model.results_partial = false;
}

Status set_beam_length(BeamModel& model, double length) {
    if (!(length > 0.0 && std::isfinite(length))) return Status::failure(kInvalidBeamLength);
    if (length == model.beam_length) return Status::success();
    if (has_live_features(model)) return Status::failure(kLengthWithFeatures);
    model.beam_length = length;
    model.positions_in_inches = length < 48.0;
    mark_results_stale(model);
    return Status::success();
}

Status set_section_properties(BeamModel& model, double inertia, double modulus, double fibre) {
    if (!is_section_property(inertia) || !is_section_property(modulus) ||
        !is_section_property(fibre)) {
        return Status::failure(kInvalidSectionProperties);
    }
    const float i = static_cast<float>(inertia);
    const float e = static_cast<float>(modulus);
    const float c = static_cast<float>(fibre);
    if (i == model.moment_of_inertia && e == model.elastic_modulus && c == model.fibre_distance) {
        return Status::success();
    }
    model.moment_of_inertia = i;
    model.elastic_modulus = e;
    model.fibre_distance = c;
    mark_results_stale(model);
    return Status::success();
}

bool is_allowed_resolution(double resolution) {
    return resolution_in_range(resolution) && std::floor(resolution) == resolution;
}

Status set_resolution(BeamModel& model, double resolution) {
    if (!is_allowed_resolution(resolution)) return Status::failure(kInvalidResolution);
    const auto n = static_cast<float>(resolution);
    if (n == model.resolution) return Status::success();
    model.resolution = n;
    mark_results_stale(model);
    return Status::success();
}

float nearest_allowed_resolution(double resolution) {
    return static_cast<float>(
        std::clamp(std::round(resolution), double{kMinResolution}, double{kMaxResolution}));
}

}  // namespace flexley
