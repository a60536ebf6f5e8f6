// Small pieces the three section property dialogs are built from.
#pragma once

#include <QList>
#include <initializer_list>

#include "ui/common/controls.h"

class QHBoxLayout;
class QPushButton;
class QWidget;

namespace flexley {

QPushButton* push_button(const char* caption, const char* name);

// The dialog's buttons, right-aligned in the order given.
QHBoxLayout* button_row(std::initializer_list<QPushButton*> buttons);

// Tab moves through `order`, one control after the other.
void set_tab_order(const QList<QWidget*>& order);

}  // namespace flexley
