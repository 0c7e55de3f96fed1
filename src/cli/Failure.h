#pragma once

#include <stdexcept>
#include <string>

namespace kestrune::cli {

// The program's exit statuses.
enum ExitStatus : int { done = 0, failed = 1, wrong_usage = 2 };

// What ends the program early: one line for standard error, and the exit status that goes with it.
class Failure : public std::runtime_error {
  public:
    explicit Failure(const std::string& message, ExitStatus status = failed)
        : std::runtime_error(message), status_(status) {}
    [[nodiscard]] ExitStatus status() const { return status_; }

  private:
    ExitStatus status_;
};

class UsageError : public Failure {
  public:
    explicit UsageError(const std::string& message) : Failure(message, wrong_usage) {}
};

}  // namespace kestrune::cli
