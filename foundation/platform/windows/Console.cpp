#include "foundation/platform/Console.h"

#include <cstdlib>

#include "foundation/platform/windows/Win32.h"

namespace tervix::platform {

namespace {

// Whether it is a console and knows sequences, which it does once it is told.
bool takesSequences(DWORD file) {
  const HANDLE output = GetStdHandle(file);
  DWORD mode = 0;
  return output != INVALID_HANDLE_VALUE && GetConsoleMode(output, &mode) != 0 &&
         SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

} // namespace

bool standardOutputTakesColour() {
  const char* refused = std::getenv("NO_COLOR");
  return (refused == nullptr || *refused == '\0') && takesSequences(STD_OUTPUT_HANDLE);
}

bool standardErrorTakesProgress() {
  return takesSequences(STD_ERROR_HANDLE);
}

} // namespace tervix::platform
