// What the four feature dialogs share: adding, editing through edit_feature, Cancel, and the
// redraw of the Loading Screen around every command.
#pragma once

#include <QDialog>
#include <vector>

#include "model/beam_model.h"
#include "model/features.h"
#include "model/status.h"
#include "ui/common/prompts.h"
#include "ui/dialogs/unit_field.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace flexley {

class LoadingScreen;

// What a feature dialog works on: the beam, the user, and the window that shows the beam.
struct FeatureDialogContext {
    BeamModel& model;
    Prompts& prompts;
    LoadingScreen& screen;
};

// The modes of edit_feature.
inline constexpr int kBeginEdit = 1;
inline constexpr int kSubmitEdit = 2;

// The captions a dialog shows while it adds a feature; while editing it shows "Edit Feature n"
// and "Submit".
struct AddCaptions {
    const char* window;
    const char* command;
};

class FeatureDialog : public QDialog {
    Q_OBJECT

  public:
    // kBeginEdit shows feature `feature_number` and turns Command1 into Submit; a number that
    // names no live feature of this dialog's kind is refused and the dialog stays as it was.
    // kSubmitEdit submits the edit under way, as Command1 does; `feature_number` is then ignored.
    void edit_feature(int feature_number, int mode);
    bool editing_feature() const { return edited_feature_ != 0; }

    // Shows the units of the beam's unit system when they have changed since the dialog opened;
    // an edit under way shows its feature again, converted.
    void follow_unit_system();

    // Cancel: an edit under way ends and nothing changes.
    void reject() override;

  protected:
    FeatureDialog(const FeatureDialogContext& context, const char* name, FeatureKind kind,
                  AddCaptions captions, QWidget* parent);

    BeamModel& model() const { return model_; }

    // Rows of the dialog's grid, top to bottom; created in that order, so Tab follows them.
    QLabel* add_caption_row(const char* name, const QString& text);
    QLabel* add_head(const char* name, const QString& text, int column);
    QLineEdit* add_box(const char* name, int column);
    UnitField* add_units(const UnitSystems& units, int column);
    void add_row_widget(QWidget* widget);
    void next_row() { ++row_; }
    // The buttons close the grid; the first box takes the focus whenever the dialog is shown.
    void finish_layout(QLineEdit* first_box);

    // What each kind does for itself.
    virtual void show_feature(FeatureRef entry, int feature_number) = 0;
    virtual Status add() = 0;
    virtual Status submit(int feature_number) = 0;
    // Whether the kind lets this live feature be edited at all.
    virtual Status editable(FeatureRef) const { return Status::success(); }
    virtual void show_editing(bool) {}

  private:
    void command1();
    void show_adding();
    void show_message(const Status& status);
    void focus_first_box();
    void showEvent(QShowEvent* event) override;

    BeamModel& model_;
    Prompts& prompts_;
    LoadingScreen& screen_;
    FeatureKind kind_;
    AddCaptions captions_;
    QGridLayout* grid_;
    int row_ = 0;
    std::vector<UnitField*> unit_fields_;
    QLineEdit* first_box_ = nullptr;
    QPushButton* command1_ = nullptr;
    int edited_feature_ = 0;
};

}  // namespace flexley
