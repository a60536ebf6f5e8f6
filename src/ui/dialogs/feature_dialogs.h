// The Loading Screen's four feature dialogs: at most one of each kind open, each opened empty by
// its Add command or on a feature by Edit Feature.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <array>

#include "ui/dialogs/feature_dialog.h"

namespace flexley {

// The refusal of one more feature of `kind` when its table or the feature list is full.
Status room_for(const BeamModel& model, FeatureKind kind);

class FeatureDialogs final : public QObject {
    Q_OBJECT

  public:
    // The dialogs open on `screen`, centred on the work area.
    FeatureDialogs(const FeatureDialogContext& context, const QRect& work_area,
                   QObject* parent = nullptr);

    // Brings the open dialog of this kind to the front, or opens an empty one when the beam has
    // room for one more such feature.
    void open(FeatureKind kind);

    // The dialog of feature `feature_number`'s kind begins editing it.
    void edit(int feature_number);

  private:
    FeatureDialog* dialog_for(FeatureKind kind);

    FeatureDialogContext context_;
    QRect work_area_;
    // The open dialogs, by kind; a closed one deletes itself.
    std::array<QPointer<FeatureDialog>, 4> open_;
};

}  // namespace flexley
