// Two small conversions every window makes: naming a control, and showing text from the core.
#pragma once

#include <QString>
#include <string_view>

namespace flexley {

// Gives a control its name, by which tests and the other windows find it.
template <typename Widget>
Widget* named(Widget* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
}

// The core speaks UTF-8 std::string; Qt only at the widgets.
inline QString text_of(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace flexley
