// Status: the outcome of a core operation, carrying the exact text to show the user when it failed.
#pragma once

#include <string>
#include <utility>

namespace flexley {

class Status {
  public:
    static Status success() { return Status(); }
    static Status failure(std::string message) { return Status(std::move(message)); }

    bool ok() const { return message_.empty(); }
    const std::string& message() const { return message_; }

  private:
    Status() = default;
    explicit Status(std::string message) : message_(std::move(message)) {}

    std::string message_;
};

}  // namespace flexley
