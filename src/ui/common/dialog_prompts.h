// Prompts shown as the platform's modal message boxes and input boxes.
#pragma once

#include "ui/common/prompts.h"

namespace flexley {

class DialogPrompts final : public Prompts {
  public:
    void message(const QString& text, const QString& title, const QString& details) override;
    bool question(const QString& text, const QString& title) override;
    QString text(const QString& prompt, const QString& title, const QString& default_text) override;
};

}  // namespace flexley
