// The widget that shows the three result plots from a backing image painted from the model.
#include "ui/results/plot_view.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include "analysis/results_state.h"
#include "ui/common/picture_painter.h"
#include "ui/results/curve_painter.h"
#include "ui/results/hover_tip.h"
#include "ui/results/plot_picture.h"

namespace flexley {

void paint_plots(QPainter& painter, const BeamModel& model, const ScreenGeometry& geometry,
                 const DrawingUnitMapping& mapping, bool outline_only, const QColor& background) {
    for (const PlotKind kind : kPlotKinds) {
        paint_picture(painter, plot_picture(model, kind, geometry, outline_only), mapping,
                      background);
        paint_curve(painter, plot_curve(model, kind, geometry), mapping, outline_only);
    }
}

PlotView::PlotView(const BeamModel& model, const ScreenGeometry& geometry,
                   const Preferences& preferences, QWidget* parent)
    : QWidget(parent), model_(model), geometry_(geometry), preferences_(preferences) {
    setObjectName("plots");
    // Every pixel comes from the backing image, so Qt need not clear the widget first.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

// Painting waits for the next paint event, so a run that also resizes the window paints once.
void PlotView::redraw() {
    backing_ = QImage();
    update();
}

void PlotView::paint_backing_image() {
    const qreal ratio = devicePixelRatioF();
    backing_widget_size_ = size();
    backing_ = QImage(size() * ratio, QImage::Format_ARGB32_Premultiplied);
    backing_.setDevicePixelRatio(ratio);
    const QColor background = palette().color(backgroundRole());
    backing_.fill(background);
    // Stale results never reach the screen; the window shows why instead.
    if (backing_.isNull() || !results_available(model_)) return;
    QPainter painter(&backing_);
    paint_plots(painter, model_, geometry_, mapping(), preferences_.outline_only, background);
}

const QImage& PlotView::backing_image() {
    if (!backing_is_current()) paint_backing_image();
    return backing_;
}

DrawingUnitMapping PlotView::mapping() const {
    return DrawingUnitMapping::for_device(*this);
}

void PlotView::paintEvent(QPaintEvent* event) {
    // A move to a screen of another pixel ratio shows up here first.
    if (!backing_is_current()) paint_backing_image();
    QPainter painter(this);
    painter.drawImage(event->rect(), backing_, event->rect());
}

void PlotView::mouseMoveEvent(QMouseEvent* event) {
    const DrawingUnitMapping units = mapping();
    const QPointF at = event->position();
    const auto tip =
        results_available(model_)
            ? hover_tip(model_, geometry_, {units.to_units(at.x()), units.to_units(at.y())})
            : std::nullopt;
    if (tip) {
        QToolTip::showText(event->globalPosition().toPoint(), QString::fromStdString(*tip), this);
    } else {
        QToolTip::hideText();
    }
    QWidget::mouseMoveEvent(event);
}

bool PlotView::backing_is_current() const {
    return !backing_.isNull() && backing_.devicePixelRatio() == devicePixelRatioF() &&
           backing_widget_size_ == size();
}

}  // namespace flexley
