// The maximum values dialog "maxvalues": each result's extreme and where along the beam it is.
#pragma once

#include <QDialog>

#include "report/maximum_values.h"

namespace flexley {

// Shows the texts it is given; it reads nothing back and keeps nothing.
class MaximumValuesDialog final : public QDialog {
    Q_OBJECT

  public:
    explicit MaximumValuesDialog(const MaximumValueTexts& texts, QWidget* parent = nullptr);
};

}  // namespace flexley
