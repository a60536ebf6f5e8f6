// The start dialog "Initialize Beam": the unit system and the length of a new beam.
#include "ui/loading/start_dialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "model/beam_settings.h"
#include "model/display.h"
#include "model/typed_number.h"
#include "model/units.h"
#include "ui/common/controls.h"

namespace flexley {
namespace {

// A frame holding two exclusive option buttons. Only the chosen one takes Tab, so the group is
// one tab stop; the arrow keys move between its buttons.
QGroupBox* option_frame(const char* name, QRadioButton* first, QRadioButton* second) {
    auto* frame = named(new QGroupBox, name);
    auto* row = new QHBoxLayout(frame);
    for (QRadioButton* button : {first, second}) {
        row->addWidget(button);
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
        QObject::connect(button, &QRadioButton::toggled, button, [button](bool checked) {
            button->setFocusPolicy(checked ? Qt::StrongFocus : Qt::ClickFocus);
        });
    }
    return frame;
}

}  // namespace

StartDialog::StartDialog(BeamModel& model, const Preferences& preferences, Prompts& prompts,
                         StartMode mode, QWidget* parent)
    : QDialog(parent), model_(model), prompts_(prompts) {
    setObjectName("properties");
    setWindowTitle("Initialize Beam");
    build_controls();
    lay_out();
    load(mode, preferences);
}

void StartDialog::build_controls() {
    metric_ = named(new QRadioButton("Metric units"), "Met");
    english_ = named(new QRadioButton("English units"), "Eng");
    english_->setChecked(true);
    unit_frame_ = option_frame("Frame2", metric_, english_);
    inches_ = named(new QRadioButton("inches"), "inch");
    feet_ = named(new QRadioButton("feet"), "feet");
    feet_->setChecked(true);
    length_unit_frame_ = option_frame("engframe", inches_, feet_);
    length_ = named(new QLineEdit("100"), "Length");
    meters_ = named(new QLabel("meters"), "meter");
    length_caption_ = named(new QLabel("Beam Length"), "Label1");
    length_caption_->setBuddy(length_);

    connect(metric_, &QRadioButton::clicked, this, [this] {
        model_.metric_units = true;
        units_or_length_changed_ = true;
        show_unit_system();
    });
    connect(english_, &QRadioButton::clicked, this, [this] {
        model_.metric_units = false;
        units_or_length_changed_ = true;
        show_unit_system();
    });
    connect(inches_, &QRadioButton::clicked, this, [this] { feet_or_inches_changed_ = true; });
    connect(feet_, &QRadioButton::clicked, this, [this] { feet_or_inches_changed_ = true; });
    connect(length_, &QLineEdit::textEdited, this, [this] { units_or_length_changed_ = true; });
}

// Top to bottom and left to right: units, then the length with its unit, then the buttons, which
// is also the Tab order. Enter anywhere but on Retrieve Load File is Continue.
void StartDialog::lay_out() {
    auto* retrieve = named(new QPushButton("Retrieve Load File"), "Command2");
    auto* proceed = named(new QPushButton("Continue"), "Command1");
    proceed->setDefault(true);
    connect(proceed, &QPushButton::clicked, this, [this] {
        if (confirm()) accept();
    });
    connect(retrieve, &QPushButton::clicked, this, [this] {
        if (confirm()) accept();
        emit retrieve_requested();
    });

    auto* grid = new QGridLayout(this);
    grid->addWidget(unit_frame_, 0, 0, 1, 3);
    grid->addWidget(length_caption_, 1, 0);
    grid->addWidget(length_, 1, 1);
    grid->addWidget(meters_, 1, 2);
    grid->addWidget(length_unit_frame_, 1, 2);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(retrieve);
    buttons->addWidget(proceed);
    grid->addLayout(buttons, 2, 0, 1, 3);
    grid->setSizeConstraint(QLayout::SetFixedSize);

    setTabOrder(metric_, english_);
    setTabOrder(english_, length_);
    setTabOrder(length_, inches_);
    setTabOrder(inches_, feet_);
    setTabOrder(feet_, retrieve);
    setTabOrder(retrieve, proceed);
}

void StartDialog::load(StartMode mode, const Preferences& preferences) {
    // The preferred unit system only chooses the units of a new program run; at Reinitialize the
    // length shown must keep the units it was entered in.
    if (mode == StartMode::program_start && preferences.default_units == "metric") {
        model_.metric_units = true;
    }
    metric_->setChecked(model_.metric_units);
    english_->setChecked(!model_.metric_units);
    show_unit_system();

    if (mode == StartMode::reinitialize) {
        const double shown =
            length_in_feet() ? model_.beam_length / kFootToInch : model_.beam_length;
        length_->setText(QString::fromStdString(display_number(shown, model_.sig_figs)));
    } else {
        // The box starts with a valid length, so the program always starts with a beam.
        const double typed = typed_number(length_->text().toStdString()).value_or(0.0);
        set_beam_length(model_, length_in_feet() ? typed * kFootToInch : typed);
    }
    mark_results_stale(model_);
    model_.sig_figs = 3;
    length_->selectAll();
    length_->setFocus();
}

void StartDialog::show_unit_system() {
    meters_->setVisible(model_.metric_units);
    length_unit_frame_->setVisible(!model_.metric_units);
}

bool StartDialog::length_in_feet() const {
    return !model_.metric_units && feet_->isChecked();
}

bool StartDialog::confirm() {
    const std::optional<double> typed = typed_number(length_->text().toStdString());
    if (!typed || *typed <= 0.0) {
        prompts_.message(kInvalidBeamLength);
        return false;
    }
    if (units_or_length_changed_ || feet_or_inches_changed_) {
        const Status changed =
            set_beam_length(model_, length_in_feet() ? *typed * kFootToInch : *typed);
        if (!changed.ok()) {
            prompts_.message(QString::fromStdString(changed.message()));
            return false;
        }
    }
    model_.positions_in_inches = model_.beam_length < 48.0;
    return true;
}

}  // namespace flexley
