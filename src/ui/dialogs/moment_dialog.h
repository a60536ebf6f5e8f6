// The moment dialog moment_info.
#pragma once

#include "ui/dialogs/load_dialog.h"

namespace flexley {

const LoadDialogDesign& moment_design();

}  // namespace flexley
