// Paints a plot's curve through every calculated point, one stroke union per device pixel column.
#pragma once

#include <QLineF>
#include <QPointF>
#include <QTransform>

#include "ui/common/drawing_units.h"
#include "ui/results/plot_picture.h"

class QPainter;

namespace flexley {

// Up to 200,001 points fall on a couple of thousand pixel columns, and a column can show only
// the union of the strokes that fall in it. Every stroke of a column is placed at one spot in
// it, so strokes that share a column light the same pixels across and differ only in their
// ends; the union is then exactly the column's highest and lowest reaching strokes.
class DeviceColumns {
  public:
    DeviceColumns(const QPainter& painter, const DrawingUnitMapping& mapping);

    // False under a transform that rotates, shears or mirrors, where strokes do not stand in
    // columns from left to right; every stroke is then drawn as it is.
    bool upright() const { return upright_; }
    // The device pixel column of a position across, in drawing units.
    long column(double x_units) const;
    // Where the column starts, in drawing units: near enough to guess which point is its first.
    double column_start(long column) const;
    // Where in that column its strokes stand, in the painter's logical coordinates.
    double stroke_x(long column) const;
    // The point a curve point is drawn at: its column's stroke place across, its own height.
    QPointF stroke_point(double x_units, double y_units) const;
    // Drawing units as the mapping turns them into logical pixels.
    double to_pixels(double units) const;

  private:
    double dots_per_inch_;
    QTransform device_;
    bool upright_;
};

// Draws a stroke or polyline segment unless it has no length: such a line shows nothing of the
// curve the segments around it do not, and Qt paints it as a blot wider than the pen.
void draw_segment(QPainter& painter, const QLineF& segment);

// Paints the curve in black: vertical strokes from the zero line to each point, or with
// `outline_only` a polyline two line weights wide. Draws nothing for a curve without points;
// allocates nothing. The painter's pen and render hints are restored afterwards.
void paint_curve(QPainter& painter, const PlotCurve& curve, const DrawingUnitMapping& mapping,
                 bool outline_only);

// The pens of the curve: one line weight for strokes, two for the outline.
double curve_pen_width(const DrawingUnitMapping& mapping, bool outline_only);

}  // namespace flexley
