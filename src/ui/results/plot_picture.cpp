// The three result plots as data: frames, grid, value and position labels, titles and curves.
#include "ui/results/plot_picture.h"

#include <cmath>
#include <string>

#include "model/grid.h"
#include "report/unit_choice.h"
#include "ui/common/picture_painter.h"

namespace flexley {

namespace {

constexpr int kGridSteps = 3;  // grid lines above and below the zero line
// The labels use the Loading Screen's label font; the titles stand out above them.
const drawing::Font kLabelFont{"Arial", 8, false, false};
const drawing::Font kTitleFont{"Arial", 14, true, false};
// The position labels hang below and right of the plot: room for one line of the label font,
// and a sixteenth of the width for the last one.
constexpr int kLabelLineUnits = 300;

struct PlotRows {
    double centre_sixths;  // the zero line, in sixths of the work height
    const char* title;
    double title_offset_divisor;  // the title's left edge stands W / this left of the middle
    // +1 where a positive value is drawn upwards; the stored deflection has the opposite sign of
    // the deflection shown, so it is drawn downwards and appears the right way up.
    double sign;
};

PlotRows rows_of(PlotKind kind) {
    switch (kind) {
        case PlotKind::moment:
            return {1.0, "MOMENT", 28, 1.0};
        case PlotKind::stress:
            return {2.75, "BENDING STRESS", 18, 1.0};
        case PlotKind::deflection:
            break;
    }
    return {4.5, "DEFLECTION", 22, -1.0};
}

const std::vector<double>& values_of(const BeamModel& model, PlotKind kind) {
    switch (kind) {
        case PlotKind::moment:
            return model.moment;
        case PlotKind::stress:
            return model.stress;
        case PlotKind::deflection:
            break;
    }
    return model.deflection;
}

double maximum_of(const BeamModel& model, PlotKind kind) {
    switch (kind) {
        case PlotKind::moment:
            return std::abs(model.max_moment);
        case PlotKind::stress:
            return std::abs(model.max_stress);
        case PlotKind::deflection:
            break;
    }
    return std::abs(model.max_deflection);
}

int rounded(double value) {
    return static_cast<int>(std::nearbyint(value));
}

void add_grid_line(drawing::Picture& picture, const PlotFrame& frame, double y, bool heavy) {
    const drawing::Ink blue{kGridBlue};
    if (!heavy) {
        picture.add(drawing::Line{{double(frame.right), y}, {double(frame.left), y}, blue});
        return;
    }
    // A solid bar one line weight high, whose outline makes it two line weights in all.
    const double half_weight = kLineWidthUnits / 2;
    picture.add(drawing::Rectangle{{double(frame.left), y - half_weight},
                                   {double(frame.right), y + half_weight},
                                   blue,
                                   drawing::Fill::solid});
}

std::string position_text(const BeamModel& model, double position) {
    return value_text(position_value(position, model.metric_units, model.positions_in_inches),
                      model.sig_figs);
}

}  // namespace

PlotFrame plot_frame(PlotKind kind, const ScreenGeometry& geometry) {
    const double height = geometry.work_height;
    return {geometry.beam_x_left, geometry.beam_x_right,
            rounded(rows_of(kind).centre_sixths * height / 6), geometry.plot_height / 2.0};
}

PlotCurve plot_curve(const BeamModel& model, PlotKind kind, const ScreenGeometry& geometry) {
    const PlotFrame frame = plot_frame(kind, geometry);
    const Grid grid = analysis_grid(model);
    const double maximum = maximum_of(model, kind);
    PlotCurve curve;
    curve.values = &values_of(model, kind);
    curve.left = frame.left;
    curve.width = frame.right - frame.left;
    curve.intervals = grid.intervals;
    curve.centre = frame.centre;
    if (maximum == 0.0) return curve;
    curve.last = grid.last;
    curve.scale = rows_of(kind).sign * frame.half / maximum;
    return curve;
}

std::string plot_value_text(const BeamModel& model, PlotKind kind, double stored) {
    const bool metric = model.metric_units;
    const double maximum = maximum_of(model, kind);
    UnitChoice unit{};
    switch (kind) {
        case PlotKind::moment:
            unit = moment_unit(maximum, metric);
            break;
        case PlotKind::stress:
            unit = stress_unit(maximum, metric);
            break;
        case PlotKind::deflection:
            return value_text(deflection_value(stored, stored_ei(model), metric), model.sig_figs);
    }
    return value_text({stored / unit.divisor, unit.unit}, model.sig_figs);
}

drawing::Picture plot_picture(const BeamModel& model, PlotKind kind, const ScreenGeometry& geometry,
                              bool outline_only) {
    const PlotFrame frame = plot_frame(kind, geometry);
    const PlotRows rows = rows_of(kind);
    const double width = geometry.work_width;
    const double height = geometry.work_height;
    const double maximum = maximum_of(model, kind);
    const drawing::Ink blue{kGridBlue};

    drawing::Picture picture;
    picture.add(drawing::Line{{double(frame.left), double(frame.centre)},
                              {double(frame.right), double(frame.centre)},
                              drawing::Ink{}});
    for (int i = -kGridSteps; i <= kGridSteps; ++i) {
        const double y = frame.centre + i * frame.half / kGridSteps;
        add_grid_line(picture, frame, y, i == 0 && outline_only);
        // The value whose curve point lies on this line, so label and curve always agree.
        const double stored = rows.sign * -i * maximum / kGridSteps;
        picture.add(drawing::Text{{frame.left - width / 15, y - height / 65},
                                  plot_value_text(model, kind, stored),
                                  kLabelFont,
                                  blue});
        const double x = frame.left + (i + kGridSteps) * double(frame.right - frame.left) / 6;
        picture.add(drawing::Line{{x, frame.top()}, {x, frame.bottom()}, blue});
        picture.add(drawing::Text{{x, frame.bottom()},
                                  position_text(model, model.beam_length * (i + kGridSteps) / 6),
                                  kLabelFont,
                                  blue});
    }
    const double title_x = (frame.left + frame.right) / 2.0 - width / rows.title_offset_divisor;
    picture.add(drawing::Text{
        {title_x, frame.top() - height / 30}, rows.title, kTitleFont, drawing::Ink{}});
    return picture;
}

drawing::Point plots_extent(const ScreenGeometry& geometry) {
    const PlotFrame lowest = plot_frame(kPlotKinds.back(), geometry);
    return {geometry.beam_x_right + geometry.work_width / 16.0, lowest.bottom() + kLabelLineUnits};
}

}  // namespace flexley
