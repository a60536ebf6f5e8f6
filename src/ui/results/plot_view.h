// The widget that shows the three result plots from a backing image painted from the model.
#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

#include "files/preferences.h"
#include "model/beam_model.h"
#include "ui/common/drawing_units.h"
#include "ui/loading/screen_geometry.h"

class QPainter;

namespace flexley {

// Paints the three plots of the model's results, each its grid, labels and title, then its
// curve; the painter's state is restored afterwards.
void paint_plots(QPainter& painter, const BeamModel& model, const ScreenGeometry& geometry,
                 const DrawingUnitMapping& mapping, bool outline_only, const QColor& background);

// The plots live only in the backing image, which is painted from the model after a redraw and
// whenever it no longer fits the widget's size or pixel ratio; so covering, resizing or a move
// to a high-DPI screen shows the same plots, sharp. Hovering over a plot tips the nearest
// calculated point.
class PlotView final : public QWidget {
    Q_OBJECT

  public:
    PlotView(const BeamModel& model, const ScreenGeometry& geometry, const Preferences& preferences,
             QWidget* parent = nullptr);

    // Paints the model's results afresh: after a run, or a change of units or precision.
    void redraw();
    // What is shown, at the widget's size times its device pixel ratio.
    const QImage& backing_image();
    DrawingUnitMapping mapping() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    bool backing_is_current() const;
    void paint_backing_image();

    const BeamModel& model_;
    const ScreenGeometry& geometry_;
    const Preferences& preferences_;
    QImage backing_;
    QSize backing_widget_size_;
};

}  // namespace flexley
