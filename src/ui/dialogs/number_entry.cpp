// A number box of a feature dialog: what it holds in model units, and what it refuses.
#include "ui/dialogs/number_entry.h"

#include <QLineEdit>

#include "model/display.h"
#include "model/typed_number.h"
#include "ui/dialogs/unit_field.h"

namespace flexley {

NumberEntry::NumberEntry(QLineEdit& box, UnitField& units, std::string what)
    : QObject(&box), box_(box), units_(units), what_(std::move(what)) {
    connect(&box, &QLineEdit::textEdited, this, [this] { kept_.reset(); });
    connect(&units, &UnitField::clicked, this, [this] { kept_.reset(); });
}

std::optional<double> NumberEntry::value() const {
    if (kept_) return kept_;
    const std::optional<double> typed = typed_number(box_.text().toStdString());
    if (!typed) return std::nullopt;
    return units_.chosen().to_model(*typed);
}

// Texts such as "", "abc", "1e400" or "nan" name no value the beam can hold.
std::string NumberEntry::refusal() const {
    return "Enter a number for the " + what_ + ".";
}

void NumberEntry::show_stored(double stored, double shown, int sig_figs) {
    box_.setText(QString::fromStdString(display_number(shown, sig_figs)));
    kept_ = stored;
}

}  // namespace flexley
