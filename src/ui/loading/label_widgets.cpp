// The QLabels that show the label groups on the Loading Screen's picture, one per label.
#include "ui/loading/label_widgets.h"

#include <QFontMetrics>
#include <QLabel>
#include <cmath>

#include "ui/common/drawing_units.h"

namespace flexley {

QFont label_font(bool bold, bool underline) {
    QFont font("Arial", 8);
    font.setBold(bold);
    font.setUnderline(underline);
    return font;
}

MeasureText label_measure(const QWidget& surface) {
    return [&surface](const std::string& text, bool bold) {
        const DrawingUnitMapping mapping = DrawingUnitMapping::for_device(surface);
        const QFontMetrics metrics(label_font(bold), &surface);
        // One pixel more each way, so rounding the rectangle to pixels never cuts a glyph.
        const auto units = [&mapping](int pixels) {
            return static_cast<int>(std::ceil(mapping.to_units(pixels + 1)));
        };
        return TextExtent{units(metrics.horizontalAdvance(QString::fromStdString(text))),
                          units(metrics.height())};
    };
}

void LabelWidgets::show(const FeatureLabels& labels) {
    std::vector<const Label*> data;
    for (const FeatureLabelGroup& group : labels.groups()) {
        for (const Label& label : group.labels)
            data.push_back(&label);
    }
    while (widgets_.size() > data.size()) {
        delete widgets_.back();
        widgets_.pop_back();
    }
    while (widgets_.size() < data.size()) {
        auto* widget = new QLabel(&surface_);
        widget->setTextFormat(Qt::PlainText);
        widget->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        widget->setAttribute(Qt::WA_TransparentForMouseEvents);
        widgets_.push_back(widget);
    }
    for (std::size_t k = 0; k < data.size(); ++k)
        show_label(*widgets_[k], *data[k]);
}

void LabelWidgets::show_label(QLabel& widget, const Label& label) const {
    const DrawingUnitMapping mapping = DrawingUnitMapping::for_device(surface_);
    widget.setObjectName(QString::fromStdString(label.name));
    widget.setText(QString::fromStdString(label.caption));
    widget.setFont(label_font(label.bold, label.underline));
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText,
                     QColor(label.colour.red, label.colour.green, label.colour.blue));
    widget.setPalette(palette);
    widget.setGeometry(mapping.to_pixel_rect(label.left, label.top, label.width, label.height));
    widget.setVisible(label.visible);
}

}  // namespace flexley
