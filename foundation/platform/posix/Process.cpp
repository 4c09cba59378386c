#include "foundation/platform/Process.h"

#include <cerrno>
#include <csignal>

#include <unistd.h>

namespace tervix::platform {

long processNumber() {
  return getpid();
}

bool isProcessRunning(long number) {
  return number > 0 && (kill(static_cast<pid_t>(number), 0) == 0 || errno == EPERM);
}

} // namespace tervix::platform
