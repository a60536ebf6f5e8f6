// The About box: the program's name, version and purpose, System Info and the slide show.
#pragma once

#include <QDialog>
#include <QString>

#include "ui/common/prompts.h"
#include "ui/help/documentation_window.h"

namespace flexley {

inline constexpr const char* kNoSlides = "The slide show's pictures cannot be found.";

// The slides are installed beside the shipped beam definition file, in its "slides" folder.
QString slides_folder(const std::string& shipped_definitions);

class AboutBox final : public QDialog {
    Q_OBJECT

  public:
    AboutBox(Prompts& prompts, HelpOrigin origin, QString slides_folder, QWidget* parent = nullptr);

    HelpOrigin origin() const { return origin_; }

  private:
    void show_system_info();
    void start_slide_show();

    Prompts& prompts_;
    HelpOrigin origin_;
    QString slides_folder_;
};

}  // namespace flexley
