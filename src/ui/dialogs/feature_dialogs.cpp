// The Loading Screen's four feature dialogs: at most one of each kind open.
#include "ui/dialogs/feature_dialogs.h"

#include <string>

#include "model/features.h"
#include "ui/dialogs/distributed_load_dialog.h"
#include "ui/dialogs/moment_dialog.h"
#include "ui/dialogs/point_load_dialog.h"
#include "ui/dialogs/support_dialog.h"
#include "ui/loading/loading_screen.h"

namespace flexley {
namespace {

FeatureDialog* create_dialog(const FeatureDialogContext& context, FeatureKind kind) {
    QWidget* window = &context.screen;
    switch (kind) {
        case FeatureKind::point_load:
            return new LoadDialog(context, point_load_design(), window);
        case FeatureKind::distributed_load:
            return new LoadDialog(context, distributed_load_design(), window);
        case FeatureKind::moment:
            return new LoadDialog(context, moment_design(), window);
        case FeatureKind::support:
            return new SupportDialog(context, window);
    }
    return nullptr;
}

}  // namespace

FeatureDialogs::FeatureDialogs(const FeatureDialogContext& context, const QRect& work_area,
                               QObject* parent)
    : QObject(parent), context_(context), work_area_(work_area) {
    // A unit command may run while a dialog is open; its units must follow.
    connect(&context.screen, &LoadingScreen::beam_shown, this, [this] {
        for (const auto& dialog : open_)
            if (dialog) dialog->follow_unit_system();
    });
}

FeatureDialog* FeatureDialogs::dialog_for(FeatureKind kind) {
    QPointer<FeatureDialog>& slot = open_[static_cast<int>(kind)];
    // A dialog closed but not yet deleted is never reused.
    if (slot && slot->isVisible()) return slot;
    slot = create_dialog(context_, kind);
    slot->setAttribute(Qt::WA_DeleteOnClose);
    slot->adjustSize();
    slot->move(work_area_.center() - slot->rect().center());
    return slot;
}

void FeatureDialogs::open(FeatureKind kind) {
    const QPointer<FeatureDialog>& slot = open_[static_cast<int>(kind)];
    if (!(slot && slot->isVisible())) {
        if (const Status room = check_room(context_.model, kind); !room.ok()) {
            context_.prompts.message(QString::fromStdString(room.message()));
            return;
        }
    }
    FeatureDialog* dialog = dialog_for(kind);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void FeatureDialogs::edit(int feature_number) {
    const auto entry = lookup_feature(context_.model, feature_number);
    if (!entry) {
        context_.prompts.message(kInvalidFeatureNumber);
        return;
    }
    FeatureDialog* dialog = dialog_for(entry->kind);
    dialog->edit_feature(feature_number, kBeginEdit);
    // A refused edit leaves no dialog behind that was opened only for it.
    if (!dialog->isVisible()) delete dialog;
}

}  // namespace flexley
