// The values-at-a-point dialog "pointvalues": the results at the calculated point nearest a
// position the user types.
#include "ui/results/point_values_dialog.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "report/point_values.h"
#include "ui/common/controls.h"
#include "ui/dialogs/option_frame.h"
#include "ui/results/readout_box.h"

namespace flexley {

PointValuesDialog::PointValuesDialog(const BeamModel& model, Prompts& prompts, QWidget* parent)
    : QDialog(parent),
      model_(model),
      prompts_(prompts),
      location_(named(new QLineEdit, "loc")),
      feet_(named(new QRadioButton("ft."), "ft")),
      moment_(readout_box("mom")),
      stress_(readout_box("str")),
      deflection_(readout_box("def")),
      slope_(readout_box("slope")) {
    setObjectName("pointvalues");
    setWindowTitle("Point Values");

    auto* location_caption = named(new QLabel("Location (x=?)"), "Label3");
    location_caption->setBuddy(location_);
    auto* inches = named(new QRadioButton("in."), "in");
    feet_->setChecked(true);
    QGroupBox* unit_frame = option_frame("engframe", QString(), {inches, feet_});
    auto* metres = named(new QLabel("m"), "met");
    // A metric position is always in metres, so there is nothing to choose.
    unit_frame->setVisible(!model.metric_units);
    metres->setVisible(model.metric_units);
    auto* location_row = new QHBoxLayout;
    location_row->addWidget(location_caption);
    location_row->addWidget(location_);
    location_row->addWidget(unit_frame);
    location_row->addWidget(metres);

    auto* separator = named(new QFrame, "Line1");
    separator->setFrameShape(QFrame::HLine);
    separator->setFrameShadow(QFrame::Sunken);

    auto* grid = new QGridLayout;
    grid->addWidget(named(new QLabel("Value"), "Label2"), 0, 1, Qt::AlignHCenter);
    const std::pair<const char*, const char*> captions[] = {
        {"Label1", "Bending Moment"},
        {"Label4", "Bending Stress"},
        {"Label5", "Deflection"},
        {"Label6", "Slope"},
    };
    QLineEdit* const readouts[] = {moment_, stress_, deflection_, slope_};
    for (int row = 0; row < 4; ++row) {
        grid->addWidget(named(new QLabel(captions[row].second), captions[row].first), row + 1, 0);
        grid->addWidget(readouts[row], row + 1, 1);
    }

    auto* buttons = new QDialogButtonBox;
    QPushButton* find = buttons->addButton("Find Values", QDialogButtonBox::ActionRole);
    find->setObjectName("Command2");
    // Enter in the location box finds the values.
    find->setDefault(true);
    buttons->addButton("Close", QDialogButtonBox::RejectRole)->setObjectName("Command1");
    connect(find, &QPushButton::clicked, this, &PointValuesDialog::find_values);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(location_row);
    layout->addWidget(separator);
    layout->addLayout(grid);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    location_->setFocus();
}

void PointValuesDialog::find_values() {
    const PointValuesResult found =
        find_point_values(model_, location_->text().toStdString(), feet_->isChecked());
    if (!found.status.ok()) {
        prompts_.message(QString::fromStdString(found.status.message()));
        return;
    }
    moment_->setText(QString::fromStdString(found.texts.moment));
    stress_->setText(QString::fromStdString(found.texts.stress));
    deflection_->setText(QString::fromStdString(found.texts.deflection));
    slope_->setText(QString::fromStdString(found.texts.slope));
}

}  // namespace flexley
