#pragma once

#include <functional>
#include <optional>
#include <string>

namespace tervix::testing {

// Runs work in a child process and counts the system calls that it makes on the entries of folder,
// by path or by a descriptor opened there, seen from outside the C library. Files that the closed
// readers read, ".tvp" and ".dsn", do not count, nor do looks at the folders above. None where a
// child cannot be traced. The child ends without the destructors of this process.
std::optional<int> systemCallsOn(const std::string& folder, const std::function<void()>& prepare,
                                 const std::function<void()>& work);

} // namespace tervix::testing
