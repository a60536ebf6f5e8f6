// The point load dialog load_info.
#pragma once

#include "ui/dialogs/load_dialog.h"

namespace flexley {

const LoadDialogDesign& point_load_design();

}  // namespace flexley
