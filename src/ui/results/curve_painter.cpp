// Paints a plot's curve through every calculated point, one stroke union per device pixel column.
#include "ui/results/curve_painter.h"

#include <QLineF>
#include <QPainter>
#include <QPen>
#include <algorithm>
#include <cmath>

#include "ui/common/picture_painter.h"

namespace flexley {

namespace {

// The first point after `first` that falls in a later column than `column`. The points move
// right with k, so the column's end is guessed from where the next column starts and then
// checked against the exact column of the points around the guess: a few column computations
// per column instead of one per point.
int column_end(const PlotCurve& curve, const DeviceColumns& columns, long column, int first) {
    const double next_start = columns.column_start(column + 1);
    const double guess = std::ceil((next_start - curve.left) * curve.intervals / curve.width);
    int end = guess > curve.last ? curve.last + 1 : std::max(first + 1, static_cast<int>(guess));
    while (end > first + 1 && columns.column(curve.x(end - 1)) > column)
        --end;
    while (end <= curve.last && columns.column(curve.x(end)) == column)
        ++end;
    return end;
}

// Calls visit(column, first, end) for every run of points first..end-1 that share a column,
// from left to right.
template <typename Visit>
void for_each_column(const PlotCurve& curve, const DeviceColumns& columns, Visit visit) {
    for (int first = 0; first <= curve.last;) {
        const long column = columns.column(curve.x(first));
        const int end = column_end(curve, columns, column, first);
        visit(column, first, end);
        first = end;
    }
}

// The highest and lowest of a run of points, in drawing units: the mapping keeps their order.
struct Heights {
    double top;
    double bottom;
};

Heights heights(const PlotCurve& curve, int first, int end) {
    Heights found{curve.y(first), curve.y(first)};
    for (int k = first + 1; k < end; ++k) {
        const double y = curve.y(k);
        found.top = std::min(found.top, y);
        found.bottom = std::max(found.bottom, y);
    }
    return found;
}

// Strokes from the zero line: the column's highest and lowest reaching strokes cover every
// other stroke of the column, since a stroke's pixels only grow as its end moves away.
void paint_strokes(QPainter& painter, const PlotCurve& curve, const DrawingUnitMapping& mapping) {
    const DeviceColumns columns(painter, mapping);
    const double zero = columns.to_pixels(curve.centre);
    if (!columns.upright()) {
        for (int k = 0; k <= curve.last; ++k) {
            const QPointF end = columns.stroke_point(curve.x(k), curve.y(k));
            draw_segment(painter, QLineF(end.x(), zero, end.x(), end.y()));
        }
        return;
    }
    for_each_column(curve, columns, [&](long column, int first, int end) {
        const double x = columns.stroke_x(column);
        const Heights run = heights(curve, first, end);
        draw_segment(painter, QLineF(x, zero, x, columns.to_pixels(run.top)));
        if (run.bottom != run.top) {
            draw_segment(painter, QLineF(x, zero, x, columns.to_pixels(run.bottom)));
        }
    });
}

// A polyline: within a column its segments all stand at one x and together span the column's
// highest to lowest point; the segment into a column from the one before is drawn as it is.
void paint_outline(QPainter& painter, const PlotCurve& curve, const DrawingUnitMapping& mapping) {
    const DeviceColumns columns(painter, mapping);
    if (!columns.upright()) {
        for (int k = 1; k <= curve.last; ++k) {
            draw_segment(painter, QLineF(columns.stroke_point(curve.x(k - 1), curve.y(k - 1)),
                                         columns.stroke_point(curve.x(k), curve.y(k))));
        }
        return;
    }
    QPointF last_point;
    for_each_column(curve, columns, [&](long column, int first, int end) {
        const double x = columns.stroke_x(column);
        const QPointF first_point(x, columns.to_pixels(curve.y(first)));
        if (first > 0) draw_segment(painter, QLineF(last_point, first_point));
        const Heights run = heights(curve, first, end);
        draw_segment(painter,
                     QLineF(x, columns.to_pixels(run.top), x, columns.to_pixels(run.bottom)));
        last_point = QPointF(x, columns.to_pixels(curve.y(end - 1)));
    });
}

}  // namespace

DeviceColumns::DeviceColumns(const QPainter& painter, const DrawingUnitMapping& mapping)
    : dots_per_inch_(mapping.dots_per_inch()),
      device_(painter.deviceTransform()),
      upright_(device_.type() <= QTransform::TxScale && device_.m11() > 0) {}

// The mapping's own arithmetic, so that a stroke's column is where the mapping puts it.
double DeviceColumns::to_pixels(double units) const {
    return units * dots_per_inch_ / kDrawingUnitsPerInch;
}

long DeviceColumns::column(double x_units) const {
    return static_cast<long>(std::floor(device_.m11() * to_pixels(x_units) + device_.dx()));
}

double DeviceColumns::column_start(long column) const {
    const double pixels = (static_cast<double>(column) - device_.dx()) / device_.m11();
    return pixels * kDrawingUnitsPerInch / dots_per_inch_;
}

// A quarter of a pixel into the column: well inside it, and clear of the pixel middles where a
// pen an even number of pixels wide has its edges, so no rounding moves a stroke across.
double DeviceColumns::stroke_x(long column) const {
    return (static_cast<double>(column) + 0.25 - device_.dx()) / device_.m11();
}

QPointF DeviceColumns::stroke_point(double x_units, double y_units) const {
    const double y = to_pixels(y_units);
    if (!upright_) return {to_pixels(x_units), y};
    return {stroke_x(column(x_units)), y};
}

void draw_segment(QPainter& painter, const QLineF& segment) {
    if (segment.p1() != segment.p2()) painter.drawLine(segment);
}

double curve_pen_width(const DrawingUnitMapping& mapping, bool outline_only) {
    return mapping.to_pixels(outline_only ? 2 * kLineWidthUnits : kLineWidthUnits);
}

void paint_curve(QPainter& painter, const PlotCurve& curve, const DrawingUnitMapping& mapping,
                 bool outline_only) {
    if (curve.point_count() == 0) return;
    painter.save();
    // Overlapping strokes must light whole pixels, or their union would not be one stroke.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(Qt::black, curve_pen_width(mapping, outline_only)));
    if (outline_only) {
        paint_outline(painter, curve, mapping);
    } else {
        paint_strokes(painter, curve, mapping);
    }
    painter.restore();
}

}  // namespace flexley
