// The dialog of a load placed by location and magnitude: point loads, distributed loads and
// moments differ only in the design each gives it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "report/unit_choice.h"
#include "ui/dialogs/feature_dialog.h"

namespace flexley {

class NumberEntry;

// One location and one magnitude, or a start and an end of each, in model units.
struct LoadValues {
    std::vector<double> locations;
    std::vector<double> magnitudes;
};

// A control's name and its text: a caption, or for a box what it holds ("load location").
struct ControlText {
    const char* name;
    const char* text;
};

struct LoadDialogDesign {
    const char* name;
    AddCaptions captions;
    FeatureKind kind;
    ControlText location_caption;
    std::vector<ControlText> column_heads;  // over the boxes' columns; none for a single column
    std::vector<ControlText> location_boxes;
    UnitSystems location_units;
    ControlText magnitude_caption;
    std::vector<ControlText> magnitude_boxes;
    UnitSystems magnitude_units;
    // A stored magnitude in the unit its code names, as the feature's label shows it.
    ScaledValue (*shown_magnitude)(double magnitude, bool metric, std::string_view mag_unit);
    LoadValues (*stored)(const BeamModel& model, int index);
    Status (*add)(BeamModel& model, const LoadValues& values, std::string loc_unit,
                  std::string mag_unit);
    Status (*edit)(BeamModel& model, int number, const LoadValues& values, std::string loc_unit,
                   std::string mag_unit);
};

// The core's operations for a load at one location (point loads, moments) in a design's terms.
template <Status (*Add)(BeamModel&, double, double, std::string, std::string)>
Status add_at_location(BeamModel& model, const LoadValues& values, std::string loc_unit,
                       std::string mag_unit) {
    return Add(model, values.magnitudes[0], values.locations[0], std::move(loc_unit),
               std::move(mag_unit));
}

template <Status (*Edit)(BeamModel&, int, double, double, std::string, std::string)>
Status edit_at_location(BeamModel& model, int number, const LoadValues& values,
                        std::string loc_unit, std::string mag_unit) {
    return Edit(model, number, values.magnitudes[0], values.locations[0], std::move(loc_unit),
                std::move(mag_unit));
}

class LoadDialog final : public FeatureDialog {
    Q_OBJECT

  public:
    LoadDialog(const FeatureDialogContext& context, const LoadDialogDesign& design,
               QWidget* parent);

  private:
    std::vector<NumberEntry*> add_entry_row(const std::vector<ControlText>& boxes,
                                            const UnitSystems& units, UnitField*& field);
    void show_feature(FeatureRef entry, int feature_number) override;
    Status add() override;
    Status submit(int feature_number) override;
    // The boxes' values in model units, or the refusal of the first box that holds no number.
    Status read(LoadValues& values) const;

    const LoadDialogDesign& design_;
    UnitField* location_units_ = nullptr;
    UnitField* magnitude_units_ = nullptr;
    std::vector<NumberEntry*> locations_;
    std::vector<NumberEntry*> magnitudes_;
};

}  // namespace flexley
