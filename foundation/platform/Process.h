#pragma once

namespace tervix::platform {

// The number of this process, and whether one of that number is running.
long processNumber();
bool isProcessRunning(long number);

} // namespace tervix::platform
