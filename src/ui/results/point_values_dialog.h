// The values-at-a-point dialog "pointvalues": the results at the calculated point nearest a
// position the user types.
#pragma once

#include <QDialog>

#include "model/beam_model.h"
#include "ui/common/prompts.h"

class QLineEdit;
class QRadioButton;

namespace flexley {

class PointValuesDialog final : public QDialog {
    Q_OBJECT

  public:
    PointValuesDialog(const BeamModel& model, Prompts& prompts, QWidget* parent = nullptr);

    // "Find Values" (also Enter): fills the four read-outs, or says "Invalid location." for a
    // text that is not a position on the beam and leaves them as they were.
    void find_values();

  private:
    const BeamModel& model_;
    Prompts& prompts_;
    QLineEdit* location_;
    QRadioButton* feet_;
    QLineEdit* moment_;
    QLineEdit* stress_;
    QLineEdit* deflection_;
    QLineEdit* slope_;
};

}  // namespace flexley
