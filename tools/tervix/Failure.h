#pragma once

#include <stdexcept>
#include <string>

namespace tervix::tool {

enum ExitStatus { kDone = 0, kFailed = 1, kWrongUsage = 2 };

// Why a command cannot go on, as told to a person. The message may have several lines; names in it
// are printable.
class Failure : public std::runtime_error {
public:
  explicit Failure(const std::string& message, ExitStatus status = kFailed)
      : std::runtime_error(message), status_(status) {}

  ExitStatus status() const { return status_; }

private:
  ExitStatus status_;
};

// The failure of a library operation: code and message of its last error, with the line and
// column at which one of our readers stumbled, if one did. what says what was tried; it stands
// alone for a status that records nothing.
Failure libraryFailure(unsigned long status, const std::string& what);

// what failed, and below it the library's last error, if there is one.
Failure failureWithLastError(const std::string& what);

} // namespace tervix::tool
