// The Loading Screen's label groups as data: four labels per feature number, found by that number.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "analysis/reaction_text.h"
#include "files/load_file.h"
#include "model/beam_model.h"
#include "model/features.h"
#include "ui/common/picture.h"
#include "ui/loading/screen_geometry.h"

namespace flexley {

// The size of a caption as the window will show it, in drawing units.
struct TextExtent {
    int width = 0;
    int height = 0;
};
using MeasureText = std::function<TextExtent(const std::string& text, bool bold)>;

// One label, in drawing units. Its text is centred horizontally and starts at the top.
struct Label {
    std::string name;  // the control name, such as "featlabel3" or "loadlab2"
    std::string caption;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool visible = true;
    drawing::Colour colour = drawing::kBlack;
    bool bold = false;
    bool underline = false;
    // The laid-out size, which the label keeps however short its caption; a longer caption
    // widens it about its centre.
    int base_width = 0;
    int base_height = 0;
};

inline constexpr int kLabelsPerGroup = 4;
// Slots of a group: the feature number, the kind's title, the value, the position (for a support
// the reaction text).
inline constexpr int kFeatureSlot = 0;
inline constexpr int kTitleSlot = 1;
inline constexpr int kValueSlot = 2;
inline constexpr int kPositionSlot = 3;

struct FeatureLabelGroup {
    std::optional<FeatureKind> kind;  // none for the blank placeholders of a removed feature
    std::array<Label, kLabelsPerGroup> labels;
};

// The label groups of features 1..group_count(), group n belonging to feature number n.
class FeatureLabels {
  public:
    // Labels are sized to fit their captions as measured here, so that none is ever clipped
    // whatever the font, the significant figures or the length of a reaction text. The window
    // measures with its own font metrics; the laid-out sizes stay the least a label takes.
    explicit FeatureLabels(MeasureText measure);

    int group_count() const { return static_cast<int>(groups_.size()); }
    // Group of feature number n, 1 <= n <= group_count().
    const FeatureLabelGroup& group(int feature_number) const;
    const std::vector<FeatureLabelGroup>& groups() const { return groups_; }

    // Creates the group of table entry `count` for `feature_number` when count exceeds `drawn`,
    // and records it as drawn; when the load is the kind's new largest, restacks the older groups.
    void label_point_load(const BeamModel& model, const ScreenGeometry& geometry, int count,
                          int16_t& drawn, int feature_number);
    void label_distributed_load(const BeamModel& model, const ScreenGeometry& geometry, int count,
                                int16_t& drawn, int feature_number);
    void label_moment(const BeamModel& model, const ScreenGeometry& geometry, int count,
                      int16_t& drawn, int feature_number);
    void label_support(const BeamModel& model, const ScreenGeometry& geometry, int count,
                       int16_t& drawn, int feature_number);

    // The four creations of a redraw, with the model's counts and drawing counters.
    void label_new_features(BeamModel& model, const ScreenGeometry& geometry);

    // After a file was read: every feature's group, or blank placeholders for a removed one.
    void create_groups_from_file(const BeamModel& model, const ScreenGeometry& geometry,
                                 const std::vector<LabelGroup>& label_groups);

    // Four blank labels named "blank" + n + 1..4 that keep feature number n's places.
    void add_blank_labels(int feature_number);

    // Moves the groups of features 1..n-1 to the current drawing scale; only tops change.
    void restack_labels(const BeamModel& model, const ScreenGeometry& geometry, int n);

    // Empties the captions of feature n's group, as removing the feature does.
    void blank_group(int feature_number);

    // Rewrites the value and position captions of every feature still on the beam.
    void relabel_features(const BeamModel& model);

    // After an edit: feature n's captions from the model, and its group centred on its new place.
    void relabel_feature(const BeamModel& model, const ScreenGeometry& geometry,
                         int feature_number);

    // Puts each reaction text on the fourth label of its support, red-brown and bold.
    void show_reaction_texts(const std::vector<ReactionText>& texts);
    // Blanks every support's reaction text, as stale results must not stay on screen.
    void blank_reaction_texts();

    // No groups at all, as after clear_beam.
    void clear() { groups_.clear(); }

  private:
    FeatureLabelGroup build_group(const BeamModel& model, const ScreenGeometry& geometry,
                                  FeatureRef entry, int feature_number) const;
    // The creation shared by every kind.
    void label_entry(const BeamModel& model, const ScreenGeometry& geometry, FeatureRef entry,
                     int16_t& drawn, int feature_number);
    void place_group(int feature_number, FeatureLabelGroup group);
    void set_caption(Label& label, std::string caption);
    void fit(Label& label) const;

    MeasureText measure_;
    std::vector<FeatureLabelGroup> groups_;
};

}  // namespace flexley
