// Keeping each load kind's largest magnitude and scale value as loads come, change and go.
#include "model/drawing_scale.h"

#include <cmath>

namespace flexley {
namespace {

// The kind's largest magnitude and scale value; both null for supports, which have no scale.
// A template so that one switch serves the const and the changing callers alike.
template <typename Model>
auto scale_of(Model& model, FeatureKind kind) {
    using Value = decltype(&model.pt_maxmag);
    struct ScalePair {
        Value largest;
        Value previous;
    };
    switch (kind) {
        case FeatureKind::point_load:
            return ScalePair{&model.pt_maxmag, &model.pt_scalemag};
        case FeatureKind::distributed_load:
            return ScalePair{&model.di_maxmag, &model.di_scalemag};
        case FeatureKind::moment:
            return ScalePair{&model.mo_maxmag, &model.mo_scalemag};
        case FeatureKind::support:
            break;
    }
    return ScalePair{nullptr, nullptr};
}

}  // namespace

double scale_magnitude(const BeamModel& model, FeatureRef feature) {
    const int i = feature.index;
    switch (feature.kind) {
        case FeatureKind::point_load:
            return std::fabs(model.pt_mag[i]);
        case FeatureKind::distributed_load:
            return std::fmax(std::fabs(model.di_mag_start[i]), std::fabs(model.di_mag_end[i]));
        case FeatureKind::moment:
            return std::fabs(model.mo_mag[i]);
        case FeatureKind::support:
            break;
    }
    return 0.0;
}

void track_scale(BeamModel& model, FeatureKind kind, double magnitude) {
    const auto scale = scale_of(model, kind);
    if (!scale.largest) return;
    if (table_count(model, kind) == 0 || std::fabs(magnitude) >= *scale.largest) {
        *scale.previous = *scale.largest;
        *scale.largest = std::fabs(magnitude);
    }
}

void rescan_scale(BeamModel& model, FeatureKind kind) {
    const auto scale = scale_of(model, kind);
    if (!scale.largest) return;
    *scale.largest = 0.0;
    *scale.previous = 0.0;
    for (int j = 1; j <= table_count(model, kind); ++j) {
        *scale.largest = std::fmax(*scale.largest, scale_magnitude(model, {kind, j}));
    }
}

bool holds_largest_magnitude(const BeamModel& model, FeatureRef feature) {
    const auto scale = scale_of(model, feature.kind);
    return scale.largest && scale_magnitude(model, feature) == *scale.largest;
}

}  // namespace flexley
