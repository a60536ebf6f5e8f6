// Prompts for tests: answers come from a queue, and everything shown is recorded.
#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <deque>
#include <ostream>
#include <variant>
#include <vector>

#include "ui/common/prompts.h"

// Readable failure output for texts and lists of texts.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace flexley::testing {

struct ShownPrompt {
    QString text;
    QString title;
    QString details;       // messages only
    QString default_text;  // text prompts only
};

class ScriptedPrompts final : public Prompts {
  public:
    // An answer left over means the code asked fewer questions than the test expected.
    ~ScriptedPrompts() override {
        EXPECT_TRUE(answers_.empty()) << answers_.size() << " scripted answer(s) never asked for";
    }

    ScriptedPrompts& answer_yes() { return push(true); }
    ScriptedPrompts& answer_no() { return push(false); }
    ScriptedPrompts& answer_text(const QString& text) { return push(text); }
    ScriptedPrompts& answer_cancel() { return push(QString()); }

    const std::vector<ShownPrompt>& shown() const { return shown_; }
    // The texts of everything shown, in order: the usual thing a test compares.
    QStringList texts() const {
        QStringList texts;
        for (const ShownPrompt& prompt : shown_)
            texts << prompt.text;
        return texts;
    }
    void forget_shown() { shown_.clear(); }

    void message(const QString& text, const QString& title, const QString& details) override {
        shown_.push_back({text, title, details, {}});
    }

    bool question(const QString& text, const QString& title) override {
        shown_.push_back({text, title, {}, {}});
        return next<bool>(text, false);
    }

    QString text(const QString& prompt, const QString& title,
                 const QString& default_text) override {
        shown_.push_back({prompt, title, {}, default_text});
        return next<QString>(prompt, QString());
    }

  private:
    using Answer = std::variant<bool, QString>;

    ScriptedPrompts& push(Answer answer) {
        answers_.push_back(std::move(answer));
        return *this;
    }

    template <typename T>
    T next(const QString& asked, T fallback) {
        if (answers_.empty()) {
            ADD_FAILURE() << "no scripted answer for: " << asked.toStdString();
            return fallback;
        }
        const Answer answer = answers_.front();
        answers_.pop_front();
        if (!std::holds_alternative<T>(answer)) {
            ADD_FAILURE() << "scripted answer of the wrong kind for: " << asked.toStdString();
            return fallback;
        }
        return std::get<T>(answer);
    }

    std::deque<Answer> answers_;
    std::vector<ShownPrompt> shown_;
};

}  // namespace flexley::testing
