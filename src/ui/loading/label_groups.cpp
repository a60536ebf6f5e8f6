// Creating, moving, recaptioning and blanking the Loading Screen's label groups.
#include "ui/loading/label_groups.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "model/display.h"
#include "model/limits.h"
#include "model/units.h"
#include "report/unit_choice.h"

namespace flexley {

namespace {

// Breathing room either side of a caption, so a measured text never touches its label's edges.
constexpr int kCaptionMargin = 60;
constexpr int kLabelHeight = 200;
constexpr int kSlotSpacing = 200;
// The group's distance from the far end of its shape: above it, to the feature label's top;
// below it, to the feature label's top when the group is created and once it is restacked.
constexpr int kAboveOffset = -800;
constexpr int kCreatedBelowOffset = 25;
constexpr int kRestackedBelowOffset = 50;

int rounded(double value) {
    return static_cast<int>(std::nearbyint(value));
}

int even_at_least(int value) {
    return value + (value % 2);
}

struct Captions {
    std::string title;
    std::string value;
    std::string position;
};

// Tops of the four slots, 200 apart, the first at `first`.
std::array<int, kLabelsPerGroup> stacked_tops(double first) {
    std::array<int, kLabelsPerGroup> tops{};
    for (int k = 0; k < kLabelsPerGroup; ++k)
        tops[k] = rounded(first + k * kSlotSpacing);
    return tops;
}

// A load's group stands above the arrow's tail when it points down, below its end when it
// points up.
std::array<int, kLabelsPerGroup> load_tops(const ScreenGeometry& geometry, double h,
                                           int below_offset) {
    if (h > 0) return stacked_tops(geometry.beam_y_top - h + kAboveOffset);
    return stacked_tops(geometry.beam_y_bottom - h + below_offset);
}

// Direction is shown by the drawing, so every number is shown without its sign.
class CaptionWriter {
  public:
    CaptionWriter(const BeamModel& model, int feature_number)
        : model_(model),
          loc_unit_(model.loc_unit[feature_number]),
          mag_unit_(model.mag_unit[feature_number]) {}

    Captions of(FeatureRef entry) const {
        const int i = entry.index;
        switch (entry.kind) {
            case FeatureKind::point_load:
                return concentrated("Point Load", point_load_shown, model_.pt_mag[i],
                                    model_.pt_loc[i]);
            case FeatureKind::distributed_load:
                return {"Dist. Load",
                        "start=" + intensity_at(model_.di_mag_start[i], model_.di_start[i]),
                        "end=" + intensity_at(model_.di_mag_end[i], model_.di_end[i])};
            case FeatureKind::moment:
                return concentrated("Moment", moment_load_shown, model_.mo_mag[i],
                                    model_.mo_loc[i]);
            case FeatureKind::support:
                return {model_.su_type[i] == "simp" ? "Simple Support" : "Cantilever Support",
                        position(model_.su_loc[i]), ""};
        }
        return {};
    }

  private:
    using ValueInUnit = ScaledValue (*)(double magnitude, bool metric, std::string_view mag_unit);

    Captions concentrated(const char* title, ValueInUnit value, double magnitude, double x) const {
        return {title, shown(value(std::abs(magnitude), model_.metric_units, mag_unit_)),
                position(x)};
    }

    std::string shown(ScaledValue value) const { return value_text(value, model_.sig_figs); }

    std::string place(double x) const {
        return shown(position_value(x, model_.metric_units, loc_unit_ == "in"));
    }

    std::string position(double x) const { return "x=" + place(x); }

    std::string intensity_at(double magnitude, double x) const {
        return shown(intensity_shown(std::abs(magnitude), model_.metric_units, mag_unit_)) + ", " +
               place(x);
    }

