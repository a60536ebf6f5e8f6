// The "Calculate Moment Of Inertia" dialog: I and c of a round or rectangular, solid or tube
// section.
#include "ui/dialogs/inertia_calculator_dialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include "model/typed_number.h"
#include "ui/common/drawing_units.h"
#include "ui/common/picture_view.h"
#include "ui/dialogs/option_frame.h"
#include "ui/dialogs/section_dialog_parts.h"
#include "ui/dialogs/section_sketch.h"
#include "ui/dialogs/section_unit_frames.h"

namespace flexley {
namespace {

QLabel* caption_for(const char* caption, QLineEdit* box) {
    auto* label = new QLabel(caption);
    label->setBuddy(box);
    return label;
}

std::optional<double> number_in(const QLineEdit& box) {
    return typed_number(box.text().toStdString());
}

}  // namespace

InertiaCalculatorDialog::InertiaCalculatorDialog(const BeamModel& model, Prompts& prompts,
                                                 QWidget* parent)
    : QDialog(parent), model_(model), prompts_(prompts) {
    setObjectName("I_calc");
    setWindowTitle("Calculate Moment Of Inertia");
    build_controls();
    lay_out();
    show_section();
    outer_diameter_->setFocus();
}

InertiaCalculatorDialog::~InertiaCalculatorDialog() = default;

void InertiaCalculatorDialog::build_controls() {
    round_ = named(new QRadioButton("Round"), "roundcs");
    rectangular_ = named(new QRadioButton("Rectangular"), "squarecs");
    solid_ = named(new QRadioButton("Solid"), "solidcs");
    tube_ = named(new QRadioButton("Tube"), "Tubecs");
    round_->setChecked(true);
    solid_->setChecked(true);
    for (QRadioButton* option : {round_, solid_}) {
        connect(option, &QRadioButton::toggled, this, &InertiaCalculatorDialog::show_section);
    }

    outer_diameter_ = named(new QLineEdit, "OD");
    inner_diameter_ = named(new QLineEdit, "ID");
    height_ = named(new QLineEdit, "Ht");
    width_ = named(new QLineEdit, "Wth");
    wall_ = named(new QLineEdit, "Wall");
    inner_diameter_caption_ = caption_for(kInnerDiameterCaption, inner_diameter_);
    wall_caption_ = caption_for(kWallCaption, wall_);
    rectangle_note_ =
        named(new QLabel("Bending is assumed to be in the direction of beam height."), "recnote");
    rectangle_note_->setWordWrap(true);
    // The note comes and goes with the section; the dialog keeps its size meanwhile.
    QSizePolicy keep_space = rectangle_note_->sizePolicy();
    keep_space.setRetainSizeWhenHidden(true);
    rectangle_note_->setSizePolicy(keep_space);

    sketch_ = named(new PictureView, "section_sketch");
    sketch_->setFixedSize(DrawingUnitMapping::for_device(*sketch_)
                              .to_pixel_rect(0, 0, kSketchWidth, kSketchHeight)
                              .size());

    moment_of_inertia_ = named(new QLineEdit, "dispmoi");
    fibre_distance_ = named(new QLineEdit, "cbox");
    for (QLineEdit* result : {moment_of_inertia_, fibre_distance_})
        result->setReadOnly(true);
}

QWidget* InertiaCalculatorDialog::dimension_page(const char* name, const QList<QLabel*>& captions,
                                                 const QList<QLineEdit*>& boxes,
                                                 std::unique_ptr<SectionUnitFrames>& units,
                                                 const char* english_name,
                                                 const char* metric_name) {
    auto* page = named(new QWidget, name);
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int row = 0; row < boxes.size(); ++row) {
        grid->addWidget(captions[row], row, 0);
        grid->addWidget(boxes[row], row, 1);
    }
    units = std::make_unique<SectionUnitFrames>(
        *grid, 0, 2, boxes, UnitColumn{english_name, QStringList(boxes.size(), "in.")},
        UnitColumn{metric_name, QStringList(boxes.size(), "mm")});
    // Both pages keep their rows at the top, so switching sections moves no box.
    grid->setRowStretch(static_cast<int>(boxes.size()), 1);
    return page;
}

