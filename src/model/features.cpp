// The feature list and the feature tables: adding, looking up, removing and clearing features.
#include "model/features.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "model/beam_settings.h"
#include "model/drawing_scale.h"
#include "model/feature_rules.h"

namespace flexley {
namespace {

// The capacity of a kind's table and its name in a refusal.
struct Capacity {
    int limit;
    const char* plural;
};

Capacity capacity_of(FeatureKind kind) {
    switch (kind) {
        case FeatureKind::point_load:
            return {kMaxPointLoads, "point loads"};
        case FeatureKind::distributed_load:
            return {kMaxDistributedLoads, "distributed loads"};
        case FeatureKind::moment:
            return {kMaxMoments, "moments"};
        case FeatureKind::support:
            break;
    }
    return {kMaxSupports, "supports"};
}

// Appends the feature list entry for a table entry just added, with its display unit codes; the
// beam has changed.
void append_feature(BeamModel& model, FeatureKind kind, int index, std::string loc_unit,
                    std::string mag_unit) {
    const int number = ++model.feature_count;
    model.feature_list[number] = std::string(kind_code(kind)) + std::to_string(index);
    model.loc_unit[number] = std::move(loc_unit);
    model.mag_unit[number] = std::move(mag_unit);
    mark_results_stale(model);
}

}  // namespace

Status check_room(const BeamModel& model, FeatureKind kind) {
    const Capacity room = capacity_of(kind);
    if (table_count(model, kind) >= room.limit) {
        return Status::failure("No more " + std::string(room.plural) +
                               " can be added: a beam holds at most " + std::to_string(room.limit) +
                               ".");
    }
    if (model.feature_count >= kMaxFeatures) {
        return Status::failure("No more features can be added: a beam holds at most " +
                               std::to_string(kMaxFeatures) + ".");
    }
    return Status::success();
}

int table_count(const BeamModel& model, FeatureKind kind) {
    switch (kind) {
        case FeatureKind::point_load:
            return model.pt_count;
        case FeatureKind::distributed_load:
            return model.di_count;
        case FeatureKind::moment:
            return model.mo_count;
        case FeatureKind::support:
            return model.su_count;
    }
    return 0;
}

std::string_view kind_code(FeatureKind kind) {
    switch (kind) {
        case FeatureKind::point_load:
            return "pt";
        case FeatureKind::distributed_load:
            return "di";
        case FeatureKind::moment:
            return "mo";
        case FeatureKind::support:
            return "su";
    }
    return "";
}

std::optional<FeatureRef> parse_feature_entry(std::string_view entry) {
    if (entry.size() < 3) return std::nullopt;
    const std::string_view code = entry.substr(0, 2);
    std::optional<FeatureKind> kind;
    for (auto candidate : {FeatureKind::point_load, FeatureKind::distributed_load,
                           FeatureKind::moment, FeatureKind::support}) {
        if (kind_code(candidate) == code) kind = candidate;
    }
    if (!kind) return std::nullopt;
    const std::string_view digits = entry.substr(2);
    int index = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    if (error != std::errc() || end != digits.data() + digits.size() || index < 1) {
        return std::nullopt;
    }
    return FeatureRef{*kind, index};
}

std::optional<FeatureRef> lookup_feature(const BeamModel& model, int number) {
    if (number < 1 || number > model.feature_count) return std::nullopt;
    const auto feature = parse_feature_entry(model.feature_list[number]);
    if (!feature || feature->index > table_count(model, feature->kind)) return std::nullopt;
    return feature;
}

bool is_removed(const BeamModel& model, FeatureRef feature) {
    const int i = feature.index;
    switch (feature.kind) {
        case FeatureKind::point_load:
            return model.pt_mag[i] == 0.0;
        case FeatureKind::distributed_load:
            return model.di_mag_start[i] == 0.0 && model.di_mag_end[i] == 0.0;
        case FeatureKind::moment:
            return model.mo_mag[i] == 0.0;
        case FeatureKind::support:
            return model.su_loc[i] < 0.0;
    }
    return false;
}

int feature_number_of(const BeamModel& model, FeatureRef feature) {
    const std::string entry = std::string(kind_code(feature.kind)) + std::to_string(feature.index);
    for (int number = 1; number <= model.feature_count; ++number) {
        if (model.feature_list[number] == entry) return number;
    }
    return 0;
}

Status add_point_load(BeamModel& model, double magnitude, double location, std::string loc_unit,
                      std::string mag_unit) {
    if (auto room = check_room(model, FeatureKind::point_load); !room.ok()) {
        return room;
    }
    if (auto valid = check_point_load(model, magnitude, location); !valid.ok()) return valid;
    track_scale(model, FeatureKind::point_load, magnitude);
    const int index = ++model.pt_count;
    model.pt_mag[index] = magnitude;
    model.pt_loc[index] = location;
    append_feature(model, FeatureKind::point_load, index, std::move(loc_unit), std::move(mag_unit));
    return Status::success();
}

Status add_distributed_load(BeamModel& model, double start, double end, double mag_start,
                            double mag_end, std::string loc_unit, std::string mag_unit) {
    if (auto room = check_room(model, FeatureKind::distributed_load); !room.ok()) {
        return room;
    }
    if (auto valid = check_distributed_load(model, start, end, mag_start, mag_end); !valid.ok()) {
        return valid;
    }
    track_scale(model, FeatureKind::distributed_load,
                std::fmax(std::fabs(mag_start), std::fabs(mag_end)));
    const int index = ++model.di_count;
    model.di_start[index] = start;
    model.di_end[index] = end;
    model.di_mag_start[index] = mag_start;
    model.di_mag_end[index] = mag_end;
    append_feature(model, FeatureKind::distributed_load, index, std::move(loc_unit),
                   std::move(mag_unit));
    return Status::success();
}

Status add_moment(BeamModel& model, double magnitude, double location, std::string loc_unit,
                  std::string mag_unit) {
    if (auto room = check_room(model, FeatureKind::moment); !room.ok()) {
        return room;
    }
    if (auto valid = check_moment(model, magnitude, location); !valid.ok()) return valid;
    track_scale(model, FeatureKind::moment, magnitude);
    const int index = ++model.mo_count;
    model.mo_mag[index] = magnitude;
    model.mo_loc[index] = location;
    append_feature(model, FeatureKind::moment, index, std::move(loc_unit), std::move(mag_unit));
    return Status::success();
}

Status add_support(BeamModel& model, double location, std::string type, std::string loc_unit,
                   std::string mag_unit) {
    if (auto room = check_room(model, FeatureKind::support); !room.ok()) {
        return room;
    }
    if (auto valid = check_support(model, location, type); !valid.ok()) return valid;
    const int index = ++model.su_count;
    model.su_loc[index] = location;
    model.su_type[index] = std::move(type);
    append_feature(model, FeatureKind::support, index, std::move(loc_unit), std::move(mag_unit));
    return Status::success();
}

Status remove_feature(BeamModel& model, int number) {
    const auto feature = lookup_feature(model, number);
    if (!feature) return Status::failure(kInvalidFeatureNumber);
    const bool was_largest = holds_largest_magnitude(model, *feature);
    const int i = feature->index;
    switch (feature->kind) {
        case FeatureKind::point_load:
            model.pt_mag[i] = 0.0;
            break;
        case FeatureKind::distributed_load:
            model.di_mag_start[i] = 0.0;
            model.di_mag_end[i] = 0.0;
            break;
        case FeatureKind::moment:
            model.mo_mag[i] = 0.0;
            break;
        case FeatureKind::support:
            model.su_loc[i] = -1.0;
            break;
    }
    if (was_largest) rescan_scale(model, feature->kind);
    mark_results_stale(model);
    return Status::success();
}

void clear_beam(BeamModel& model) {
    // A file that failed half-way may have left counts beyond the tables; never index past them.
    for (int j = 1; j <= std::min<int>(model.pt_count, kMaxPointLoads); ++j) {
        model.pt_mag[j] = model.pt_loc[j] = 0.0;
    }
    for (int j = 1; j <= std::min<int>(model.di_count, kMaxDistributedLoads); ++j) {
        model.di_mag_start[j] = model.di_mag_end[j] = model.di_start[j] = model.di_end[j] = 0.0;
    }
    for (int j = 1; j <= std::min<int>(model.mo_count, kMaxMoments); ++j) {
        model.mo_mag[j] = model.mo_loc[j] = 0.0;
    }
    for (int j = 1; j <= std::min<int>(model.su_count, kMaxSupports); ++j) {
        model.su_loc[j] = 0.0;
        model.su_type[j].clear();
    }
    for (int j = 1; j <= std::min<int>(model.feature_count, kMaxFeatures); ++j) {
        model.feature_list[j].clear();
        model.mag_unit[j].clear();
        model.loc_unit[j].clear();
    }
    model.pt_count = model.di_count = model.mo_count = model.su_count = 0;
    model.pt_drawn = model.di_drawn = model.mo_drawn = model.su_drawn = 0;
    model.feature_count = 0;
    model.pt_maxmag = model.pt_scalemag = model.mo_maxmag = model.mo_scalemag = 0.0;
    model.di_maxmag = model.di_scalemag = 0.0;
    model.resolution = kDefaultResolution;
    model.moment_of_inertia = model.elastic_modulus = model.fibre_distance = 0.0f;
    mark_results_stale(model);
}

}  // namespace flexley
