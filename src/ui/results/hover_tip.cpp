// The hover tip over a plot: the nearest calculated point's position and value.
#include "ui/results/hover_tip.h"

#include "model/grid.h"
#include "report/point_values.h"
#include "report/unit_choice.h"
#include "ui/results/plot_picture.h"

namespace flexley {

namespace {

const char* quantity_of(PlotKind kind) {
    switch (kind) {
        case PlotKind::moment:
            return "Moment = ";
        case PlotKind::stress:
            return "Stress = ";
        case PlotKind::deflection:
            break;
    }
    return "Deflection = ";
}

}  // namespace

std::optional<std::string> hover_tip(const BeamModel& model, const ScreenGeometry& geometry,
                                     drawing::Point at) {
    for (const PlotKind kind : kPlotKinds) {
        const PlotFrame frame = plot_frame(kind, geometry);
        if (at.x < frame.left || at.x > frame.right || at.y < frame.top() || at.y > frame.bottom())
            continue;
        const PlotCurve curve = plot_curve(model, kind, geometry);
        const double along = (at.x - frame.left) / curve.width * model.beam_length;
        const int k = nearest_point(model, along);
        const double position = analysis_grid(model).x(k);
        return "x = " +
               value_text(position_value(position, model.metric_units, model.positions_in_inches),
                          model.sig_figs) +
               "\n" + quantity_of(kind) +
               plot_value_text(model, kind, (*curve.values)[static_cast<std::size_t>(k)]);
    }
    return std::nullopt;
}

}  // namespace flexley
