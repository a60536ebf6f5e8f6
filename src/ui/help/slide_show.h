// The slide show: screenshots of Flexley at work, one after another.
#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

class QLabel;
class QPushButton;

namespace flexley {

// The slides of a folder: its PNG files in name order.
QStringList slide_files(const QString& folder);

// "03-loading-screen.png" gives "Loading screen": the order number goes, hyphens become blanks.
QString slide_caption(const QString& file);

// Previous and Next (or the arrow keys) step through the slides; Escape closes.
class SlideShow final : public QDialog {
    Q_OBJECT

  public:
    // `files` must not be empty.
    explicit SlideShow(QStringList files, QWidget* parent = nullptr);

    void show_slide(int index);
    int current() const { return current_; }

  private:
    QStringList files_;
    int current_ = 0;
    QLabel* picture_;
    QLabel* caption_;
    QPushButton* previous_;
    QPushButton* next_;
};

}  // namespace flexley
