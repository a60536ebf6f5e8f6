// The moment dialog moment_info: a signed couple at a location, held in pound-inches or
// newton-metres.
#include "ui/dialogs/moment_dialog.h"

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
        add_at_location<add_moment>,
        edit_at_location<edit_moment>,
    };
    return design;
}

}  // namespace flexley
