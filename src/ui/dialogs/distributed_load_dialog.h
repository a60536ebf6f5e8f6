// The distributed load dialog distload_info.
#pragma once

#include "ui/dialogs/load_dialog.h"

namespace flexley {

const LoadDialogDesign& distributed_load_design();

}  // namespace flexley
