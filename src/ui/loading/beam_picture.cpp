// The Loading Screen picture: bar, length caption, arrows, moment arcs and support triangles.
#include "ui/loading/beam_picture.h"

#include <algorithm>
#include <cmath>

#include "model/display.h"
#include "model/limits.h"
#include "model/units.h"

namespace flexley {

namespace {

using drawing::Point;

// The angles of the quarter arcs and the arrowhead corner, as the screen has always drawn them.
constexpr double kRightArcStart = 21.99114855 / 4;  // 7 pi / 4
constexpr double kRightArcEnd = 3.14159265 / 4;     // pi / 4
constexpr double kLeftArcStart = 9.42477795 / 4;    // 3 pi / 4
constexpr double kLeftArcEnd = 15.70796325 / 4;     // 5 pi / 4

// Loads are drawn against their kind's largest magnitude; a kind without one (only a damaged file
// can give that) has nothing to be scaled against and is left out.
class BeamDrawing {
  public:
    BeamDrawing(const BeamModel& model, const ScreenGeometry& geometry, int pen_mode)
        : model_(model), geometry_(geometry), ink_{drawing::kRed, pen_mode} {}

    void point_loads() {
        for (int j = 1; j <= std::min<int>(model_.pt_count, kMaxPointLoads); ++j) {
            const double magnitude = model_.pt_mag[j];
            if (magnitude == 0 || model_.pt_maxmag == 0) continue;
            const double h = magnitude * geometry_.plot_height / model_.pt_maxmag;
            arrow(x_of(model_.pt_loc[j]), base_line(h), h);
        }
    }

    void distributed_loads() {
        for (int j = 1; j <= std::min<int>(model_.di_count, kMaxDistributedLoads); ++j) {
            if (model_.di_mag_start[j] == 0 && model_.di_mag_end[j] == 0) continue;
            if (model_.di_maxmag == 0) continue;
            const double xs = x_of(model_.di_start[j]);
            const double xe = x_of(model_.di_end[j]);
            const double half_plot = geometry_.plot_height / 2.0;
            const double h1 = half_plot * model_.di_mag_start[j] / model_.di_maxmag;
            const double h2 = half_plot * model_.di_mag_end[j] / model_.di_maxmag;
            const double b = base_line(std::abs(h2) >= std::abs(h1) ? h2 : h1);
            // Arrows at the ends and quarter points, their lengths varying linearly.
            const double dx = (xe - xs) / 4;
            const double slope = (h1 - h2) / (xs - xe);
            for (int k = 0; k <= 4; ++k)
                arrow(xs + k * dx, b, h1 + k * dx * slope);
            line({xs, b - h1}, {xe, b - h2});
        }
    }

    void moments() {
        const double dot_radius = std::abs(geometry_.beam_y_bottom - geometry_.beam_y_top) / 10.0;
        for (int j = 1; j <= std::min<int>(model_.mo_count, kMaxMoments); ++j) {
            const double magnitude = model_.mo_mag[j];
            if (magnitude == 0 || model_.mo_maxmag == 0) continue;
            const double x = x_of(model_.mo_loc[j]);
            const double r = magnitude * geometry_.arc_radius / model_.mo_maxmag;
            picture_.add(
                drawing::Circle{{x, geometry_.centre_y()}, dot_radius, ink_, drawing::Fill::solid});
            turning_arrow(x, r);
        }
    }

    void supports() {
        const double s = geometry_.support_size();
        const double t = geometry_.support_height();
        const double bottom = geometry_.beam_y_bottom;
        for (int j = 1; j <= std::min<int>(model_.su_count, kMaxSupports); ++j) {
            if (model_.su_loc[j] < 0) continue;
            const double x = x_of(model_.su_loc[j]);
            line({x, bottom}, {x - s / 2, bottom + t});
            line({x - s / 2, bottom + t}, {x + s / 2, bottom + t});
            line({x + s / 2, bottom + t}, {x, bottom});
            // The fixed support's reaction moment.
            if (model_.su_type[j] == "cant") turning_arrow(x, geometry_.arc_radius);
        }
    }

