// The report dialog "print_info": the enabling rules of its boxes and the three ways out.
#include "ui/dialogs/print_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "analysis/results_state.h"
#include "report/point_values.h"
#include "report/report_date.h"
#include "ui/dialogs/option_frame.h"
#include "ui/dialogs/section_dialog_parts.h"

namespace flexley {

PrintDialog::PrintDialog(const BeamModel& model, Prompts& prompts, PrintOrigin origin,
                         ReportPictures pictures, const QString& folder, QWidget* parent)
    : QDialog(parent),
      model_(model),
      prompts_(prompts),
      origin_(origin),
      pictures_(std::move(pictures)),
      folder_(folder),
      printer_(QPrinter::HighResolution),
      title_(named(new QLineEdit, "title")),
      beam_properties_(named(new QCheckBox("Beam Properties"), "BeamProp")),
      load_text_(named(new QCheckBox("Text"), "LoadText")),
      support_reactions_(named(new QCheckBox("Support Reactions"), "SupReac")),
      load_image_(named(new QCheckBox("Graphic Image"), "LoadImage")),
      point_values_(named(new QCheckBox("Values at a Point"), "PtVal")),
      maximum_values_(named(new QCheckBox("Maximum Values"), "MaxVal")),
      calc_image_(named(new QCheckBox("Graphic Image"), "CalcImage")),
      location_caption_(named(new QLabel("Location"), "loclab")),
      location_(named(new QLineEdit, "loctext")),
      inch_(named(new QRadioButton("in."), "inch")),
      feet_(named(new QRadioButton("ft."), "feet")),
      metre_(named(new QLabel("m"), "met")) {
    setObjectName("print_info");
    setWindowTitle("Print");
    lay_out();
    apply_origin();
    connect(load_text_, &QCheckBox::toggled, this, &PrintDialog::update_support_reactions);
    connect(point_values_, &QCheckBox::toggled, this, &PrintDialog::update_location);
    title_->setFocus();
}

// Top to bottom and left to right as the user reads it, which is also the Tab order. "Print" is
// the default button and Escape cancels.
void PrintDialog::lay_out() {
    auto* title_row = new QFormLayout;
    auto* title_caption = named(new QLabel("Title of Report"), "Label1");
    title_caption->setBuddy(title_);
    title_->setMinimumWidth(360);
    title_row->addRow(title_caption, title_);

    auto* frames = new QHBoxLayout;
    frames->addWidget(load_frame(), 0, Qt::AlignTop);
    frames->addWidget(calculations_frame(), 0, Qt::AlignTop);

    auto* buttons = new QDialogButtonBox;
    QPushButton* print = buttons->addButton("Print", QDialogButtonBox::AcceptRole);
    QPushButton* pdf = buttons->addButton("Save as PDF...", QDialogButtonBox::ActionRole);
    QPushButton* text = buttons->addButton("Save as Text...", QDialogButtonBox::ActionRole);
    QPushButton* cancel = buttons->addButton("Cancel", QDialogButtonBox::RejectRole);
    print->setObjectName("Command2");
    pdf->setObjectName("savepdf");
    text->setObjectName("savetext");
    cancel->setObjectName("Command1");
    print->setDefault(true);
    connect(print, &QPushButton::clicked, this, &PrintDialog::print_on_printer);
    connect(pdf, &QPushButton::clicked, this, &PrintDialog::save_as_pdf);
    connect(text, &QPushButton::clicked, this, &PrintDialog::save_as_text);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addLayout(title_row);
    column->addWidget(beam_properties_);
    column->addLayout(frames);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

QGroupBox* PrintDialog::load_frame() {
    auto* frame = named(new QGroupBox("Load Configuration"), "Loadframe");
    auto* rows = new QVBoxLayout(frame);
    rows->addWidget(load_text_);
    rows->addWidget(support_reactions_);
    rows->addWidget(load_image_);
    support_reactions_->setEnabled(false);
    return frame;
}

QGroupBox* PrintDialog::calculations_frame() {
    calc_frame_ = named(new QGroupBox("Calculations"), "Calcframe");
    auto* rows = new QVBoxLayout(calc_frame_);
    rows->addWidget(point_values_);
    rows->addWidget(maximum_values_);
    rows->addWidget(calc_image_);
    rows->addWidget(location_frame());
    return calc_frame_;
}

// The position of the values at a point, in the beam's unit: a choice of inches or feet in
// English, metres in metric. Only the unit of the beam's system is shown.
QGroupBox* PrintDialog::location_frame() {
    location_frame_ = named(new QGroupBox, "locframe");
    location_caption_->setBuddy(location_);
    location_->setMaximumWidth(120);
    feet_->setChecked(true);
    unit_frame_ = option_frame("engframe", {}, {inch_, feet_});
    unit_frame_->setFlat(true);
    auto* row = new QHBoxLayout(location_frame_);
    row->addWidget(location_caption_);
    row->addWidget(location_);
    row->addWidget(unit_frame_);
    row->addWidget(metre_);
    row->addStretch();
    unit_frame_->setVisible(!model_.metric_units);
    metre_->setVisible(model_.metric_units);
    update_location();
    return location_frame_;
}

void PrintDialog::apply_origin() {
    if (origin_ != PrintOrigin::load) return;
    for (QWidget* control : std::initializer_list<QWidget*>{
             calc_frame_, calc_image_, maximum_values_, point_values_, support_reactions_}) {
        control->setEnabled(false);
    }
}

// Reactions come only from results of the beam as it is; the tick itself is left as it was.
void PrintDialog::update_support_reactions() {
    support_reactions_->setEnabled(load_text_->isChecked() && results_available(model_));
}

void PrintDialog::update_location() {
    const bool wanted = point_values_->isChecked();
    for (QWidget* control : std::initializer_list<QWidget*>{location_frame_, location_caption_,
                                                            location_, unit_frame_, metre_}) {
        control->setEnabled(wanted);
    }
}

std::optional<ReportOptions> PrintDialog::chosen_options() {
    ReportOptions options;
    options.title = title_->text().toStdString();
    options.beam_properties = beam_properties_->isChecked();
    options.load_text = load_text_->isChecked();
    options.support_reactions = support_reactions_->isEnabled() && support_reactions_->isChecked();
    options.maximum_values = maximum_values_->isEnabled() && maximum_values_->isChecked();
    options.point_values = point_values_->isEnabled() && point_values_->isChecked();
    options.point_in_feet = feet_->isChecked();
    if (!options.point_values) return options;
    options.point_text = location_->text().toStdString();
    const std::optional<double> position =
        position_on_beam(model_, options.point_text, options.point_in_feet);
    if (!position) {
        prompts_.message(kInvalidReportLocation);
        location_->setFocus();
        location_->selectAll();
        return std::nullopt;
    }
    options.point_position = *position;
    return options;
}

// The position is checked before the printer is chosen, so a typing slip costs no trip through
// the printer dialog. Cancelling that dialog prints nothing and leaves this one open.
void PrintDialog::print_on_printer() {
    pending_ = chosen_options();
    if (!pending_) return;
    auto* setup = new QPrintDialog(&printer_, this);
    setup->setAttribute(Qt::WA_DeleteOnClose);
    connect(setup, &QDialog::accepted, this, [this] {
        if (print_on(printer_)) accept();
    });
    setup->open();
}

void PrintDialog::save_as_pdf() {
    choose_file("Save as PDF", "PDF files (*.pdf)", "pdf", &PrintDialog::write_pdf);
}

void PrintDialog::save_as_text() {
    choose_file("Save as Text", "Text files (*.txt)", "txt", &PrintDialog::write_text);
}

// The file is offered beside the beam's load file, named after it, or as "report" in `folder`.
void PrintDialog::choose_file(const QString& caption, const QString& filter, const QString& suffix,
                              void (PrintDialog::*save)(const QString&)) {
    pending_ = chosen_options();
    if (!pending_) return;
    const QString folder =
        model_.current_dir.empty() ? folder_ : QString::fromStdString(model_.current_dir);
    const QString name =
        model_.current_file.empty()
            ? QString("report")
            : QFileInfo(QString::fromStdString(model_.current_file)).completeBaseName();
    auto* chooser =
        new QFileDialog(this, caption, QDir(folder).filePath(name + "." + suffix), filter);
    chooser->setObjectName("savefile");
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setAcceptMode(QFileDialog::AcceptSave);
    chooser->setDefaultSuffix(suffix);
    connect(chooser, &QFileDialog::fileSelected, this, save);
    chooser->open();
}

void PrintDialog::write_pdf(const QString& path) {
    QPrinter pdf(QPrinter::HighResolution);
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setOutputFileName(path);
    pdf.setPageLayout(printer_.pageLayout());
    if (print_on(pdf)) accept();
}

void PrintDialog::write_text(const QString& path) {
    const Status saved =
        save_report_text(path.toStdString(), report_lines(model_, *pending_, today_short_date()));
    if (!saved.ok()) {
        prompts_.message(QString::fromStdString(saved.message()));
        return;
    }
    accept();
}

bool PrintDialog::print_on(QPrinter& printer) {
    const Status printed = print_report(printer, chosen_pictures(),
                                        report_lines(model_, *pending_, today_short_date()));
    if (!printed.ok()) {
        prompts_.message(QString::fromStdString(printed.message()), kProgramTitle,
                         QString::fromStdString(printed.detail()));
    }
    return printed.ok();
}

// Plots of an earlier beam are never printed, as the report leaves out its results.
std::vector<WindowPicture> PrintDialog::chosen_pictures() const {
    std::vector<WindowPicture> pictures;
    if (load_image_->isChecked()) pictures.push_back(pictures_.loading);
    if (calc_image_->isEnabled() && calc_image_->isChecked() && results_available(model_)) {
        pictures.push_back(pictures_.calculations);
    }
    return pictures;
}

}  // namespace flexley
