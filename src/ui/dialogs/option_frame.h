// A frame of exclusive option buttons that the keyboard treats as one control.
#pragma once

#include <QString>
#include <initializer_list>

class QGroupBox;
class QRadioButton;

namespace flexley {

// Lays the buttons out in a frame named `name`. Only the chosen button takes Tab, so the group
// is one tab stop, and the arrow keys move the choice between its buttons.
QGroupBox* option_frame(const char* name, const QString& title,
                        std::initializer_list<QRadioButton*> buttons,
                        Qt::Orientation orientation = Qt::Horizontal);

}  // namespace flexley
