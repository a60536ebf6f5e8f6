// The moment dialog moment_info: a signed couple at a location, held in pound-inches or
// newton-metres.
#include "ui/dialogs/moment_dialog.h"

#include <utility>

#include "model/feature_edits.h"
#include "model/units.h"

namespace flexley {

const LoadDialogDesign& moment_design() {
    static const LoadDialogDesign design{
        "moment_info",
        {"Add Moment", "Add Moment"},
        FeatureKind::moment,
        {"Label2", "Moment Location (from left edge of beam)"},
        {},
        {{"loadloc", "moment location"}},
        {feet_or_inches("engframe2"), fixed_unit("Label4", "m", "m")},
        {"Label1", "Moment Magnitude"},
        {{"loadmag", "moment magnitude"}},
        {{"engframe1", {{"pf", "lb-ft", "pf", kFootToInch}, {"pi", "lb-in", "pi"}}, 0},
         kilograms_or_newtons("metframe", "kg-m", "N-m")},
        moment_load_shown,
        [](const BeamModel& model, int i) {
            return LoadValues{{model.mo_loc[i]}, {model.mo_mag[i]}};
        },
        [](BeamModel& model, const LoadValues& values, std::string loc_unit, std::string mag_unit) {
            return add_moment(model, values.magnitudes[0], values.locations[0], std::move(loc_unit),
                              std::move(mag_unit));
        },
        [](BeamModel& model, int number, const LoadValues& values, std::string loc_unit,
           std::string mag_unit) {
            return edit_moment(model, number, values.magnitudes[0], values.locations[0],
                               std::move(loc_unit), std::move(mag_unit));
        },
    };
    return design;
}

}  // namespace flexley
