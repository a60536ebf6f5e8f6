// The slide show: a picture, its caption and the buttons that step through the slides.
#include "ui/help/slide_show.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <algorithm>

namespace flexley {

namespace {

// Large enough to read a screenshot, small enough for a laptop screen.
constexpr QSize kPictureArea(960, 600);

}  // namespace

QStringList slide_files(const QString& folder) {
    QStringList files;
    const QDir dir(folder);
    for (const QString& name : dir.entryList({"*.png"}, QDir::Files, QDir::Name))
        files << dir.filePath(name);
    return files;
}

QString slide_caption(const QString& file) {
    QString caption = QFileInfo(file).completeBaseName();
    caption.remove(QRegularExpression("^[0-9]+-"));
    caption.replace('-', ' ');
    if (!caption.isEmpty()) caption[0] = caption[0].toUpper();
    return caption;
}

SlideShow::SlideShow(QStringList files, QWidget* parent)
    : QDialog(parent),
      files_(std::move(files)),
      picture_(new QLabel),
      caption_(new QLabel),
      previous_(new QPushButton("< &Previous")),
      next_(new QPushButton("&Next >")) {
    setObjectName("slideshow");
    setWindowTitle("Flexley Slide Show");
    picture_->setObjectName("picture");
    picture_->setAlignment(Qt::AlignCenter);
    picture_->setMinimumSize(kPictureArea);
    caption_->setObjectName("caption");
    caption_->setAlignment(Qt::AlignCenter);
    previous_->setObjectName("previous");
    next_->setObjectName("next");
    previous_->setShortcut(Qt::Key_Left);
    next_->setShortcut(Qt::Key_Right);
    connect(previous_, &QPushButton::clicked, this, [this] { show_slide(current_ - 1); });
    connect(next_, &QPushButton::clicked, this, [this] { show_slide(current_ + 1); });

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setObjectName("Close");
    buttons->addButton(previous_, QDialogButtonBox::ActionRole);
    buttons->addButton(next_, QDialogButtonBox::ActionRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);

    auto* column = new QVBoxLayout(this);
    column->addWidget(picture_, 1);
    column->addWidget(caption_);
    column->addWidget(buttons);
    show_slide(0);
    next_->setDefault(true);
    next_->setFocus();
}

void SlideShow::show_slide(int index) {
    current_ = std::clamp(index, 0, static_cast<int>(files_.size()) - 1);
    const QString& file = files_[current_];
    picture_->setPixmap(
        QPixmap(file).scaled(kPictureArea, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    caption_->setText(
        QString("%1 of %2: %3").arg(current_ + 1).arg(files_.size()).arg(slide_caption(file)));
    previous_->setEnabled(current_ > 0);
    next_->setEnabled(current_ + 1 < files_.size());
}

}  // namespace flexley
