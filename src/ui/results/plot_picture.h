// The three result plots as data: frames, grid, value and position labels, titles and curves.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "model/beam_model.h"
#include "ui/common/picture.h"
#include "ui/loading/screen_geometry.h"

namespace flexley {

enum class PlotKind { moment, stress, deflection };
// Top to bottom on the window, which is also the order they are drawn in.
inline constexpr std::array<PlotKind, 3> kPlotKinds{PlotKind::moment, PlotKind::stress,
                                                    PlotKind::deflection};

inline constexpr drawing::Colour kGridBlue{0, 0, 200};

// Where one plot stands, in drawing units: the beam's span across, the zero line at `centre`,
// half the plot height above and below it.
struct PlotFrame {
    int left = 0;
    int right = 0;
    int centre = 0;
    double half = 0.0;

    double top() const { return centre - half; }
    double bottom() const { return centre + half; }
};

PlotFrame plot_frame(PlotKind kind, const ScreenGeometry& geometry);

// A plot's curve through the calculated points k = 0..last: x(k) = left + k Wp / N and
// y(k) = centre - scale v(k). Reads the model's array in place, so drawing allocates nothing.
struct PlotCurve {
    const std::vector<double>* values = nullptr;
    int last = -1;  // no points when the maximum is 0
    double left = 0.0;
    double width = 0.0;      // Wp
    double intervals = 1.0;  // N
    double centre = 0.0;
    double scale = 0.0;  // drawing units per stored unit, negative where up means negative

    int point_count() const { return last + 1; }
    double x(int k) const { return left + k * width / intervals; }
    double y(int k) const { return centre - scale * (*values)[static_cast<std::size_t>(k)]; }
    drawing::Point point(int k) const { return {x(k), y(k)}; }
};

// The curve of the last run's results; E and I must be non-zero.
PlotCurve plot_curve(const BeamModel& model, PlotKind kind, const ScreenGeometry& geometry);

// Everything of a plot but its curve, in drawing order: the zero line, the seven grid lines with
// their value and position labels, and the title. The middle grid line is drawn twice as heavy
// when only the curve's outline is shown, so the axis stands out from the thin polyline.
drawing::Picture plot_picture(const BeamModel& model, PlotKind kind, const ScreenGeometry& geometry,
                              bool outline_only);

// The text of a value in the unit the plot chose from its maximum: the grid labels and the hover
// tip agree on it. `stored` is an entry of the plot's array (or a grid line's stored value).
std::string plot_value_text(const BeamModel& model, PlotKind kind, double stored);

// The bottom right corner of all the plots draw, their last position labels included.
drawing::Point plots_extent(const ScreenGeometry& geometry);

}  // namespace flexley
