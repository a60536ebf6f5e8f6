// The preferences dialog "File Preferences": the beam definition file, the working files folder,
// the default units, the outline-only plots and the integration method.
#pragma once

#include <QDialog>

#include "model/beam_model.h"
#include "ui/common/program_settings.h"
#include "ui/common/prompts.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

namespace flexley {

inline constexpr const char* kExactIntegrationCaption =
    "Calculate slope and deflection exactly (recommended)";

class PreferencesDialog final : public QDialog {
    Q_OBJECT

  public:
    // Changes only the settings in memory and the model's integration method; the files are
    // written when the program ends.
    PreferencesDialog(ProgramSettings& settings, BeamModel& model, Prompts& prompts,
                      QWidget* parent = nullptr);

  private:
    void lay_out();
    void show_settings();
    void confirm();

    ProgramSettings& settings_;
    BeamModel& model_;
    Prompts& prompts_;
    QLineEdit* definition_path_;
    QLineEdit* working_path_;
    QRadioButton* metric_;
    QRadioButton* english_;
    QCheckBox* outline_;
    QCheckBox* exact_;
};

}  // namespace flexley
