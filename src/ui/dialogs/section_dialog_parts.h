// Small pieces the three section property dialogs are built from.
#pragma once

#include <QList>
#include <initializer_list>

class QHBoxLayout;
class QPushButton;
class QWidget;

namespace flexley {

// Gives a control its name, by which tests and the other windows find it.
template <typename Widget>
Widget* named(Widget* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
}

QPushButton* push_button(const char* caption, const char* name);

// The dialog's buttons, right-aligned in the order given.
QHBoxLayout* button_row(std::initializer_list<QPushButton*> buttons);

// Tab moves through `order`, one control after the other.
void set_tab_order(const QList<QWidget*>& order);

}  // namespace flexley
