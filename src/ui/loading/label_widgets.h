// The QLabels that show the label groups on the Loading Screen's picture, one per label.
#pragma once

#include <QFont>
#include <vector>

#include "ui/loading/label_groups.h"

class QLabel;
class QWidget;

namespace flexley {

// The labels' font: the window's 8-point font, bold and underlined where a label asks for it.
QFont label_font(bool bold, bool underline = false);

// Measures captions in drawing units with the labels' own font on `surface`, so the label data
// sizes every label to the text the widget will show.
MeasureText label_measure(const QWidget& surface);

// Keeps one QLabel child of the surface per label of the data, named, placed and captioned as
// the data says. The widgets are created as groups appear and deleted when the beam is cleared.
class LabelWidgets {
  public:
    explicit LabelWidgets(QWidget& surface) : surface_(surface) {}

    void show(const FeatureLabels& labels);

  private:
    void show_label(QLabel& widget, const Label& label) const;

    QWidget& surface_;
    std::vector<QLabel*> widgets_;
};

}  // namespace flexley
