#include "foundation/platform/Console.h"

#include <cstdlib>
#include <string_view>

#include <unistd.h>

namespace tervix::platform {

namespace {

bool isSmartTerminal(int file) {
  const char* terminal = std::getenv("TERM"); // NOLINT(concurrency-mt-unsafe)
  return isatty(file) != 0 && terminal != nullptr && std::string_view(terminal) != "dumb";
}

} // namespace

bool standardOutputTakesColour() {
  const char* refused = std::getenv("NO_COLOR"); // NOLINT(concurrency-mt-unsafe)
  return isSmartTerminal(STDOUT_FILENO) && (refused == nullptr || *refused == '\0');
}

bool standardErrorTakesProgress() {
  return isSmartTerminal(STDERR_FILENO);
}

} // namespace tervix::platform
