// The platform facts the About box's "System Info" reports.
#pragma once

#include <QString>

class QWidget;

namespace flexley {

// Operating system, processor architecture, Qt version, and the size and resolution of the
// screen `window` stands on, one fact a line.
QString system_info_text(const QWidget& window);

}  // namespace flexley
