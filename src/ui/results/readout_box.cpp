// A read-out text box: shows a result the user can select and copy but not change.
#include "ui/results/readout_box.h"

#include <QFontMetrics>
#include <QLineEdit>

namespace flexley {

QLineEdit* readout_box(const char* name) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    // Nothing reads the boxes back, so an edit would only make them disagree with the results.
    box->setReadOnly(true);
    // Wide enough for a value in exponent form with the longest unit, "-1.23456E+15 lb.-ft.".
    box->setMinimumWidth(box->fontMetrics().horizontalAdvance("-1.23456E+15 lb.-ft.  "));
    return box;
}

}  // namespace flexley