    const BeamModel& model_;
    const std::string& loc_unit_;
    const std::string& mag_unit_;
};

// The kind's control name prefixes of slots 1 to 3.
std::array<const char*, 3> slot_prefixes(FeatureKind kind) {
    switch (kind) {
        case FeatureKind::point_load:
            return {"loadtitle", "loadlab", "loadlab2"};
        case FeatureKind::distributed_load:
            return {"dloadtitle", "dloadlab", "dloadlab2"};
        case FeatureKind::moment:
            return {"mloadtitle", "mloadlab", "mloadlab2"};
        case FeatureKind::support:
            return {"sloadtitle", "sloadlab", "sloadlab2"};
    }
    return {};
}

// Width and height of slots 1 to 3; slot 0 is always 1000 by 200. Values of a distributed load
// carry two numbers with units, a support's reaction text may take two lines.
std::array<std::pair<int, int>, 3> slot_sizes(FeatureKind kind) {
    switch (kind) {
        case FeatureKind::point_load:
            return {{{1000, 200}, {1000, 200}, {1000, 200}}};
        case FeatureKind::distributed_load:
            return {{{1000, 200}, {4000, 200}, {4000, 200}}};
        case FeatureKind::moment:
            return {{{1000, 200}, {1500, 200}, {1000, 200}}};
        case FeatureKind::support:
            return {{{2000, 200}, {1000, 200}, {1300, 400}}};
    }
    return {};
}

// Signed heights of shapes in drawing units, by which label groups are placed. A kind without a
// largest magnitude (a model read from a damaged file) places its groups on the beam.
double point_load_height(const BeamModel& model, const ScreenGeometry& geometry, double v) {
    return v == 0 || model.pt_maxmag == 0 ? 0.0 : v * geometry.plot_height / model.pt_maxmag;
}

double distributed_height(const BeamModel& model, const ScreenGeometry& geometry, double v) {
    return v == 0 || model.di_maxmag == 0 ? 0.0 : v / model.di_maxmag * geometry.plot_height / 2;
}

double moment_height(const BeamModel& model, const ScreenGeometry& geometry, double v) {
    return v == 0 || model.mo_maxmag == 0 ? 0.0 : v / model.mo_maxmag * geometry.arc_radius;
}

// The intensity that decides a distributed load's drawn height: the end's when it is at least
// as large as the start's.
double larger_intensity(const BeamModel& model, int i) {
    const double start = model.di_mag_start[i];
    const double end = model.di_mag_end[i];
    return std::abs(end) >= std::abs(start) ? end : start;
}

struct Placement {
    double x;  // screen x of the group's centre
    std::array<int, kLabelsPerGroup> tops;
};

Placement created_placement(const BeamModel& model, const ScreenGeometry& geometry,
                            FeatureRef entry) {
    const int i = entry.index;
    auto x_of = [&](double position) { return geometry.screen_x(position, model.beam_length); };
    switch (entry.kind) {
        case FeatureKind::point_load: {
            const double h = point_load_height(model, geometry, model.pt_mag[i]);
            return {x_of(model.pt_loc[i]), load_tops(geometry, h, kCreatedBelowOffset)};
        }
        case FeatureKind::distributed_load: {
            const double h = distributed_height(model, geometry, larger_intensity(model, i));
            return {x_of((model.di_start[i] + model.di_end[i]) / 2),
                    load_tops(geometry, h, kCreatedBelowOffset)};
        }
        case FeatureKind::moment: {
            const double h = moment_height(model, geometry, std::abs(model.mo_mag[i]));
            return {x_of(model.mo_loc[i]), stacked_tops(geometry.beam_y_top - h + kAboveOffset)};
        }
        case FeatureKind::support:
            return {x_of(model.su_loc[i]),
                    stacked_tops(geometry.beam_y_bottom + geometry.support_height() +
                                 kCreatedBelowOffset)};
    }
    return {};
}

// The restacked tops of a load, none for a support or a removed feature. Restacking measures the
// magnitude in single precision, creation in full; the tops differ only for extreme ratios.
std::optional<std::array<int, kLabelsPerGroup>> restacked_tops(const BeamModel& model,
                                                               const ScreenGeometry& geometry,
                                                               FeatureRef entry) {
    const int i = entry.index;
    double h = 0;
    switch (entry.kind) {
        case FeatureKind::point_load:
            h = point_load_height(model, geometry, static_cast<float>(model.pt_mag[i]));
            break;
        case FeatureKind::distributed_load:
            h = distributed_height(model, geometry, static_cast<float>(larger_intensity(model, i)));
            break;
        case FeatureKind::moment:
            h = moment_height(model, geometry, static_cast<float>(std::abs(model.mo_mag[i])));
            break;
        case FeatureKind::support:
            return std::nullopt;
    }
    if (h == 0) return std::nullopt;
    // Moments always stand above the beam, whatever their sense.
    if (h < 0 && entry.kind != FeatureKind::moment)
        return stacked_tops(geometry.beam_y_bottom - h + kRestackedBelowOffset);
    return stacked_tops(geometry.beam_y_top - h + kAboveOffset);
}

int capacity_of(FeatureKind kind) {
    switch (kind) {
        case FeatureKind::point_load:
            return kMaxPointLoads;
        case FeatureKind::distributed_load:
            return kMaxDistributedLoads;
        case FeatureKind::moment:
            return kMaxMoments;
        case FeatureKind::support:
            return kMaxSupports;
    }
    return 0;
}

// Whether a load just created is the kind's largest and the largest has grown since the older
// groups were placed, so that they must move to the new scale. Supports have no scale.
bool became_largest(const BeamModel& model, FeatureRef entry) {
    const int i = entry.index;
    auto grew = [](double magnitude, double maxmag, double scalemag) {
        return magnitude == maxmag && maxmag != scalemag;
    };
    switch (entry.kind) {
        case FeatureKind::point_load:
            return grew(std::abs(model.pt_mag[i]), model.pt_maxmag, model.pt_scalemag);
        case FeatureKind::distributed_load:
            return grew(std::abs(larger_intensity(model, i)), model.di_maxmag, model.di_scalemag);
        case FeatureKind::moment:
            return grew(std::abs(model.mo_mag[i]), model.mo_maxmag, model.mo_scalemag);
        case FeatureKind::support:
            return false;
    }
    return false;
}

Label laid_out(std::string name, std::string caption, double centre, int top, int width,
               int height) {
    Label label;
    label.name = std::move(name);
    label.caption = std::move(caption);
    label.left = rounded(centre - width / 2.0);
    label.top = top;
    label.width = label.base_width = width;
    label.height = label.base_height = height;
    return label;
}

}  // namespace

FeatureLabels::FeatureLabels(MeasureText measure) : measure_(std::move(measure)) {}

const FeatureLabelGroup& FeatureLabels::group(int feature_number) const {
    return groups_.at(feature_number - 1);
}

FeatureLabelGroup FeatureLabels::build_group(const BeamModel& model, const ScreenGeometry& geometry,
                                             FeatureRef entry, int feature_number) const {
    const Placement placement = created_placement(model, geometry, entry);
    const Captions captions = CaptionWriter(model, feature_number).of(entry);
    const auto prefixes = slot_prefixes(entry.kind);
    const auto sizes = slot_sizes(entry.kind);
    const std::string index = std::to_string(entry.index);
    const std::array<std::string, 3> slot_captions{captions.title, captions.value,
                                                   captions.position};

    FeatureLabelGroup group;
    group.kind = entry.kind;
    const std::string number = std::to_string(feature_number);
    Label& feature = group.labels[kFeatureSlot];
    feature = laid_out("featlabel" + number, "Feature " + number, placement.x,
                       placement.tops[kFeatureSlot], 1000, kLabelHeight);
    feature.bold = feature.underline = true;
    for (int k = 1; k < kLabelsPerGroup; ++k)
        group.labels[k] = laid_out(prefixes[k - 1] + index, slot_captions[k - 1], placement.x,
                                   placement.tops[k], sizes[k - 1].first, sizes[k - 1].second);
    for (Label& label : group.labels)
        fit(label);
    return group;
}

void FeatureLabels::label_entry(const BeamModel& model, const ScreenGeometry& geometry,
                                FeatureRef entry, int16_t& drawn, int feature_number) {
    if (entry.index < 1 || entry.index > capacity_of(entry.kind) || entry.index <= drawn) return;
    drawn = static_cast<int16_t>(entry.index);
    place_group(feature_number, build_group(model, geometry, entry, feature_number));
    if (became_largest(model, entry)) restack_labels(model, geometry, feature_number);
}

void FeatureLabels::label_point_load(const BeamModel& model, const ScreenGeometry& geometry,
                                     int count, int16_t& drawn, int feature_number) {
    label_entry(model, geometry, {FeatureKind::point_load, count}, drawn, feature_number);
}

void FeatureLabels::label_distributed_load(const BeamModel& model, const ScreenGeometry& geometry,
                                           int count, int16_t& drawn, int feature_number) {
    label_entry(model, geometry, {FeatureKind::distributed_load, count}, drawn, feature_number);
}

void FeatureLabels::label_moment(const BeamModel& model, const ScreenGeometry& geometry, int count,
                                 int16_t& drawn, int feature_number) {
    label_entry(model, geometry, {FeatureKind::moment, count}, drawn, feature_number);
}

void FeatureLabels::label_support(const BeamModel& model, const ScreenGeometry& geometry, int count,
                                  int16_t& drawn, int feature_number) {
    label_entry(model, geometry, {FeatureKind::support, count}, drawn, feature_number);
}

void FeatureLabels::label_new_features(BeamModel& model, const ScreenGeometry& geometry) {
    label_point_load(model, geometry, model.pt_count, model.pt_drawn, model.feature_count);
    label_distributed_load(model, geometry, model.di_count, model.di_drawn, model.feature_count);
    label_moment(model, geometry, model.mo_count, model.mo_drawn, model.feature_count);
    label_support(model, geometry, model.su_count, model.su_drawn, model.feature_count);
}

void FeatureLabels::create_groups_from_file(const BeamModel& model, const ScreenGeometry& geometry,
                                            const std::vector<LabelGroup>& label_groups) {
    groups_.clear();
    for (int n = 1; n <= static_cast<int>(label_groups.size()); ++n) {
        const auto entry = lookup_feature(model, n);
        if (label_groups[n - 1] == LabelGroup::placeholder || !entry) {
            add_blank_labels(n);
            continue;
        }
        // A fresh counter, so the group is created whatever the model's counters say.
        int16_t drawn = 0;
        label_entry(model, geometry, *entry, drawn, n);
    }
}

void FeatureLabels::add_blank_labels(int feature_number) {
    FeatureLabelGroup group;
    for (int k = 0; k < kLabelsPerGroup; ++k) {
        group.labels[k].name = "blank" + std::to_string(feature_number) + std::to_string(k + 1);
        group.labels[k].width = group.labels[k].base_width = 1000;
        group.labels[k].height = group.labels[k].base_height = kLabelHeight;
    }
    place_group(feature_number, std::move(group));
}

void FeatureLabels::restack_labels(const BeamModel& model, const ScreenGeometry& geometry, int n) {
    const int last = std::min({n - 1, group_count(), static_cast<int>(model.feature_count)});
    for (int f = 1; f <= last; ++f) {
        const auto entry = lookup_feature(model, f);
        if (!entry || !groups_[f - 1].kind) continue;
        const auto tops = restacked_tops(model, geometry, *entry);
        if (!tops) continue;
        for (int k = 0; k < kLabelsPerGroup; ++k)
            groups_[f - 1].labels[k].top = (*tops)[k];
    }
}

void FeatureLabels::blank_group(int feature_number) {
    if (feature_number < 1 || feature_number > group_count()) return;
    for (Label& label : groups_[feature_number - 1].labels)
        set_caption(label, "");
}

void FeatureLabels::relabel_features(const BeamModel& model) {
    const int last = std::min(group_count(), static_cast<int>(model.feature_count));
    for (int f = 1; f <= last; ++f) {
        const auto entry = lookup_feature(model, f);
        if (!entry || !groups_[f - 1].kind || is_removed(model, *entry)) continue;
        const Captions captions = CaptionWriter(model, f).of(*entry);
        auto& labels = groups_[f - 1].labels;
        set_caption(labels[kValueSlot], captions.value);
        set_caption(labels[kPositionSlot], captions.position);
    }
}

void FeatureLabels::relabel_feature(const BeamModel& model, const ScreenGeometry& geometry,
                                    int feature_number) {
    const auto entry = lookup_feature(model, feature_number);
    if (!entry || feature_number > group_count() || is_removed(model, *entry)) return;
    FeatureLabelGroup fresh = build_group(model, geometry, *entry, feature_number);
    // Heights are left to the restack that follows an edit.
    const auto& old = groups_[feature_number - 1].labels;
    for (int k = 0; k < kLabelsPerGroup; ++k)
        fresh.labels[k].top = old[k].top;
    groups_[feature_number - 1] = std::move(fresh);
}

void FeatureLabels::show_reaction_texts(const std::vector<ReactionText>& texts) {
    for (const auto& reaction : texts) {
        const int n = reaction.feature_number;
        if (n < 1 || n > group_count() || groups_[n - 1].kind != FeatureKind::support) continue;
        Label& label = groups_[n - 1].labels[kPositionSlot];
        label.colour = drawing::kRedBrown;
        label.bold = true;
        label.visible = true;
        set_caption(label, reaction.text);
    }
}

void FeatureLabels::blank_reaction_texts() {
    for (auto& group : groups_)
        if (group.kind == FeatureKind::support) set_caption(group.labels[kPositionSlot], "");
}

void FeatureLabels::place_group(int feature_number, FeatureLabelGroup group) {
    // A number beyond the next keeps its predecessors' places with blanks, so group n always
    // stays group n.
    while (group_count() < feature_number - 1)
        add_blank_labels(group_count() + 1);
    if (feature_number <= group_count())
        groups_[feature_number - 1] = std::move(group);
    else
        groups_.push_back(std::move(group));
}

void FeatureLabels::set_caption(Label& label, std::string caption) {
    label.caption = std::move(caption);
    fit(label);
}

void FeatureLabels::fit(Label& label) const {
    const int centre = label.left + label.width / 2;
    const TextExtent extent = measure_ ? measure_(label.caption, label.bold) : TextExtent{};
    const int needed = label.caption.empty() ? 0 : even_at_least(extent.width + kCaptionMargin);
    label.width = std::max(label.base_width, needed);
    label.height = std::max(label.base_height, extent.height);
    label.left = centre - label.width / 2;
}

}  // namespace flexley
