// Paints a plot's curve through every calculated point, one stroke union per device pixel column.
#include "ui/results/curve_painter.h"

#include <QLineF>
#include <QPainter>
#include <QPen>
#include <cmath>

namespace flexley {

namespace {

constexpr double kLineWeightUnits = 15.0;  // the picture painter's line weight

// The points of one pixel column: every stroke or segment in it stands at the same x, so only
// the extremes of their ends matter.
struct Column {
    long index = 0;
    double top = 0.0;  // logical pixels
    double bottom = 0.0;

    void start(long column, double y) {
        index = column;
        top = bottom = y;
    }
    void add(double y) {
        top = std::min(top, y);
        bottom = std::max(bottom, y);
    }
};

// Strokes from the zero line: the column's highest and lowest reaching strokes cover every
// other stroke of the column, since a stroke's pixels only grow as its end moves away.
void paint_strokes(QPainter& painter, const PlotCurve& curve, const DrawingUnitMapping& mapping) {
    const DeviceColumns columns(painter, mapping);
    const double zero = mapping.to_pixels(curve.centre);
    if (!columns.upright()) {
        for (int k = 0; k <= curve.last; ++k) {
            const QPointF end = columns.stroke_point(curve.x(k), curve.y(k));
            draw_segment(painter, QLineF(end.x(), zero, end.x(), end.y()));
        }
        return;
    }
    const auto draw_column = [&](const Column& column) {
        const double x = columns.stroke_x(column.index);
        draw_segment(painter, QLineF(x, zero, x, column.top));
        if (column.bottom != column.top) draw_segment(painter, QLineF(x, zero, x, column.bottom));
    };
    Column column;
    column.start(columns.column(curve.x(0)), mapping.to_pixels(curve.y(0)));
    for (int k = 1; k <= curve.last; ++k) {
        const long index = columns.column(curve.x(k));
        const double y = mapping.to_pixels(curve.y(k));
        if (index == column.index) {
            column.add(y);
            continue;
        }
        draw_column(column);
        column.start(index, y);
    }
    draw_column(column);
}

// A polyline: within a column its segments all stand at one x and together span the column's
// highest to lowest point; the segments between columns are drawn as they are.
void paint_outline(QPainter& painter, const PlotCurve& curve, const DrawingUnitMapping& mapping) {
    const DeviceColumns columns(painter, mapping);
    QPointF previous = columns.stroke_point(curve.x(0), curve.y(0));
    if (!columns.upright()) {
        for (int k = 1; k <= curve.last; ++k) {
            const QPointF point = columns.stroke_point(curve.x(k), curve.y(k));
            draw_segment(painter, QLineF(previous, point));
            previous = point;
        }
        return;
    }
    const auto draw_column = [&](const Column& column) {
        const double x = columns.stroke_x(column.index);
        draw_segment(painter, QLineF(x, column.top, x, column.bottom));
    };
    Column column;
    column.start(columns.column(curve.x(0)), previous.y());
    for (int k = 1; k <= curve.last; ++k) {
        const long index = columns.column(curve.x(k));
        const QPointF point(columns.stroke_x(index), mapping.to_pixels(curve.y(k)));
        if (index == column.index) {
            column.add(point.y());
        } else {
            draw_column(column);
            draw_segment(painter, QLineF(previous, point));
            column.start(index, point.y());
        }
        previous = point;
    }
    draw_column(column);
}

}  // namespace

DeviceColumns::DeviceColumns(const QPainter& painter, const DrawingUnitMapping& mapping)
    : mapping_(mapping),
      device_(painter.deviceTransform()),
      upright_(device_.type() <= QTransform::TxScale) {}

long DeviceColumns::column(double x_units) const {
    return static_cast<long>(
        std::floor(device_.m11() * mapping_.to_pixels(x_units) + device_.dx()));
}

// A quarter of a pixel into the column: well inside it, and clear of the pixel middles where a
// pen an even number of pixels wide has its edges, so no rounding moves a stroke across.
double DeviceColumns::stroke_x(long column) const {
    return (static_cast<double>(column) + 0.25 - device_.dx()) / device_.m11();
}

QPointF DeviceColumns::stroke_point(double x_units, double y_units) const {
    const double y = mapping_.to_pixels(y_units);
    if (!upright_) return {mapping_.to_pixels(x_units), y};
    return {stroke_x(column(x_units)), y};
}

void draw_segment(QPainter& painter, const QLineF& segment) {
    if (segment.p1() != segment.p2()) painter.drawLine(segment);
}

double curve_pen_width(const DrawingUnitMapping& mapping, bool outline_only) {
    return mapping.to_pixels(outline_only ? 2 * kLineWeightUnits : kLineWeightUnits);
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
