#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace tervix::fuzz {

// Ends the program, for the fuzzer to keep the input, when a promise does not hold.
void require(bool holds, const char* promise, const std::string& detail = std::string());

inline std::string textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// The design reader, loaded for as long as the process runs: the fuzzer does not forget a library
// that goes, as it would each time that the library has read a design.
void* designReader();

// The one folder that this process works in, emptied. It lies where TMPDIR says, and goes when the
// process ends.
const tervix::testing::TemporaryFolder& emptyWorkplace();

// Every file below a folder with its content; links are not followed.
using Files = std::map<std::string, std::string>;
Files filesIn(const std::string& folder);

} // namespace tervix::fuzz
