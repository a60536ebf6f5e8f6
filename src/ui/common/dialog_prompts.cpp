// Prompts shown as the platform's modal message boxes and input boxes.
#include "ui/common/dialog_prompts.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

namespace flexley {

// Boxes belong to whichever window the user is working in, so they stay on top of it.
void DialogPrompts::message(const QString& text, const QString& title, const QString& details) {
    QMessageBox box(QMessageBox::NoIcon, title, text, QMessageBox::Ok,
                    QApplication::activeWindow());
    if (!details.isEmpty()) box.setDetailedText(details);
    box.exec();
}

bool DialogPrompts::question(const QString& text, const QString& title) {
    return QMessageBox::question(QApplication::activeWindow(), title, text,
                                 QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

QString DialogPrompts::text(const QString& prompt, const QString& title,
                            const QString& default_text) {
    bool accepted = false;
    const QString answer = QInputDialog::getText(QApplication::activeWindow(), title, prompt,
                                                 QLineEdit::Normal, default_text, &accepted);
    return accepted ? answer : QString();
}

}  // namespace flexley
