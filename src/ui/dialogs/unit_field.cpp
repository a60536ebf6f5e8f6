// The unit a number box is typed in: a choice of two options, or a fixed unit, per unit system.
#include "ui/dialogs/unit_field.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include "model/units.h"
#include "ui/dialogs/option_frame.h"

namespace flexley {

UnitSet feet_or_inches(const char* frame_name) {
    return {frame_name, {{"feet", "feet", "ft", kFootToInch}, {"inch", "inches", "in"}}, 0};
}

UnitSet kilograms_or_newtons(const char* frame_name, const char* kilogram_caption,
                             const char* newton_caption) {
    return {frame_name,
            {{"kg", kilogram_caption, "kg", kKilogramToNewton}, {"N", newton_caption, "N"}},
            1};
}

UnitSet fixed_unit(const char* label_name, const char* caption, const char* code) {
    return {label_name, {{"", caption, code}}, 0};
}

UnitField::UnitField(const UnitSystems& units, QWidget* parent) : QWidget(parent) {
    english_side_.set = units.english;
    metric_side_.set = units.metric;
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (Side* side : {&english_side_, &metric_side_}) {
        build(*side);
        row->addWidget(side->widget);
    }
    // The field takes the room of its larger side, so a dialog keeps its size and the rhythm of
    // its rows in either unit system.
    setMinimumSize(english_side_.widget->sizeHint().expandedTo(metric_side_.widget->sizeHint()));
    show_system(false);
}

void UnitField::build(Side& side) {
    const UnitSet& set = side.set;
    if (set.options.size() == 1) {
        side.widget = new QLabel(set.options.front().caption, this);
        side.widget->setObjectName(set.name);
        return;
    }
    for (std::size_t k = 0; k < set.options.size(); ++k) {
        auto* button = new QRadioButton(set.options[k].caption, this);
        button->setObjectName(set.options[k].name);
        button->setChecked(static_cast<int>(k) == set.preset);
        connect(button, &QRadioButton::clicked, this, &UnitField::clicked);
        side.buttons.push_back(button);
    }
    side.widget = option_frame(set.name, {}, {side.buttons[0], side.buttons[1]});
    side.widget->setParent(this);
}

void UnitField::show_system(bool metric) {
    metric_ = metric;
    english_side_.widget->setVisible(!metric);
    metric_side_.widget->setVisible(metric);
}

const UnitOption& UnitField::chosen() const {
    const Side& side = shown();
    for (std::size_t k = 0; k < side.buttons.size(); ++k) {
        if (side.buttons[k]->isChecked()) return side.set.options[k];
    }
    return side.set.options.front();
}

void UnitField::choose(std::string_view code) {
    Side& side = shown();
    int chosen = side.set.preset;
    for (std::size_t k = 0; k < side.set.options.size(); ++k) {
        if (code == side.set.options[k].code) chosen = static_cast<int>(k);
    }
    if (!side.buttons.empty()) side.buttons[chosen]->setChecked(true);
}

}  // namespace flexley
