// Prompts: the one way a window shows a message, asks Yes or No, or asks for a line of text.
#pragma once

#include <QString>

namespace flexley {

inline constexpr const char* kProgramTitle = "Flexley";

// Every window talks to the user through this interface, so a test can script the answers and
// read back exactly what was shown, and no test ever waits on a modal box.
class Prompts {
  public:
    virtual ~Prompts() = default;

    // A message with an OK button; `details` (where and why) can be unfolded below it.
    virtual void message(const QString& text, const QString& title = kProgramTitle,
                         const QString& details = {}) = 0;

    // A question with Yes and No buttons; true for Yes.
    virtual bool question(const QString& text, const QString& title = kProgramTitle) = 0;

    // A one-line text prompt with OK and Cancel; Cancel gives the empty text.
    virtual QString text(const QString& prompt, const QString& title = kProgramTitle,
                         const QString& default_text = {}) = 0;
};

}  // namespace flexley
