// The distributed load dialog distload_info: intensities at a start and an end location, varying
// linearly between them, held per inch or per metre.
#include "ui/dialogs/distributed_load_dialog.h"

#include <utility>

#include "model/feature_edits.h"
#include "model/units.h"

namespace flexley {

const LoadDialogDesign& distributed_load_design() {
    static const LoadDialogDesign design{
        "distload_info",
        {"Add Distributed Load", "Add Load"},
        FeatureKind::distributed_load,
        {"Label2", "Load Location (from left edge of beam)"},
        {{"Label3", "Start"}, {"Label4", "End"}},
        {{"loadstart", "starting location"}, {"loadend", "ending location"}},
        {feet_or_inches("engframe2"), fixed_unit("Label5", "m", "m")},
        {"Label1", "Load Magnitude"},
        {{"loadmag0", "starting magnitude"}, {"loadmag1", "ending magnitude"}},
        {{"engframe1", {{"pi", "lb/in", "pi"}, {"pf", "lb/ft", "pf", 1.0, kFootToInch}}, 1},
         kilograms_or_newtons("metframe", "kg/m", "N/m")},
        intensity_shown,
        [](const BeamModel& model, int i) {
            return LoadValues{{model.di_start[i], model.di_end[i]},
                              {model.di_mag_start[i], model.di_mag_end[i]}};
        },
        [](BeamModel& model, const LoadValues& values, std::string loc_unit, std::string mag_unit) {
            return add_distributed_load(model, values.locations[0], values.locations[1],
                                        values.magnitudes[0], values.magnitudes[1],
                                        std::move(loc_unit), std::move(mag_unit));
        },
        [](BeamModel& model, int number, const LoadValues& values, std::string loc_unit,
           std::string mag_unit) {
            return edit_distributed_load(model, number, values.locations[0], values.locations[1],
                                         values.magnitudes[0], values.magnitudes[1],
                                         std::move(loc_unit), std::move(mag_unit));
        },
    };
    return design;
}

}  // namespace flexley
