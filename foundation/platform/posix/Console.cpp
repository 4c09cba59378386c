#include "foundation/platform/Console.h"

#include <cstdlib>
#include <string_view>

#include <unistd.h>

namespace tervix::platform {

bool standardOutputTakesColour() {
  if (isatty(STDOUT_FILENO) == 0)
    return false;
  const char* refused = std::getenv("NO_COLOR"); // NOLINT(concurrency-mt-unsafe)
  if (refused != nullptr && *refused != '\0')
    return false;
  const char* terminal = std::getenv("TERM"); // NOLINT(concurrency-mt-unsafe)
  return terminal != nullptr && std::string_view(terminal) != "dumb";
}

} // namespace tervix::platform
