// The preferences dialog "File Preferences": the beam definition file, the working files folder,
// the default units, the outline-only plots and the integration method.
#include "ui/dialogs/preferences_dialog.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "files/preference_choices.h"
#include "ui/common/controls.h"
#include "ui/dialogs/option_frame.h"

namespace flexley {
PreferencesDialog::PreferencesDialog(ProgramSettings& settings, BeamModel& model, Prompts& prompts,
                                     QWidget* parent)
    : QDialog(parent),
      settings_(settings),
      model_(model),
      prompts_(prompts),
      definition_path_(named(new QLineEdit, "beamdefn")),
      working_path_(named(new QLineEdit, "workfiledefn")),
      metric_(named(new QRadioButton("Metric"), "metopt")),
      english_(named(new QRadioButton("English"), "engopt")),
      outline_(named(new QCheckBox("Display calculation graphics as outline only."), "outline")),
      exact_(named(new QCheckBox(kExactIntegrationCaption), "exactintegration")) {
    setObjectName("preferences");
    setWindowTitle("File Preferences");
    show_settings();
    lay_out();
}

// Top to bottom as the user reads it, which is also the Tab order; OK is the default button and
// Escape cancels.
void PreferencesDialog::lay_out() {
    auto* files = named(new QGroupBox("Files"), "Frame2");
    auto* file_rows = new QVBoxLayout(files);
    auto* definition_caption =
        named(new QLabel("Beam Definition File Path (Include filename.)"), "Label1");
    auto* working_caption =
        named(new QLabel("Working Files Path (Save, Load and Import look here first)"), "Label2");
    definition_caption->setBuddy(definition_path_);
    working_caption->setBuddy(working_path_);
    definition_path_->setMinimumWidth(420);
    file_rows->addWidget(definition_caption);
    file_rows->addWidget(definition_path_);
    file_rows->addWidget(working_caption);
    file_rows->addWidget(working_path_);

    QGroupBox* units = option_frame("Frame1", "Default Units", {metric_, english_});
    // The two choices side by side on the left rather than spread over the whole width.
    if (auto* row = qobject_cast<QBoxLayout*>(units->layout())) row->addStretch();

    auto* display = named(new QGroupBox("Display"), "Frame3");
    auto* display_rows = new QVBoxLayout(display);
    display_rows->addWidget(outline_);
    display_rows->addWidget(exact_);

    auto* buttons = new QDialogButtonBox;
    QPushButton* ok = buttons->addButton("OK", QDialogButtonBox::AcceptRole);
    QPushButton* cancel = buttons->addButton("Cancel", QDialogButtonBox::RejectRole);
    ok->setObjectName("OK");
    cancel->setObjectName("Cancel");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &PreferencesDialog::confirm);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addWidget(files);
    column->addWidget(units);
    column->addWidget(display);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    definition_path_->setFocus();
}

void PreferencesDialog::show_settings() {
    const Preferences& preferences = settings_.preferences;
    definition_path_->setText(text_of(beam_definition_file(settings_)));
    working_path_->setText(text_of(preferences.working_files_path.empty()
                                       ? settings_.start_dir
                                       : preferences.working_files_path));
    metric_->setChecked(preferences.default_units == "metric");
    english_->setChecked(preferences.default_units != "metric");
    outline_->setChecked(preferences.outline_only);
    exact_->setChecked(settings_.extra.integration_method == IntegrationMethod::exact);
}

// Each setting is stored on its own; a refused path is reported and the others still take effect.
void PreferencesDialog::confirm() {
    const Preferences chosen{definition_path_->text().toStdString(),
                             working_path_->text().toStdString(),
                             metric_->isChecked() ? "metric" : "english", outline_->isChecked()};
    for (const std::string& refusal : apply_preference_choices(settings_.preferences, chosen)) {
        prompts_.message(text_of(refusal));
    }
    const IntegrationMethod method =
        exact_->isChecked() ? IntegrationMethod::exact : IntegrationMethod::trapezoid;
    settings_.extra.integration_method = method;
    model_.integration_method = method;
    accept();
}

}  // namespace flexley
