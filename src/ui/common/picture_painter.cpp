// The thin loop that paints picture shapes with QPainter calls, never through an image.
#include "ui/common/picture_painter.h"

#include <QBrush>
#include <QFont>
#include <QPaintDevice>
#include <QPainter>
#include <QPen>
#include <QString>
#include <cmath>
#include <numbers>
#include <variant>

namespace flexley {

namespace {

// The hatch pattern repeats every 8 of its pixels; scaled so that it repeats about every
// 120 drawing units on a printer too, instead of turning grey at 600 dots per inch.
constexpr double kHatchRepeatUnits = 120.0;
constexpr double kHatchPatternPixels = 8.0;
constexpr double kUnitsPerPoint = kDrawingUnitsPerInch / 72.0;

class ShapePainter {
  public:
    ShapePainter(QPainter& painter, const DrawingUnitMapping& mapping, const QColor& background)
        : painter_(painter), mapping_(mapping), background_(background) {}

    void operator()(const drawing::Line& line) {
        use_pen(line.ink, false);
        painter_.drawLine(QLineF(point(line.from), point(line.to)));
    }

    void operator()(const drawing::Rectangle& rectangle) {
        use_pen(rectangle.ink, false);
        use_fill(rectangle.ink, rectangle.fill);
        painter_.drawRect(QRectF(point(rectangle.top_left), point(rectangle.bottom_right)));
    }

    void operator()(const drawing::Circle& circle) {
        use_pen(circle.ink, true);
        use_fill(circle.ink, circle.fill);
        const double radius = mapping_.to_pixels(circle.radius);
        painter_.drawEllipse(point(circle.centre), radius, radius);
    }

    void operator()(const drawing::Arc& arc) {
        use_pen(arc.ink, true);
        painter_.setBrush(Qt::NoBrush);
        const double radius = mapping_.to_pixels(arc.radius);
        const QPointF centre = point(arc.centre);
        const QRectF bounds(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
        double span = std::fmod(arc.end_angle - arc.start_angle, 2 * std::numbers::pi);
        if (span <= 0) span += 2 * std::numbers::pi;
        painter_.drawArc(bounds, sixteenths_of_degree(arc.start_angle), sixteenths_of_degree(span));
    }

    void operator()(const drawing::Text& text) {
        QFont font(QString::fromStdString(text.font.family));
        // Sized through the mapping, so that text keeps its place among the shapes on a surface
        // whose mapping differs from its own resolution (a page scaled to fit).
        const double device_dpi = painter_.device()->logicalDpiY();
        font.setPointSizeF(mapping_.to_pixels(text.font.point_size * kUnitsPerPoint) * 72.0 /
                           device_dpi);
        font.setBold(text.font.bold);
        font.setUnderline(text.font.underline);
        painter_.setFont(font);
        use_pen(text.ink, false);
        const QPointF top_left = point(text.position);
        painter_.drawText(QRectF(top_left, QSizeF(1e6, 1e6)),
                          Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine | Qt::TextDontClip,
                          QString::fromStdString(text.text));
    }

  private:
    QPointF point(drawing::Point p) const { return mapping_.to_pixels(p.x, p.y); }

    QColor colour_of(const drawing::Ink& ink) const {
        if (ink.pen_mode == kPenErase) return background_;
        return QColor(ink.colour.red, ink.colour.green, ink.colour.blue);
    }

    // Straight lines stay crisp; curves are smoothed.
    void use_pen(const drawing::Ink& ink, bool smooth) {
        painter_.setRenderHint(QPainter::Antialiasing, smooth);
        painter_.setPen(QPen(colour_of(ink), mapping_.to_pixels(kLineWidthUnits)));
    }

    void use_fill(const drawing::Ink& ink, drawing::Fill fill) {
        switch (fill) {
            case drawing::Fill::none:
                painter_.setBrush(Qt::NoBrush);
                return;
            case drawing::Fill::solid:
                painter_.setBrush(colour_of(ink));
                return;
            case drawing::Fill::diagonal_cross: {
                QBrush hatch(colour_of(ink), Qt::DiagCrossPattern);
                const double scale = std::max(
                    1.0, std::round(mapping_.to_pixels(kHatchRepeatUnits) / kHatchPatternPixels));
                hatch.setTransform(QTransform::fromScale(scale, scale));
                painter_.setBrush(hatch);
                return;
            }
        }
    }

    static int sixteenths_of_degree(double radians) {
        return static_cast<int>(std::lround(radians * 180.0 / std::numbers::pi * 16.0));
    }

    QPainter& painter_;
    const DrawingUnitMapping& mapping_;
    QColor background_;
};

}  // namespace

void paint_picture(QPainter& painter, const drawing::Picture& picture,
                   const DrawingUnitMapping& mapping, const QColor& background) {
    painter.save();
    ShapePainter paint_shape(painter, mapping, background);
    for (const auto& shape : picture.shapes)
        std::visit(paint_shape, shape);
    painter.restore();
}

}  // namespace flexley
