// The "Calculate Moment Of Inertia" dialog: I and c of a round or rectangular, solid or tube
// section.
#pragma once

#include <QDialog>
#include <memory>

#include "model/beam_model.h"
#include "sections/section_calculator.h"
#include "ui/common/prompts.h"

class QLabel;
class QLineEdit;
class QRadioButton;
class QStackedWidget;

namespace flexley {

class PictureView;
class SectionUnitFrames;

// Dimensions are typed in the beam properties dialog's units: inches, or millimetres on a metric
// beam, and I and c come back in the same units (in^4 and in, or mm^4 and mm).
class InertiaCalculatorDialog final : public QDialog {
    Q_OBJECT

  public:
    InertiaCalculatorDialog(const BeamModel& model, Prompts& prompts, QWidget* parent = nullptr);
    ~InertiaCalculatorDialog() override;

  signals:
    // "Use These Values": the texts of the two result boxes, for the beam properties dialog.
    void values_chosen(const QString& moment_of_inertia, const QString& fibre_distance);

  private:
    void build_controls();
    void lay_out();
    QWidget* dimension_page(const char* name, const QList<QLabel*>& captions,
                            const QList<QLineEdit*>& boxes,
                            std::unique_ptr<SectionUnitFrames>& units, const char* english_name,
                            const char* metric_name);
    void show_section();
    CrossSection shape() const;
    bool tube() const;
    SectionDimensions dimensions() const;
    void calculate();
    void use_values();

    const BeamModel& model_;
    Prompts& prompts_;

    QRadioButton* round_;
    QRadioButton* rectangular_;
    QRadioButton* solid_;
    QRadioButton* tube_;
    QLineEdit* outer_diameter_;
    QLineEdit* inner_diameter_;
    QLineEdit* height_;
    QLineEdit* width_;
    QLineEdit* wall_;
    QLabel* inner_diameter_caption_;
    QLabel* wall_caption_;
    QStackedWidget* dimension_pages_;
    QWidget* round_page_ = nullptr;
    QWidget* square_page_ = nullptr;
    std::unique_ptr<SectionUnitFrames> round_units_;
    std::unique_ptr<SectionUnitFrames> square_units_;
    QLabel* rectangle_note_;
    PictureView* sketch_;
    QLineEdit* moment_of_inertia_;
    QLineEdit* fibre_distance_;
};

}  // namespace flexley
