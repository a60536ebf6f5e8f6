// The "Beam Properties" dialog: I, E and c of the beam, typed, calculated or chosen from a list.
#include "ui/dialogs/beam_properties_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "model/beam_settings.h"
#include "model/display.h"
#include "ui/dialogs/inertia_calculator_dialog.h"
#include "ui/dialogs/section_chooser_dialog.h"
#include "ui/dialogs/section_dialog_parts.h"
#include "ui/dialogs/section_unit_frames.h"

namespace flexley {
namespace {

struct BoxDesign {
    SectionProperty property;
    const char* name;
    const char* caption;
    const char* tooltip;
};

// In the order of SectionProperty, which is also the order on screen.
constexpr std::array<BoxDesign, 3> kBoxDesigns{{
    {SectionProperty::moment_of_inertia, "MomOfI", "Moment of Inertia",
     "Moment of Inertia  (typically denoted as \"I\")"},
    {SectionProperty::elastic_modulus, "ModE", "Modulus of Elasticity",
     "Modulus of Elasticity  (typically denoted as \"E\")"},
    {SectionProperty::fibre_distance, "cdist", "Distance to Farthest Fiber",
     "Distance to farthest fiber  (typically denoted as \"c\")"},
}};

double model_value(const BeamModel& model, SectionProperty property) {
    switch (property) {
        case SectionProperty::moment_of_inertia:
            return model.moment_of_inertia;
        case SectionProperty::elastic_modulus:
            return model.elastic_modulus;
        case SectionProperty::fibre_distance:
            return model.fibre_distance;
    }
    return 0.0;
}

}  // namespace

BeamPropertiesDialog::BeamPropertiesDialog(BeamModel& model, ProgramSettings& settings,
                                           Prompts& prompts, QWidget* parent)
    : QDialog(parent), model_(model), settings_(settings), prompts_(prompts) {
    setObjectName("BeamProp");
    setWindowTitle("Beam Properties");
    build_boxes();
    lay_out();
    load();
}

BeamPropertiesDialog::~BeamPropertiesDialog() = default;

void BeamPropertiesDialog::build_boxes() {
    for (std::size_t k = 0; k < kBoxDesigns.size(); ++k) {
        const BoxDesign& design = kBoxDesigns[k];
        auto* box = new QLineEdit;
        box->setObjectName(design.name);
        box->setToolTip(design.tooltip);
        boxes_[k] = {design.property, box, false};
        PropertyBox& entry = boxes_[k];
        connect(box, &QLineEdit::textEdited, this, [&entry] { entry.changed = true; });
    }
}

// The boxes with their units, then the aids and the dialog's own buttons; Tab follows the same
// order. Enter in a box is Continue, Escape Cancel.
void BeamPropertiesDialog::lay_out() {
    auto* grid = new QGridLayout(this);
    QList<QLineEdit*> boxes;
    for (std::size_t k = 0; k < kBoxDesigns.size(); ++k) {
        auto* caption = new QLabel(kBoxDesigns[k].caption);
        caption->setBuddy(boxes_[k].box);
        const int row = static_cast<int>(k);
        grid->addWidget(caption, row, 0);
        grid->addWidget(boxes_[k].box, row, 1);
        boxes << boxes_[k].box;
    }
    units_ = std::make_unique<SectionUnitFrames>(*grid, 0, 2, boxes,
                                                 UnitColumn{"engframe", {"in.^4", "psi", "in."}},
                                                 UnitColumn{"metframe", {"mm^4", "GPa", "mm"}});
    units_->show_system(model_.metric_units);

    auto* calculate = push_button("Calculate", "Command3");
    calculate->setToolTip("Calculate I and c of a round or rectangular section");
    auto* choose = push_button("Choose", "Command4");
    choose->setToolTip("Choose I and c of a standard section");
    auto* proceed = push_button("Continue", "Command1");
    auto* cancel = push_button("Cancel", "Command2");
    proceed->setDefault(true);
    connect(calculate, &QPushButton::clicked, this, &BeamPropertiesDialog::open_calculator);
    connect(choose, &QPushButton::clicked, this, &BeamPropertiesDialog::open_chooser);
    connect(proceed, &QPushButton::clicked, this, [this] {
        if (confirm()) accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* aid : {calculate, choose})
        buttons->addWidget(aid);
    buttons->addStretch();
    buttons->addSpacing(24);
    for (QPushButton* own : {proceed, cancel})
        buttons->addWidget(own);
    grid->addLayout(buttons, 3, 0, 1, 3);
    grid->setSizeConstraint(QLayout::SetFixedSize);

    set_tab_order({boxes[0], boxes[1], boxes[2], calculate, choose, proceed, cancel});
}

// A beam without E gets the default at once, so it is there even when the dialog is cancelled.
void BeamPropertiesDialog::load() {
    const bool metric = model_.metric_units;
    for (PropertyBox& entry : boxes_) {
        const double shown =
            shown_section_value(entry.property, model_value(model_, entry.property), metric);
        entry.box->setText(QString::fromStdString(display_number(shown, model_.sig_figs)));
    }
    if (model_.elastic_modulus == 0.0f) {
        const double modulus = default_shown_elastic_modulus(metric);
        box_for(SectionProperty::elastic_modulus)
            .box->setText(QString::fromStdString(number_text(modulus)));
        set_section_properties(
            model_, model_.moment_of_inertia,
            model_section_value(SectionProperty::elastic_modulus, modulus, metric),
            model_.fibre_distance);
    }
    boxes_.front().box->selectAll();
    boxes_.front().box->setFocus();
}

bool BeamPropertiesDialog::confirm() {
    std::array<double, 3> values{};
    for (std::size_t k = 0; k < boxes_.size(); ++k) {
        const PropertyBox& entry = boxes_[k];
        values[k] = model_value(model_, entry.property);
        if (!entry.changed) continue;
        const SectionEntry typed =
            section_entry(entry.property, entry.box->text().toStdString(), model_.metric_units);
        if (!typed.status.ok()) {
            prompts_.message(QString::fromStdString(typed.status.message()));
            entry.box->setFocus();
            entry.box->selectAll();
            return false;
        }
        values[k] = typed.model_value;
    }
    const Status stored = set_section_properties(model_, values[0], values[1], values[2]);
    if (!stored.ok()) {
        prompts_.message(QString::fromStdString(stored.message()));
        return false;
    }
    return true;
}

void BeamPropertiesDialog::open_calculator() {
    auto* calculator = new InertiaCalculatorDialog(model_, prompts_, this);
    connect(calculator, &InertiaCalculatorDialog::values_chosen, this,
            &BeamPropertiesDialog::take_section_values);
    open_aid(calculator);
}

void BeamPropertiesDialog::open_chooser() {
    auto* chooser = new SectionChooserDialog(model_, settings_, prompts_, this);
    connect(chooser, &SectionChooserDialog::values_chosen, this,
            &BeamPropertiesDialog::take_section_values);
    open_aid(chooser);
}

// Modal over this dialog without a nested event loop: the aid hands its values back by signal.
void BeamPropertiesDialog::open_aid(QDialog* aid) {
    aid->setAttribute(Qt::WA_DeleteOnClose);
    aid->open();
}

// The aids' values reach the model only through Continue, like typed ones.
void BeamPropertiesDialog::take_section_values(const QString& moment_of_inertia,
                                               const QString& fibre_distance) {
    for (auto [property, text] : {std::pair{SectionProperty::moment_of_inertia, moment_of_inertia},
                                  std::pair{SectionProperty::fibre_distance, fibre_distance}}) {
        PropertyBox& entry = box_for(property);
        entry.box->setText(text);
        entry.changed = true;
    }
}

BeamPropertiesDialog::PropertyBox& BeamPropertiesDialog::box_for(SectionProperty property) {
    return boxes_[static_cast<std::size_t>(property)];
}

}  // namespace flexley
