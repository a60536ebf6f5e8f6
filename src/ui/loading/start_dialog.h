// The start dialog "Initialize Beam": the unit system and the length of a new beam.
#pragma once

#include <QDialog>

#include "files/preferences.h"
#include "model/beam_model.h"
#include "ui/common/prompts.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace flexley {

// At program start the dialog sets up a new beam from its defaults; at Reinitialize it shows the
// length of the beam being replaced, so Continue without changes keeps it.
enum class StartMode { program_start, reinitialize };

class StartDialog final : public QDialog {
    Q_OBJECT

  public:
    StartDialog(BeamModel& model, const Preferences& preferences, Prompts& prompts, StartMode mode,
                QWidget* parent = nullptr);

    // Continue: stores the unit system and the length. False, with the user told why, when the
    // length is refused; the dialog then stays as the user left it.
    bool confirm();

  signals:
    // "Retrieve Load File": the beam is confirmed when it can be, and a file is to be opened.
    void retrieve_requested();

  private:
    void build_controls();
    void lay_out();
    void load(StartMode mode, const Preferences& preferences);
    void show_unit_system();
    bool length_in_feet() const;

    BeamModel& model_;
    Prompts& prompts_;
    bool units_or_length_changed_ = false;
    bool feet_or_inches_changed_ = false;

    QGroupBox* unit_frame_;
    QRadioButton* metric_;
    QRadioButton* english_;
    QGroupBox* length_unit_frame_;
    QRadioButton* inches_;
    QRadioButton* feet_;
    QLineEdit* length_;
    QLabel* meters_;
    QLabel* length_caption_;
};

}  // namespace flexley
