// Unit labels beside a column of section boxes, one frame of them per unit system.
#include "ui/dialogs/section_unit_frames.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace flexley {
namespace {

constexpr int kRowSpacing = 6;

}  // namespace

SectionUnitFrames::SectionUnitFrames(QGridLayout& grid, int first_row, int column,
                                     const QList<QLineEdit*>& boxes, const UnitColumn& english,
                                     const UnitColumn& metric)
    : english_(build(english, boxes, kRowSpacing)), metric_(build(metric, boxes, kRowSpacing)) {
    grid.setVerticalSpacing(kRowSpacing);
    const auto rows = static_cast<int>(boxes.size());
    grid.addWidget(english_.widget, first_row, column, rows, 1);
    grid.addWidget(metric_.widget, first_row, column, rows, 1);
}

SectionUnitFrames::Frame SectionUnitFrames::build(const UnitColumn& column,
                                                  const QList<QLineEdit*>& boxes, int spacing) {
    Frame frame;
    frame.widget = new QWidget;
    frame.widget->setObjectName(column.name);
    auto* stack = new QVBoxLayout(frame.widget);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(spacing);
    for (int row = 0; row < boxes.size(); ++row) {
        auto* label = new QLabel(column.units.value(row));
        label->setFixedHeight(boxes[row]->sizeHint().height());
        stack->addWidget(label);
        frame.labels.push_back(label);
    }
    return frame;
}

void SectionUnitFrames::show_system(bool metric) {
    english_.widget->setVisible(!metric);
    metric_.widget->setVisible(metric);
}

void SectionUnitFrames::set_row_enabled(int row, bool enabled) {
    english_.labels.at(row)->setEnabled(enabled);
    metric_.labels.at(row)->setEnabled(enabled);
}

}  // namespace flexley
