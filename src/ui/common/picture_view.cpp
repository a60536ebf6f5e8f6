// Backing-image painting of pictures, rebuilt at every new size or device pixel ratio.
#include "ui/common/picture_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <utility>

#include "ui/common/picture_painter.h"

namespace flexley {

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
    // Every pixel comes from the backing image, so Qt need not clear the widget first.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

// Painting over the old image would leave the antialiased edges of erased text behind.
void PictureView::show_picture(drawing::Picture picture) {
    pictures_.clear();
    pictures_.push_back(std::move(picture));
    rebuild_backing_image();
    update();
}

void PictureView::add_picture(drawing::Picture picture) {
    pictures_.push_back(std::move(picture));
    if (backing_is_current())
        paint_onto_backing(pictures_.back());
    else
        rebuild_backing_image();
    update();
}

void PictureView::clear() {
    pictures_.clear();
    rebuild_backing_image();
    update();
}

const QImage& PictureView::backing_image() {
    if (!backing_is_current()) rebuild_backing_image();
    return backing_;
}

DrawingUnitMapping PictureView::mapping() const {
    return DrawingUnitMapping::for_device(*this);
}

void PictureView::paintEvent(QPaintEvent* event) {
    // A move to a screen of another pixel ratio shows up here first.
    if (!backing_is_current()) rebuild_backing_image();
    QPainter painter(this);
    painter.drawImage(event->rect(), backing_, event->rect());
}

void PictureView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    rebuild_backing_image();
}

bool PictureView::backing_is_current() const {
    return !backing_.isNull() && backing_.devicePixelRatio() == devicePixelRatioF() &&
           backing_widget_size_ == size();
}

void PictureView::rebuild_backing_image() {
    const qreal ratio = devicePixelRatioF();
    backing_widget_size_ = size();
    backing_ = QImage(size() * ratio, QImage::Format_ARGB32_Premultiplied);
    backing_.setDevicePixelRatio(ratio);
    backing_.fill(palette().color(backgroundRole()));
    for (const auto& picture : pictures_)
        paint_onto_backing(picture);
}

void PictureView::paint_onto_backing(const drawing::Picture& picture) {
    if (backing_.isNull()) return;  // no area to paint on before the widget has a size
    QPainter painter(&backing_);
    paint_picture(painter, picture, mapping(), palette().color(backgroundRole()));
}

}  // namespace flexley
