#include "foundation/platform/Process.h"

#include "foundation/platform/windows/Win32.h"

namespace tervix::platform {

long processNumber() {
  return static_cast<long>(GetCurrentProcessId());
}

bool isProcessRunning(long number) {
  const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(number));
  if (process == nullptr)
    return false;
  const bool isRunning = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
  CloseHandle(process);
  return isRunning;
}

} // namespace tervix::platform
