// A number box of a feature dialog: what it holds in model units, and what it refuses.
#pragma once

#include <QObject>
#include <optional>
#include <string>

class QLineEdit;

namespace flexley {

class UnitField;

// Lives as long as its box. While an edit shows a stored value, that value is kept exactly until
// the user changes the box or its unit, so an edit never rounds a value through its shown text.
class NumberEntry final : public QObject {
    Q_OBJECT

  public:
    // `what` names the box in the refusal of a text that is not a number ("load location").
    NumberEntry(QLineEdit& box, UnitField& units, std::string what);

    QLineEdit& box() const { return box_; }

    // The typed number in model units, or the stored value left alone; nothing when the text is
    // not a number.
    std::optional<double> value() const;
    std::string refusal() const;

    // Shows `shown` (the stored value in the unit chosen for it) and keeps `stored`.
    void show_stored(double stored, double shown, int sig_figs);

  private:
    QLineEdit& box_;
    const UnitField& units_;
    std::string what_;
    std::optional<double> kept_;
};

}  // namespace flexley
