// The documentation window: one read-only page per tab, opened at the menus of its window.
#include "ui/help/documentation_window.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "ui/help/documentation_pages.h"

namespace flexley {

DocumentationWindow::DocumentationWindow(QWidget* parent) : QDialog(parent), tabs_(new QTabWidget) {
    setObjectName("docflexley");
    setWindowTitle("Flexley Documentation");
    tabs_->setObjectName("tabs");
    for (const DocumentationPage& page : documentation_pages()) {
        auto* browser = new QTextBrowser;
        browser->setObjectName(page.name);
        browser->setHtml(page.html);
        tabs_->addTab(browser, page.tab);
        if (!menu_page_) menu_page_ = browser;
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setObjectName("Close");
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);

    auto* column = new QVBoxLayout(this);
    column->addWidget(tabs_);
    column->addWidget(buttons);
    resize(760, 620);
}

void DocumentationWindow::show_from(HelpOrigin origin) {
    origin_ = origin;
    tabs_->setCurrentWidget(menu_page_);
    show();
    menu_page_->scrollToAnchor(origin == HelpOrigin::loading ? kLoadingMenusAnchor
                                                             : kCalculationsMenusAnchor);
    raise();
    activateWindow();
    menu_page_->setFocus();
}

DocumentationWindow& open_documentation(QWidget& window, HelpOrigin origin) {
    auto* documentation =
        window.findChild<DocumentationWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!documentation) documentation = new DocumentationWindow(&window);
    documentation->show_from(origin);
    return *documentation;
}

}  // namespace flexley
