// A read-out text box: shows a result the user can select and copy but not change.
#pragma once

class QLineEdit;

namespace flexley {

QLineEdit* readout_box(const char* name);

}  // namespace flexley
