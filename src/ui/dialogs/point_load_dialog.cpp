// The point load dialog load_info: a signed load at a location, in pounds, newtons or kilograms.
#include "ui/dialogs/point_load_dialog.h"

#include "model/feature_edits.h"

namespace flexley {

const LoadDialogDesign& point_load_design() {
    static const LoadDialogDesign design{
        "load_info",
        {"Add Point Load", "Add Load"},
        FeatureKind::point_load,
        {"Label2", "Load Location (from left edge of beam)"},
        {},
        {{"loadloc", "load location"}},
        {feet_or_inches("engframe"), fixed_unit("Label5", "m", "m")},
        {"Label1", "Load Magnitude"},
        {{"loadmag", "load magnitude"}},
        {fixed_unit("poundlabel", "lb.", "lb"), kilograms_or_newtons("metframe", "kg", "N")},
        point_load_shown,
        [](const BeamModel& model, int i) {
            return LoadValues{{model.pt_loc[i]}, {model.pt_mag[i]}};
        },
        add_at_location<add_point_load>,
        edit_at_location<edit_point_load>,
    };
    return design;
}

}  // namespace flexley
