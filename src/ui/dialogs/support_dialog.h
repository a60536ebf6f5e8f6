// The support dialog support_info: adds simple and cantilever supports, moves simple ones.
#pragma once

#include "ui/dialogs/feature_dialog.h"

class QGroupBox;
class QRadioButton;

namespace flexley {

class NumberEntry;

class SupportDialog final : public FeatureDialog {
    Q_OBJECT

  public:
    SupportDialog(const FeatureDialogContext& context, QWidget* parent);

  private:
    void show_feature(FeatureRef entry, int feature_number) override;
    Status add() override;
    Status submit(int feature_number) override;
    Status editable(FeatureRef entry) const override;
    void show_editing(bool editing) override;
    // A cantilever's place is fixed by the rules, so its location box takes no input.
    void show_type();

    NumberEntry* location_ = nullptr;
    UnitField* units_ = nullptr;
    QGroupBox* type_frame_ = nullptr;
    QRadioButton* cantilever_ = nullptr;
    QRadioButton* simple_ = nullptr;
};

}  // namespace flexley
