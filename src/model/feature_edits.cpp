// Editing features in place: validation first, then the table entry, the unit codes and the scale.
#include "model/feature_edits.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

#include "model/beam_settings.h"
#include "model/drawing_scale.h"
#include "model/feature_rules.h"
#include "model/features.h"

namespace flexley {
namespace {

// The live feature of `kind` that `number` names.
std::optional<FeatureRef> live_feature(const BeamModel& model, int number, FeatureKind kind) {
    const auto feature = lookup_feature(model, number);
    if (!feature || feature->kind != kind || is_removed(model, *feature)) return std::nullopt;
    return feature;
}

// The scale upkeep of an edited load: the new magnitude is tracked as an addition would be, and
// when the old one was the largest the kind is rescanned once the entry holds the new one.
template <typename WriteEntry>
void rewrite_load(BeamModel& model, FeatureRef feature, double new_magnitude,
                  WriteEntry write_entry) {
    const bool was_largest = holds_largest_magnitude(model, feature);
    track_scale(model, feature.kind, new_magnitude);
    write_entry();
    if (was_largest) rescan_scale(model, feature.kind);
    mark_results_stale(model);
}

void set_units(BeamModel& model, int number, std::string loc_unit, std::string mag_unit) {
    model.loc_unit[number] = std::move(loc_unit);
    model.mag_unit[number] = std::move(mag_unit);
}

struct Concentrated {
    double magnitude;
    double location;
};

// Point loads and moments: a magnitude at a position.
template <std::size_t N>
Status edit_concentrated(BeamModel& model, int number, FeatureKind kind,
                         Status (*check)(const BeamModel&, double, double),
                         std::array<double, N>& magnitudes, std::array<double, N>& locations,
                         Concentrated values, std::string loc_unit, std::string mag_unit) {
    const auto feature = live_feature(model, number, kind);
    if (!feature) return Status::failure(kInvalidFeatureNumber);
    if (auto valid = check(model, values.magnitude, values.location); !valid.ok()) return valid;
    rewrite_load(model, *feature, values.magnitude, [&] {
        magnitudes[feature->index] = values.magnitude;
        locations[feature->index] = values.location;
    });
    set_units(model, number, std::move(loc_unit), std::move(mag_unit));
    return Status::success();
}

}  // namespace

Status edit_point_load(BeamModel& model, int number, double magnitude, double location,
                       std::string loc_unit, std::string mag_unit) {
    return edit_concentrated(model, number, FeatureKind::point_load, check_point_load, model.pt_mag,
                             model.pt_loc, {magnitude, location}, std::move(loc_unit),
                             std::move(mag_unit));
}

Status edit_distributed_load(BeamModel& model, int number, double start, double end,
                             double mag_start, double mag_end, std::string loc_unit,
                             std::string mag_unit) {
    const auto feature = live_feature(model, number, FeatureKind::distributed_load);
    if (!feature) return Status::failure(kInvalidFeatureNumber);
    if (auto valid = check_distributed_load(model, start, end, mag_start, mag_end); !valid.ok()) {
        return valid;
    }
    const double larger = std::fmax(std::fabs(mag_start), std::fabs(mag_end));
    rewrite_load(model, *feature, larger, [&] {
        const int i = feature->index;
        model.di_start[i] = start;
        model.di_end[i] = end;
        model.di_mag_start[i] = mag_start;
        model.di_mag_end[i] = mag_end;
    });
    set_units(model, number, std::move(loc_unit), std::move(mag_unit));
    return Status::success();
}

Status edit_moment(BeamModel& model, int number, double magnitude, double location,
                   std::string loc_unit, std::string mag_unit) {
    return edit_concentrated(model, number, FeatureKind::moment, check_moment, model.mo_mag,
                             model.mo_loc, {magnitude, location}, std::move(loc_unit),
                             std::move(mag_unit));
}

Status edit_support(BeamModel& model, int number, double location, std::string loc_unit) {
    const auto feature = live_feature(model, number, FeatureKind::support);
    if (!feature) return Status::failure(kInvalidFeatureNumber);
    const int i = feature->index;
    if (model.su_type[i] == "cant") return Status::failure(kCantileverCannotMove);
    if (auto valid = check_support(model, location, model.su_type[i], i); !valid.ok()) {
        return valid;
    }
    model.su_loc[i] = location;
    model.loc_unit[number] = std::move(loc_unit);
    mark_results_stale(model);
    return Status::success();
}

}  // namespace flexley
