// The feature list and the feature tables: adding, looking up, removing and clearing features.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/beam_model.h"
#include "model/status.h"

namespace flexley {

enum class FeatureKind { point_load, distributed_load, moment, support };

struct FeatureRef {
    FeatureKind kind;
    int index;  // 1-based index into the kind's table
};

// The number of entries used in the kind's table.
int table_count(const BeamModel& model, FeatureKind kind);

// "pt", "di", "mo" or "su".
std::string_view kind_code(FeatureKind kind);

// Parses a feature-list entry such as "pt3": the kind code, then the decimal table index.
// Gives nothing for an unknown kind code or an index that is not a plain positive number.
std::optional<FeatureRef> parse_feature_entry(std::string_view entry);

// The feature the user knows as `number`; nothing when the number is outside 1..feature_count
// or its entry does not name a used table slot.
std::optional<FeatureRef> lookup_feature(const BeamModel& model, int number);

// Whether a table entry has been removed: zero magnitude (both intensities for a distributed load)
// or, for a support, a negative position.
bool is_removed(const BeamModel& model, FeatureRef feature);

// The first feature number whose entry names this table entry, or 0 when none does.
int feature_number_of(const BeamModel& model, FeatureRef feature);

inline constexpr const char* kInvalidFeatureNumber = "Invalid feature number.";

// Whether one more feature of the kind fits: a full table or feature list gives the refusal that
// names the limit. Removed features keep their places, so the counts meet the limits.
Status check_room(const BeamModel& model, FeatureKind kind);

// Adding appends to the kind's table and the feature list and keeps the drawing scale of the kind.
// A full table or feature list, or a feature the geometry rules refuse (feature_rules.h), refuses
// the addition and leaves the model as it was.
Status add_point_load(BeamModel& model, double magnitude, double location, std::string loc_unit,
                      std::string mag_unit);
Status add_distributed_load(BeamModel& model, double start, double end, double mag_start,
                            double mag_end, std::string loc_unit, std::string mag_unit);
Status add_moment(BeamModel& model, double magnitude, double location, std::string loc_unit,
                  std::string mag_unit);
Status add_support(BeamModel& model, double location, std::string type, std::string loc_unit,
                   std::string mag_unit);

// Neutralises feature `number` in its table (loads to zero magnitude, supports to position -1);
// the feature number stays taken. Refuses a number that does not name a feature.
Status remove_feature(BeamModel& model, int number);

// Empties every table and the feature list; resolution back to 10000, I, E and c to 0.
// Length, unit system and display precision are kept; the results are kept but stale.
void clear_beam(BeamModel& model);

}  // namespace flexley
