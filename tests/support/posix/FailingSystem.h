#pragma once

#include <string>

#include "tests/support/System.h"

namespace tervix::testing {

// More faults of the system, put in front of calls of the C library.

// Deleting this one file is refused.
class UndeletableFile {
public:
  explicit UndeletableFile(std::string path);
  ~UndeletableFile();
  UndeletableFile(const UndeletableFile&) = delete;
  UndeletableFile& operator=(const UndeletableFile&) = delete;
};

// This folder counts as a device of its own: nothing can be renamed into or out of it.
class SeparateDevice {
public:
  explicit SeparateDevice(std::string folder);
  ~SeparateDevice();
  SeparateDevice(const SeparateDevice&) = delete;
  SeparateDevice& operator=(const SeparateDevice&) = delete;
};

} // namespace tervix::testing
