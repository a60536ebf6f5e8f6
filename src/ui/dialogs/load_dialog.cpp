// The dialog of a load placed by location and magnitude, built from its kind's design.
#include "ui/dialogs/load_dialog.h"

#include <QLineEdit>

#include "ui/dialogs/number_entry.h"

namespace flexley {

LoadDialog::LoadDialog(const FeatureDialogContext& context, const LoadDialogDesign& design,
                       QWidget* parent)
    : FeatureDialog(context, design.name, design.kind, design.captions, parent), design_(design) {
    add_caption_row(design.location_caption.name, design.location_caption.text);
    for (std::size_t column = 0; column < design.column_heads.size(); ++column) {
        const ControlText& head = design.column_heads[column];
        add_head(head.name, head.text, static_cast<int>(column));
    }
    if (!design.column_heads.empty()) next_row();
    locations_ = add_entry_row(design.location_boxes, design.location_units, location_units_);
    add_caption_row(design.magnitude_caption.name, design.magnitude_caption.text);
    magnitudes_ = add_entry_row(design.magnitude_boxes, design.magnitude_units, magnitude_units_);
    finish_layout(&locations_.front()->box());
}

std::vector<NumberEntry*> LoadDialog::add_entry_row(const std::vector<ControlText>& boxes,
                                                    const UnitSystems& units, UnitField*& field) {
    std::vector<QLineEdit*> created;
    for (std::size_t column = 0; column < boxes.size(); ++column)
        created.push_back(add_box(boxes[column].name, static_cast<int>(column)));
    field = add_units(units, static_cast<int>(boxes.size()));
    next_row();
    std::vector<NumberEntry*> entries;
    for (std::size_t k = 0; k < boxes.size(); ++k)
        entries.push_back(new NumberEntry(*created[k], *field, boxes[k].text));
    return entries;
}

void LoadDialog::show_feature(FeatureRef entry, int feature_number) {
    const BeamModel& beam = model();
    const LoadValues stored = design_.stored(beam, entry.index);
    location_units_->choose(beam.loc_unit[feature_number]);
    magnitude_units_->choose(beam.mag_unit[feature_number]);
    const bool in_inches = std::string_view(location_units_->chosen().code) == "in";
    for (std::size_t k = 0; k < locations_.size(); ++k) {
        const double x = stored.locations[k];
        locations_[k]->show_stored(x, position_value(x, beam.metric_units, in_inches).value,
                                   beam.sig_figs);
    }
    for (std::size_t k = 0; k < magnitudes_.size(); ++k) {
        const double m = stored.magnitudes[k];
        const ScaledValue shown =
            design_.shown_magnitude(m, beam.metric_units, magnitude_units_->chosen().code);
        magnitudes_[k]->show_stored(m, shown.value, beam.sig_figs);
    }
}

Status LoadDialog::read(LoadValues& values) const {
    for (auto [entries, read_into] :
         {std::pair{&locations_, &values.locations}, std::pair{&magnitudes_, &values.magnitudes}}) {
        for (const NumberEntry* entry : *entries) {
            const std::optional<double> value = entry->value();
            if (!value) return Status::failure(entry->refusal());
            read_into->push_back(*value);
        }
    }
    return Status::success();
}

Status LoadDialog::add() {
    LoadValues values;
    if (Status typed = read(values); !typed.ok()) return typed;
    return design_.add(model(), values, location_units_->chosen().code,
                       magnitude_units_->chosen().code);
}

Status LoadDialog::submit(int feature_number) {
    LoadValues values;
    if (Status typed = read(values); !typed.ok()) return typed;
    return design_.edit(model(), feature_number, values, location_units_->chosen().code,
                        magnitude_units_->chosen().code);
}

}  // namespace flexley
