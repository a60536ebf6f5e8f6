// The unit a number box is typed in: a choice of two options, or a fixed unit, per unit system.
#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

class QRadioButton;

namespace flexley {

// One unit a value can be typed in. The model holds typed x times / per: feet are typed x 12 / 1
// inches, pounds per foot typed x 1 / 12 pounds per inch. Dividing keeps 12 lb/ft exactly 1 lb/in.
struct UnitOption {
    const char* name;     // the option button's control name
    const char* caption;  // its caption, or the text of a fixed unit's label
    const char* code;     // the unit code the feature records ("ft", "kg", "pf")
    double times = 1.0;
    double per = 1.0;

    double to_model(double typed) const { return typed * times / per; }
};

// The units of one unit system: a frame of options, or a label when there is only one, both
// named `name`. The option at `preset` is chosen when the dialog opens.
struct UnitSet {
    const char* name;
    std::vector<UnitOption> options;
    int preset = 0;
};

struct UnitSystems {
    UnitSet english;
    UnitSet metric;
};

// The unit sets the dialogs have in common.
// English locations: feet, preset, or inches.
UnitSet feet_or_inches(const char* frame_name);
// Metric magnitudes: kilograms-force or newtons, preset, with the kind's captions ("kg/m").
UnitSet kilograms_or_newtons(const char* frame_name, const char* kilogram_caption,
                             const char* newton_caption);
// A unit without a choice, shown as a label.
UnitSet fixed_unit(const char* label_name, const char* caption, const char* code);

// Shows the units of the beam's unit system beside a box and tells which one is chosen.
class UnitField final : public QWidget {
    Q_OBJECT

  public:
    explicit UnitField(const UnitSystems& units, QWidget* parent = nullptr);

    // Shows the English or the metric units; every other call answers for the system shown.
    void show_system(bool metric);
    bool metric_shown() const { return metric_; }

    const UnitOption& chosen() const;
    // Chooses the option that records `code`, or the preset one when no option does.
    void choose(std::string_view code);

  signals:
    // The user chose an option.
    void clicked();

  private:
    struct Side {
        UnitSet set;
        QWidget* widget = nullptr;
        std::vector<QRadioButton*> buttons;
    };

    void build(Side& side);
    Side& shown() { return metric_ ? metric_side_ : english_side_; }
    const Side& shown() const { return metric_ ? metric_side_ : english_side_; }

    Side english_side_;
    Side metric_side_;
    bool metric_ = false;
};

}  // namespace flexley
