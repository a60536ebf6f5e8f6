// The "Choose Standard Cross-Section" dialog: I and c of a listed section, about either axis.
#pragma once

#include <QDialog>
#include <array>
#include <cstdint>
#include <optional>

#include "files/beam_definitions.h"
#include "model/beam_model.h"
#include "ui/common/program_settings.h"
#include "ui/common/prompts.h"

class QLineEdit;
class QListWidget;
class QTabWidget;

namespace flexley {

// The sections come from the beam definition file the preferences name, or from the shipped list.
// While the dialog is open the model's sig_figs is 6, so converted values keep their precision;
// every way out puts the user's setting back.
class SectionChooserDialog final : public QDialog {
    Q_OBJECT

  public:
    // Reads the list at once: a missing file is reported and a path asked for, which then
    // replaces the preferred path.
    SectionChooserDialog(BeamModel& model, ProgramSettings& settings, Prompts& prompts,
                         QWidget* parent = nullptr);
    ~SectionChooserDialog() override;

    void done(int result) override;

  signals:
    // "Use X-X Values" or "Use Y-Y Values": texts for the beam properties dialog's I and c
    // boxes, I in mm^4 on a metric beam.
    void values_chosen(const QString& moment_of_inertia, const QString& fibre_distance);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    enum Axis { kAxisXX = 0, kAxisYY = 1 };

    std::optional<BeamDefinitions> read_definitions();
    void build_tabs();
    void lay_out();
    void apply_filter();
    void show_selected();
    QListWidget& current_list() const;
    void use_values(Axis axis);
    void restore_sig_figs();

    BeamModel& model_;
    ProgramSettings& settings_;
    Prompts& prompts_;
    std::optional<std::int16_t> saved_sig_figs_;
    BeamDefinitions definitions_;

    QLineEdit* filter_;
    QTabWidget* tabs_;
    std::array<QListWidget*, kSectionKindCount> lists_{};
    std::array<QLineEdit*, 2> moment_of_inertia_{};
    std::array<QLineEdit*, 2> fibre_distance_{};
};

}  // namespace flexley
