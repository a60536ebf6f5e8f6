// Window contents painted as vector graphics through a page's drawing-unit mapping.
#include "ui/dialogs/window_pictures.h"

#include <QPaintDevice>
#include <QPainter>
#include <algorithm>

#include "ui/common/picture_painter.h"
#include "ui/loading/beam_picture.h"
#include "ui/loading/label_widgets.h"
#include "ui/results/plot_picture.h"
#include "ui/results/plot_view.h"

namespace flexley {

namespace {

constexpr double kUnitsPerPoint = kDrawingUnitsPerInch / 72.0;

QSizeF labels_extent(const ScreenGeometry& geometry, const FeatureLabels& labels) {
    int right = geometry.work_width;
    int bottom = geometry.work_height;
    for (const FeatureLabelGroup& group : labels.groups()) {
        for (const Label& label : group.labels) {
            if (!label.visible) continue;
            right = std::max(right, label.left + label.width);
            bottom = std::max(bottom, label.top + label.height);
        }
    }
    return {static_cast<double>(right), static_cast<double>(bottom)};
}

// The labels' font scaled with the mapping, so each caption keeps its place among the shapes
// however large the page shows the picture.
QFont scaled_label_font(const Label& label, const DrawingUnitMapping& mapping,
                        const QPaintDevice& device) {
    QFont font = label_font(label.bold, label.underline);
    font.setPointSizeF(mapping.to_pixels(font.pointSizeF() * kUnitsPerPoint) * 72.0 /
                       device.logicalDpiY());
    return font;
}

void paint_labels(QPainter& painter, const FeatureLabels& labels,
                  const DrawingUnitMapping& mapping) {
    painter.save();
    for (const FeatureLabelGroup& group : labels.groups()) {
        for (const Label& label : group.labels) {
            if (!label.visible || label.caption.empty()) continue;
            painter.setFont(scaled_label_font(label, mapping, *painter.device()));
            painter.setPen(QColor(label.colour.red, label.colour.green, label.colour.blue));
            const QRectF area(
                mapping.to_pixels(label.left, label.top),
                mapping.to_pixels(label.left + label.width, label.top + label.height));
            painter.drawText(area, Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip,
                             QString::fromStdString(label.caption));
        }
    }
    painter.restore();
}

}  // namespace

WindowPicture loading_screen_picture(const BeamModel& model, const ScreenGeometry& geometry,
                                     const FeatureLabels& labels) {
    return {labels_extent(geometry, labels),
            [&model, &geometry, &labels](QPainter& painter, const DrawingUnitMapping& mapping) {
                paint_picture(painter, beam_picture(model, geometry, kPenDraw), mapping, Qt::white);
                paint_labels(painter, labels, mapping);
            }};
}

WindowPicture calculations_screen_picture(const BeamModel& model, const ScreenGeometry& geometry,
                                          bool outline_only) {
    const drawing::Point extent = plots_extent(geometry);
    return {QSizeF(extent.x, extent.y), [&model, &geometry, outline_only](
                                            QPainter& painter, const DrawingUnitMapping& mapping) {
                paint_plots(painter, model, geometry, mapping, outline_only, Qt::white);
            }};
}

}  // namespace flexley
