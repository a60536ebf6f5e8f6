// The About box and what its buttons open.
#include "ui/help/about_box.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/help/slide_show.h"
#include "ui/help/system_info.h"

namespace flexley {

QString slides_folder(const std::string& shipped_definitions) {
    return QFileInfo(QString::fromStdString(shipped_definitions)).dir().filePath("slides");
}

AboutBox::AboutBox(Prompts& prompts, HelpOrigin origin, QString slides_folder, QWidget* parent)
    : QDialog(parent),
      prompts_(prompts),
      origin_(origin),
      slides_folder_(std::move(slides_folder)) {
    setObjectName("about");
    setWindowTitle("About Flexley");
    auto* name = new QLabel("Flexley");
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 2);
    large.setBold(true);
    name->setFont(large);
    auto* version = new QLabel("Version 2.2");
    version->setObjectName("version");
    auto* description = new QLabel(
        "Support reactions, bending moment, stress, slope and deflection of a straight beam,\n"
        "for students and for engineers who want a quick design check.");
    description->setObjectName("description");

    auto* buttons = new QDialogButtonBox;
    QPushButton* ok = buttons->addButton("OK", QDialogButtonBox::AcceptRole);
    QPushButton* system = buttons->addButton("System Info", QDialogButtonBox::ActionRole);
    QPushButton* slides = buttons->addButton("Slide Show", QDialogButtonBox::ActionRole);
    ok->setObjectName("OK");
    system->setObjectName("sysinfo");
    slides->setObjectName("slideshow_button");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(system, &QPushButton::clicked, this, &AboutBox::show_system_info);
    connect(slides, &QPushButton::clicked, this, &AboutBox::start_slide_show);

    auto* column = new QVBoxLayout(this);
    column->addWidget(name);
    column->addWidget(version);
    column->addSpacing(8);
    column->addWidget(description);
    column->addSpacing(8);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    ok->setFocus();
}

void AboutBox::show_system_info() {
    prompts_.message(system_info_text(*this), "System Info");
}

void AboutBox::start_slide_show() {
    const QStringList files = slide_files(slides_folder_);
    if (files.isEmpty()) {
        prompts_.message(kNoSlides, kProgramTitle, "Looked in " + slides_folder_ + ".");
        return;
    }
    auto* show = new SlideShow(files, this);
    show->setAttribute(Qt::WA_DeleteOnClose);
    show->open();
}

}  // namespace flexley