    void beam_bar() {
        picture_.add(
            drawing::Rectangle{{double(geometry_.beam_x_left), double(geometry_.beam_y_top)},
                               {double(geometry_.beam_x_right), double(geometry_.beam_y_bottom)},
                               drawing::Ink{drawing::kBlack, kPenDraw},
                               drawing::Fill::diagonal_cross});
    }

    void length_caption() {
        const double x =
            (geometry_.beam_x_left + geometry_.beam_x_right) / 2.0 - geometry_.work_width / 15.0;
        const double y = geometry_.work_height - geometry_.work_height / 8.0;
        picture_.add(drawing::Text{{x, y},
                                   beam_length_caption(model_),
                                   drawing::Font{"Arial", 14, true, false},
                                   drawing::Ink{drawing::kBlack, ink_.pen_mode}});
    }

    drawing::Picture take() { return std::move(picture_); }

  private:
    double x_of(double position) const { return geometry_.screen_x(position, model_.beam_length); }

    // Loads pointing down stand on the bar's upper edge, loads pointing up on its lower edge.
    double base_line(double h) const {
        return h < 0 ? geometry_.beam_y_bottom : geometry_.beam_y_top;
    }

    void line(Point from, Point to) { picture_.add(drawing::Line{from, to, ink_}); }

    // A shaft of signed length h ending on base line b, and a closed triangular head at its tip.
    // A zero-length arrow (the thin end of a triangular load) shows nothing.
    void arrow(double x, double b, double h) {
        if (h == 0) return;
        const double head = h / 10;
        line({x, b - h}, {x, b});
        line({x, b}, {x + head, b - head});
        line({x + head, b - head}, {x - head, b - head});
        line({x - head, b - head}, {x, b});
    }

    // A quarter arc about the centre line with a small right-angled head at its upper end: on
    // the left for a positive r, on the right for a negative one.
    void turning_arrow(double x, double r) {
        const double yc = geometry_.centre_y();
        const double radius = std::abs(r);
        if (r < 0)
            picture_.add(drawing::Arc{{x, yc}, radius, kRightArcStart, kRightArcEnd, ink_});
        else
            picture_.add(drawing::Arc{{x, yc}, radius, kLeftArcStart, kLeftArcEnd, ink_});
        const double cosine = std::cos(kRightArcEnd);
        const double cx = x - r * cosine;
        const double cy = yc - radius * cosine;
        const double a = r / 10;
        line({cx, cy}, {cx, cy - std::abs(a)});
        line({cx, cy - std::abs(a)}, {cx + a, cy});
        line({cx + a, cy}, {cx, cy});
    }

    const BeamModel& model_;
    const ScreenGeometry& geometry_;
    drawing::Ink ink_;
    drawing::Picture picture_;
};

}  // namespace

std::string beam_length_caption(const BeamModel& model) {
    const std::string lead = "Beam Length is ";
    if (model.metric_units) return lead + display_number(model.beam_length, model.sig_figs) + " m.";
    if (model.positions_in_inches)
        return lead + display_number(model.beam_length, model.sig_figs) + " in.";
    return lead + display_number(model.beam_length / kFootToInch, model.sig_figs) + " ft.";
}

drawing::Picture beam_picture(const BeamModel& model, const ScreenGeometry& geometry,
                              int pen_mode) {
    BeamDrawing painter(model, geometry, pen_mode);
    painter.beam_bar();
    painter.length_caption();
    painter.point_loads();
    painter.distributed_loads();
    painter.moments();
    painter.supports();
    return painter.take();
}

drawing::Picture redraw_screen(BeamModel& model, const ScreenGeometry& geometry, int pen_mode,
                               FeatureLabels& labels) {
    labels.label_new_features(model, geometry);
    return beam_picture(model, geometry, pen_mode);
}

}  // namespace flexley
