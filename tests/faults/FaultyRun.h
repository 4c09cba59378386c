#pragma once

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace tervix::testing {

// What goes wrong at one call of the system.
struct Fault {
  enum class Kind {
    kNone,
    kError,    // the call is not made and fails with error
    kFullDisk, // nothing that takes room on the disk succeeds from this call on
    kShort,    // a read or write transfers part of what was asked for
    kKill      // the process ends before the call is made
  };
  Kind kind = Kind::kNone;
  std::size_t call = 0;
  int error = 0;
};

// A call that the process made in the folder.
struct MadeCall {
  std::string name;
  bool changes; // or may change what is on the disk
  bool takesRoom;
  bool canBeShort;
  std::vector<int> errors;
};

struct FaultyRun {
  int status = -1; // as the shell gives it: 128 and more for a signal
  std::string output;
  std::string errors;
  std::vector<MadeCall> calls;
  std::vector<std::string> leftOpen; // files of the folder that were open at the end
  bool wasKilled = false;
};

// Which calls count: all that the process makes, or those after it has called startCounting.
enum class Counting { kFromStart, kFromMark };
void startCounting();

// Runs body in a process of its own and lets one of the calls go wrong that it makes on files in
// the folder, which is a full path without links. body ends the process itself, or becomes another
// program. A system that does not allow this fails the test.
FaultyRun runWithFault(const std::string& folder, const Fault& fault,
                       const std::function<void()>& body, Counting counting = Counting::kFromStart);

std::ostream& operator<<(std::ostream& stream, const Fault& fault);

} // namespace tervix::testing
