// The support dialog support_info: adds simple and cantilever supports, moves simple ones.
#include "ui/dialogs/support_dialog.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

#include "model/feature_edits.h"
#include "model/feature_rules.h"
#include "report/unit_choice.h"
#include "ui/dialogs/cantilever_placement.h"
#include "ui/dialogs/number_entry.h"
#include "ui/dialogs/option_frame.h"

namespace flexley {

SupportDialog::SupportDialog(const FeatureDialogContext& context, QWidget* parent)
    : FeatureDialog(context, "support_info", FeatureKind::support, {"Add Support", "Add Support"},
                    parent) {
    add_caption_row("Label1", "Location of support (from left edge of beam)");
    QLineEdit* box = add_box("suploc", 0);
    // Metric supports record no unit codes.
    units_ = add_units({feet_or_inches("engframe1"), fixed_unit("met", "m", "")}, 1);
    next_row();
    location_ = new NumberEntry(*box, *units_, "support location");
    cantilever_ = new QRadioButton("Cantilever support");
    cantilever_->setObjectName("cantilever");
    simple_ = new QRadioButton("Simple support");
    simple_->setObjectName("simple");
    simple_->setChecked(true);
    type_frame_ = option_frame("Frame1", "Type of Support", {cantilever_, simple_}, Qt::Vertical);
    add_row_widget(type_frame_);
    connect(cantilever_, &QRadioButton::toggled, this, &SupportDialog::show_type);
    finish_layout(box);
}

void SupportDialog::show_type() {
    const bool simple = simple_->isChecked();
    location_->box().setEnabled(simple);
    units_->setEnabled(simple);
}

void SupportDialog::show_editing(bool editing) {
    type_frame_->setEnabled(!editing);
}

Status SupportDialog::editable(FeatureRef entry) const {
    if (model().su_type[entry.index] == "cant") return Status::failure(kCantileverCannotMove);
    return Status::success();
}

void SupportDialog::show_feature(FeatureRef entry, int feature_number) {
    const BeamModel& beam = model();
    simple_->setChecked(true);
    units_->choose(beam.loc_unit[feature_number]);
    const double x = beam.su_loc[entry.index];
    const bool in_inches = std::string_view(units_->chosen().code) == "in";
    location_->show_stored(x, position_value(x, beam.metric_units, in_inches).value, beam.sig_figs);
}

// English supports record the unit their location was typed in, and pounds for their reaction;
// a cantilever's location is never typed, so it records none.
Status SupportDialog::add() {
    const std::string mag_unit = model().metric_units ? "" : "lb";
    if (cantilever_->isChecked()) {
        const CantileverPlacement place = place_cantilever(model());
        if (place.refusal) return Status::failure(place.refusal);
        return add_support(model(), place.location, "cant", "", mag_unit);
    }
    const std::optional<double> location = location_->value();
    if (!location) return Status::failure(location_->refusal());
    return add_support(model(), *location, "simp", units_->chosen().code, mag_unit);
}

Status SupportDialog::submit(int feature_number) {
    const std::optional<double> location = location_->value();
    if (!location) return Status::failure(location_->refusal());
    // A metric support keeps whatever code it came with.
    const std::string code =
        model().metric_units ? model().loc_unit[feature_number] : units_->chosen().code;
    return edit_support(model(), feature_number, *location, code);
}

}  // namespace flexley
