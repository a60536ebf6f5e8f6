// The Loading Screen's layout, derived once from the work area.
#include "ui/loading/screen_geometry.h"

#include <cmath>

namespace flexley {

namespace {

// Nearest integer, halves to even (the default floating-point rounding mode).
int rounded(double value) {
    return static_cast<int>(std::nearbyint(value));
}

}  // namespace

double ScreenGeometry::screen_x(double position, double beam_length) const {
    // Before a length is given everything stands at the left end rather than nowhere.
    if (beam_length <= 0) return beam_x_left;
    return beam_x_left + position * (beam_x_right - beam_x_left) / beam_length;
}

double ScreenGeometry::centre_y() const {
    return (beam_y_top + beam_y_bottom) / 2.0;
}

double ScreenGeometry::support_size() const {
    return plot_height / 2.0;
}

double ScreenGeometry::support_height() const {
    return support_size() / std::sqrt(2.0);
}

ScreenGeometry screen_geometry(int work_width, int work_height) {
    const double width = work_width;
    const double height = work_height;
    ScreenGeometry geometry;
    geometry.work_width = work_width;
    geometry.work_height = work_height;
    geometry.beam_y_top = rounded(height / 2);
    geometry.beam_y_bottom = rounded(height / 20 + geometry.beam_y_top);
    geometry.beam_x_left = rounded(width / 8);
    geometry.beam_x_right = rounded(3 * width / 4 + geometry.beam_x_left);
    geometry.plot_height = rounded(height / 5);
    geometry.arc_radius = rounded(height / 10);
    return geometry;
}

}  // namespace flexley
