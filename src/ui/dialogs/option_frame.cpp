// A frame of exclusive option buttons that the keyboard treats as one control.
#include "ui/dialogs/option_frame.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QRadioButton>

namespace flexley {

QGroupBox* option_frame(const char* name, const QString& title,
                        std::initializer_list<QRadioButton*> buttons, Qt::Orientation orientation) {
    auto* frame = new QGroupBox(title);
    frame->setObjectName(name);
    auto* layout = new QBoxLayout(
        orientation == Qt::Horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, frame);
    for (QRadioButton* button : buttons) {
        layout->addWidget(button);
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
        QObject::connect(button, &QRadioButton::toggled, button, [button](bool checked) {
            button->setFocusPolicy(checked ? Qt::StrongFocus : Qt::ClickFocus);
        });
    }
    return frame;
}

}  // namespace flexley
