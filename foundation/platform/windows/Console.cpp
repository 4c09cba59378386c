#include "foundation/platform/Console.h"

#include <cstdlib>

#include "foundation/platform/windows/Win32.h"

namespace tervix::platform {

bool standardOutputTakesColour() {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  if (output == INVALID_HANDLE_VALUE || GetConsoleMode(output, &mode) == 0)
    return false;
  const char* refused = std::getenv("NO_COLOR");
  if (refused != nullptr && *refused != '\0')
    return false;
  // Fails on consoles that know no colour sequences.
  return SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

} // namespace tervix::platform
