// Small pieces the three section property dialogs are built from.
#include "ui/dialogs/section_dialog_parts.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace flexley {

QPushButton* push_button(const char* caption, const char* name) {
    return named(new QPushButton(caption), name);
}

QHBoxLayout* button_row(std::initializer_list<QPushButton*> buttons) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* button : buttons)
        row->addWidget(button);
    return row;
}

void set_tab_order(const QList<QWidget*>& order) {
    for (int k = 1; k < order.size(); ++k)
        QWidget::setTabOrder(order[k - 1], order[k]);
}

}  // namespace flexley
