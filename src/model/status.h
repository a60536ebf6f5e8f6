// Status: the outcome of a core operation, carrying the exact text to show the user.
#pragma once

#include <string>
#include <utility>

namespace flexley {

class Status {
  public:
    static Status success() { return Status(Kind::success, {}); }
    // The operation was refused or failed; nothing it would have changed has changed.
    static Status failure(std::string message) { return Status(Kind::failure, std::move(message)); }
    // The operation completed, but the user must be told something about its outcome.
    static Status warning(std::string message) { return Status(Kind::warning, std::move(message)); }

    // True for success and for a warning: only a failure is not ok.
    bool ok() const { return kind_ != Kind::failure; }
    bool is_warning() const { return kind_ == Kind::warning; }
    // The text for the user: the refusal, the failure or the warning; empty on plain success.
    const std::string& message() const { return message_; }

    // Where and why, for a message that is deliberately short ("File access error"): shown as
    // the details of the message box, or on a second line.
    const std::string& detail() const { return detail_; }
    Status with_detail(std::string detail) && {
        detail_ = std::move(detail);
        return std::move(*this);
    }

  private:
    enum class Kind { success, warning, failure };
    Status(Kind kind, std::string message) : kind_(kind), message_(std::move(message)) {}

    Kind kind_;
    std::string message_;
    std::string detail_;
};

}  // namespace flexley
