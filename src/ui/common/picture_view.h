// A widget that shows pictures from a backing image, so every repaint shows the same picture.
#pragma once

#include <QImage>
#include <QWidget>
#include <vector>

#include "ui/common/drawing_units.h"
#include "ui/common/picture.h"

namespace flexley {

// Keeps the pictures painted since the last clear and a backing image of them at the widget's
// size and device pixel ratio. Paint events copy the image; a resize or a move to a screen of
// another pixel ratio paints the same pictures into a new image.
class PictureView : public QWidget {
    Q_OBJECT

  public:
    explicit PictureView(QWidget* parent = nullptr);

    // A whole redraw: clears to the background colour, then paints the picture.
    void show_picture(drawing::Picture picture);
    // Paints over what is shown, as an erase pass or an overlay does.
    void add_picture(drawing::Picture picture);
    // Only the background colour remains.
    void clear();

    // What is shown, at the widget's size times its device pixel ratio.
    const QImage& backing_image();
    DrawingUnitMapping mapping() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    bool backing_is_current() const;
    void rebuild_backing_image();
    void paint_onto_backing(const drawing::Picture& picture);

    std::vector<drawing::Picture> pictures_;
    QImage backing_;
    // The widget size the image was made for; a fractional pixel ratio makes it unrecoverable
    // from the image's own size.
    QSize backing_widget_size_;
};

}  // namespace flexley