// Top to bottom: the section's options, its dimensions beside the sketch, the note, the results,
// the buttons; Tab follows the same order. Enter is Calculate.
void InertiaCalculatorDialog::lay_out() {
    auto* options = new QHBoxLayout;
    options->addWidget(option_frame("csframe", "Cross-section", {round_, rectangular_}));
    options->addWidget(option_frame("tubeframe", "Type", {solid_, tube_}));

    round_page_ = dimension_page(
        "round_frame",
        {caption_for(kOuterDiameterCaption, outer_diameter_), inner_diameter_caption_},
        {outer_diameter_, inner_diameter_}, round_units_, "round_eng_frame", "round_met_frame");
    square_page_ = dimension_page(
        "square_frame",
        {caption_for(kHeightCaption, height_), caption_for(kWidthCaption, width_), wall_caption_},
        {height_, width_, wall_}, square_units_, "sq_eng_frame", "sq_met_frame");
    dimension_pages_ = new QStackedWidget;
    dimension_pages_->addWidget(round_page_);
    dimension_pages_->addWidget(square_page_);
    auto* dimensions = new QGroupBox("Dimensions");
    (new QVBoxLayout(dimensions))->addWidget(dimension_pages_);

    const bool metric = model_.metric_units;
    round_units_->show_system(metric);
    square_units_->show_system(metric);
    auto* results = new QGridLayout;
    results->addWidget(caption_for("Moment of Inertia", moment_of_inertia_), 0, 0);
    results->addWidget(moment_of_inertia_, 0, 1);
    results->addWidget(named(new QLabel(metric ? "mm^4" : "in.^4"), "moiunit"), 0, 2);
    results->addWidget(caption_for("Distance From Neutral Axis to Farthest Fiber", fibre_distance_),
                       1, 0);
    results->addWidget(fibre_distance_, 1, 1);
    results->addWidget(named(new QLabel(metric ? "mm" : "in."), "cunit"), 1, 2);

    auto* calculate = push_button("Calculate", "Calculate");
    auto* accept = push_button("Use These Values", "Accept");
    auto* cancel = push_button("Cancel", "Cancel");
    calculate->setDefault(true);
    connect(calculate, &QPushButton::clicked, this, &InertiaCalculatorDialog::calculate);
    connect(accept, &QPushButton::clicked, this, &InertiaCalculatorDialog::use_values);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* grid = new QGridLayout(this);
    grid->addLayout(options, 0, 0);
    grid->addWidget(dimensions, 1, 0);
    grid->addWidget(sketch_, 0, 1, 2, 1, Qt::AlignCenter);
    grid->addWidget(rectangle_note_, 2, 0, 1, 2);
    grid->addLayout(results, 3, 0, 1, 2);
    grid->addLayout(button_row({calculate, accept, cancel}), 4, 0, 1, 2);
    grid->setSizeConstraint(QLayout::SetFixedSize);

    set_tab_order({round_, rectangular_, solid_, tube_, outer_diameter_, inner_diameter_, height_,
                   width_, wall_, moment_of_inertia_, fibre_distance_, calculate, accept, cancel});
}

// Round shows its diameters, Rectangular its height, width and note; a solid section has no
// inner diameter or wall. Typed values stay in their boxes through every switch.
void InertiaCalculatorDialog::show_section() {
    const bool round = shape() == CrossSection::round;
    dimension_pages_->setCurrentWidget(round ? round_page_ : square_page_);
    rectangle_note_->setVisible(!round);
    const bool hollow = tube();
    inner_diameter_->setEnabled(hollow);
    inner_diameter_caption_->setEnabled(hollow);
    round_units_->set_row_enabled(1, hollow);
    wall_->setEnabled(hollow);
    wall_caption_->setEnabled(hollow);
    square_units_->set_row_enabled(2, hollow);
    sketch_->show_picture(section_sketch(shape(), hollow));
}

CrossSection InertiaCalculatorDialog::shape() const {
    return round_->isChecked() ? CrossSection::round : CrossSection::rectangular;
}

bool InertiaCalculatorDialog::tube() const {
    return tube_->isChecked();
}

SectionDimensions InertiaCalculatorDialog::dimensions() const {
    return {number_in(*outer_diameter_), number_in(*inner_diameter_), number_in(*height_),
            number_in(*width_), number_in(*wall_)};
}

void InertiaCalculatorDialog::calculate() {
    const SectionResult result = calculate_section(shape(), tube(), dimensions());
    if (!result.status.ok()) {
        prompts_.message(QString::fromStdString(result.status.message()));
        return;
    }
    const CalculatorTexts texts = calculator_texts(result.properties, model_.sig_figs);
    moment_of_inertia_->setText(QString::fromStdString(texts.moment_of_inertia));
    fibre_distance_->setText(QString::fromStdString(texts.fibre_distance));
}

void InertiaCalculatorDialog::use_values() {
    const QString moment_of_inertia = moment_of_inertia_->text();
    const QString fibre_distance = fibre_distance_->text();
    const Status ready =
        check_calculator_texts(moment_of_inertia.toStdString(), fibre_distance.toStdString());
    if (!ready.ok()) {
        prompts_.message(QString::fromStdString(ready.message()));
        return;
    }
    emit values_chosen(moment_of_inertia, fibre_distance);
    accept();
}

}  // namespace flexley
