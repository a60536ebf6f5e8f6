// The "Beam Properties" dialog: I, E and c of the beam, typed, calculated or chosen from a list.
#pragma once

#include <QDialog>
#include <array>
#include <memory>

#include "model/beam_model.h"
#include "sections/property_entry.h"
#include "ui/common/program_settings.h"
#include "ui/common/prompts.h"

class QLineEdit;

namespace flexley {

class SectionUnitFrames;

// Shows the properties in in^4, psi and in, or in mm^4, GPa and mm on a metric beam. Opening on a
// beam without E stores the default E at once. Only boxes the user changed reach the model, so a
// value shown rounded is never written back rounded.
class BeamPropertiesDialog final : public QDialog {
    Q_OBJECT

  public:
    BeamPropertiesDialog(BeamModel& model, ProgramSettings& settings, Prompts& prompts,
                         QWidget* parent = nullptr);
    ~BeamPropertiesDialog() override;

    // Continue: stores every changed box. False, with the user told which box is refused, when
    // one is not a property; then nothing is stored and the dialog stays as the user left it.
    bool confirm();

  private:
    struct PropertyBox {
        SectionProperty property;
        QLineEdit* box = nullptr;
        bool changed = false;
    };

    void build_boxes();
    void lay_out();
    void load();
    void open_calculator();
    void open_chooser();
    void open_aid(QDialog* aid);
    void take_section_values(const QString& moment_of_inertia, const QString& fibre_distance);
    PropertyBox& box_for(SectionProperty property);

    BeamModel& model_;
    ProgramSettings& settings_;
    Prompts& prompts_;
    std::array<PropertyBox, 3> boxes_;
    std::unique_ptr<SectionUnitFrames> units_;
};

}  // namespace flexley
