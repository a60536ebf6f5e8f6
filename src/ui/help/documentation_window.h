// The documentation window "docflexley": four tabbed pages about the program as it is.
#pragma once

#include <QDialog>

class QTabWidget;
class QTextBrowser;

namespace flexley {

// The main window a help window was opened from.
enum class HelpOrigin { loading, calculations };

// Not modal, so the user can read it beside the window it explains; it closes with that window.
class DocumentationWindow final : public QDialog {
    Q_OBJECT

  public:
    explicit DocumentationWindow(QWidget* parent = nullptr);

    // Shows the window in front at the description of the menus of the window it was opened from.
    void show_from(HelpOrigin origin);
    HelpOrigin origin() const { return origin_; }

  private:
    QTabWidget* tabs_;
    QTextBrowser* menu_page_ = nullptr;
    HelpOrigin origin_ = HelpOrigin::loading;
};

// Documentation and F1 of a main window: its documentation window, created on first use.
DocumentationWindow& open_documentation(QWidget& window, HelpOrigin origin);

}  // namespace flexley
