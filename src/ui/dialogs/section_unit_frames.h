// Unit labels beside a column of section boxes, one frame of them per unit system.
#pragma once

#include <QList>
#include <QStringList>
#include <vector>

class QGridLayout;
class QLabel;
class QLineEdit;
class QWidget;

namespace flexley {

struct UnitColumn {
    const char* name;   // the frame's control name
    QStringList units;  // one per box, top to bottom
};

// The frames stand in one grid column beside `boxes`, which occupy consecutive rows from
// `first_row`. Each label takes its box's height and the grid's row spacing is fixed, so every
// unit stays level with its box in any font, and a whole unit system shows or hides at once.
class SectionUnitFrames {
  public:
    SectionUnitFrames(QGridLayout& grid, int first_row, int column, const QList<QLineEdit*>& boxes,
                      const UnitColumn& english, const UnitColumn& metric);

    void show_system(bool metric);
    // Greys the units of one row together with its box.
    void set_row_enabled(int row, bool enabled);

  private:
    struct Frame {
        QWidget* widget = nullptr;
        std::vector<QLabel*> labels;
    };
    static Frame build(const UnitColumn& column, const QList<QLineEdit*>& boxes, int spacing);

    Frame english_;
    Frame metric_;
};

}  // namespace flexley
