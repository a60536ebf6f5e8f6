// Building a main window's menu bar: every menu and item carries its name, as tests find them.
#pragma once

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QString>

namespace flexley {

inline QMenu* add_menu(QMainWindow& window, const char* name, const QString& caption) {
    QMenu* menu = window.menuBar()->addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

// An item that runs `slot` of `window` (a member function or a lambda) when chosen.
template <typename Window, typename Slot>
QAction* add_command(Window* window, QMenu* menu, const char* name, const QString& caption,
                     Slot slot, const QKeySequence& shortcut = {}) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    QObject::connect(action, &QAction::triggered, window, slot);
    return action;
}

}  // namespace flexley
