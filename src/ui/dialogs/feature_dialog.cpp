// What the four feature dialogs share: adding, editing through edit_feature, Cancel, and the
// redraw of the Loading Screen around every command.
#include "ui/dialogs/feature_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "model/units.h"
#include "ui/loading/loading_screen.h"

namespace flexley {

FeatureDialog::FeatureDialog(const FeatureDialogContext& context, const char* name,
                             FeatureKind kind, AddCaptions captions, QWidget* parent)
    : QDialog(parent),
      model_(context.model),
      prompts_(context.prompts),
      screen_(context.screen),
      kind_(kind),
      captions_(captions),
      grid_(new QGridLayout(this)) {
    setObjectName(name);
    grid_->setSizeConstraint(QLayout::SetFixedSize);
}

QLabel* FeatureDialog::add_caption_row(const char* name, const QString& text) {
    auto* label = new QLabel(text, this);
    label->setObjectName(name);
    grid_->addWidget(label, row_++, 0, 1, -1);
    return label;
}

QLabel* FeatureDialog::add_head(const char* name, const QString& text, int column) {
    auto* label = new QLabel(text, this);
    label->setObjectName(name);
    grid_->addWidget(label, row_, column, Qt::AlignHCenter);
    return label;
}

QLineEdit* FeatureDialog::add_box(const char* name, int column) {
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    grid_->addWidget(box, row_, column);
    return box;
}

UnitField* FeatureDialog::add_units(const UnitSystems& units, int column) {
    auto* field = new UnitField(units, this);
    field->show_system(model_.metric_units);
    unit_fields_.push_back(field);
    grid_->addWidget(field, row_, column);
    // Room left by a wide caption goes to the units, not to the boxes.
    grid_->setColumnStretch(column, 1);
    return field;
}

void FeatureDialog::add_row_widget(QWidget* widget) {
    widget->setParent(this);
    grid_->addWidget(widget, row_++, 0, 1, -1);
}

void FeatureDialog::finish_layout(QLineEdit* first_box) {
    first_box_ = first_box;
    command1_ = new QPushButton(this);
    command1_->setObjectName("Command1");
    command1_->setDefault(true);
    auto* command2 = new QPushButton("Cancel", this);
    command2->setObjectName("Command2");
    connect(command1_, &QPushButton::clicked, this, &FeatureDialog::command1);
    connect(command2, &QPushButton::clicked, this, &FeatureDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(command1_);
    buttons->addWidget(command2);
    grid_->addLayout(buttons, row_++, 0, 1, -1);
    show_adding();
}

void FeatureDialog::show_adding() {
    edited_feature_ = 0;
    setWindowTitle(captions_.window);
    command1_->setText(captions_.command);
    show_editing(false);
}

void FeatureDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    focus_first_box();
}

void FeatureDialog::focus_first_box() {
    first_box_->setFocus();
    first_box_->selectAll();
}

void FeatureDialog::edit_feature(int feature_number, int mode) {
    if (mode == kSubmitEdit) {
        if (editing_feature()) command1();
        return;
    }
    if (mode != kBeginEdit) return;
    const auto entry = lookup_feature(model_, feature_number);
    if (!entry || entry->kind != kind_ || is_removed(model_, *entry)) {
        show_message(Status::failure(kInvalidFeatureNumber));
        return;
    }
    if (const Status allowed = editable(*entry); !allowed.ok()) {
        show_message(allowed);
        return;
    }
    follow_unit_system();
    edited_feature_ = feature_number;
    setWindowTitle("Edit Feature " + QString::number(feature_number));
    command1_->setText("Submit");
    show_editing(true);
    show_feature(*entry, feature_number);
    show();
    raise();
    activateWindow();
    focus_first_box();
}

void FeatureDialog::follow_unit_system() {
    if (unit_fields_.empty() || unit_fields_.front()->metric_shown() == model_.metric_units) return;
    for (UnitField* field : unit_fields_)
        field->show_system(model_.metric_units);
    if (const auto entry = lookup_feature(model_, edited_feature_); entry && editing_feature()) {
        show_feature(*entry, edited_feature_);
    }
}

// Shapes drawn at the old scale are erased before the beam changes, and the picture is drawn
// again whatever the outcome, so a refusal leaves it as it was.
void FeatureDialog::command1() {
    follow_unit_system();
    screen_.redraw_screen(kPenErase);
    const int edited = edited_feature_;
    const Status status = edited != 0 ? submit(edited) : add();
    if (!status.ok()) {
        screen_.redraw_screen(kPenDraw);
        show_message(status);
        return;
    }
    if (edited != 0) screen_.show_edited_feature(edited);
    screen_.redraw_screen(kPenDraw);
    show_adding();
    accept();
}

void FeatureDialog::reject() {
    show_adding();
    QDialog::reject();
}

void FeatureDialog::show_message(const Status& status) {
    prompts_.message(QString::fromStdString(status.message()), kProgramTitle,
                     QString::fromStdString(status.detail()));
}

}  // namespace flexley
