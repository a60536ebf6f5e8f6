// The maximum values dialog "maxvalues": each result's extreme and where along the beam it is.
#include "ui/results/maximum_values_dialog.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/results/readout_box.h"

namespace flexley {

namespace {

struct Row {
    const char* caption;
    const char* value_box;
    const char* position_box;
    const std::string& value;
    const std::string& position;
};

QFrame* separator() {
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

}  // namespace

MaximumValuesDialog::MaximumValuesDialog(const MaximumValueTexts& texts, QWidget* parent)
    : QDialog(parent) {
    setObjectName("maxvalues");
    setWindowTitle("Maximum Values");
    const Row rows[] = {
        {"Bending Moment", "maxmo", "locmaxmo", texts.moment, texts.moment_at},
        {"Bending Stress", "maxstr", "locmaxstr", texts.stress, texts.stress_at},
        {"Deflection", "maxdef", "locmaxdef", texts.deflection, texts.deflection_at},
        {"Slope", "maxslope", "locmaxslope", texts.slope, texts.slope_at},
    };

    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel("Maximum Value"), 0, 1, Qt::AlignHCenter);
    grid->addWidget(new QLabel("Location"), 0, 2, Qt::AlignHCenter);
    grid->addWidget(separator(), 1, 1);
    grid->addWidget(separator(), 1, 2);
    int row_number = 2;
    for (const Row& row : rows) {
        QLineEdit* value = readout_box(row.value_box);
        value->setText(QString::fromStdString(row.value));
        QLineEdit* position = readout_box(row.position_box);
        position->setText(QString::fromStdString(row.position));
        auto* caption = new QLabel(row.caption);
        caption->setBuddy(value);
        if (row_number == 2) value->setFocus();
        grid->addWidget(caption, row_number, 0);
        grid->addWidget(value, row_number, 1);
        grid->addWidget(position, row_number, 2);
        ++row_number;
    }

    auto* buttons = new QDialogButtonBox;
    QPushButton* close = buttons->addButton("Close", QDialogButtonBox::RejectRole);
    close->setObjectName("Command1");
    // Enter closes, as the only button does; the read-outs pass Enter on to it.
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace flexley
