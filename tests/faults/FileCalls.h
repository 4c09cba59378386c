#pragma once

#include <string>
#include <vector>

#include <sys/ptrace.h>
#include <sys/types.h>
#include <sys/user.h>

namespace tervix::testing {

enum class Effect {
  kReads,   // the disk is after the call as it was before
  kChanges, // it may not be
  kOpens,   // either, as the flags say
  kCloses
};

// A call of the system that takes a file. Arguments are counted from 0; -1 where it has none.
struct FileCall {
  long number;
  const char* name;
  int folder; // the descriptor that a relative path starts from
  int path;
  int secondFolder;
  int secondPath;
  int descriptor;
  int secondDescriptor;
  int count; // the number of bytes to transfer; -1 for a call that is never cut short
  int flags; // of an open
  Effect effect;
  std::vector<int> errors; // with which it can fail
};

// Every call that is looked at.
const std::vector<FileCall>& fileCalls();
const FileCall* fileCallOf(long number);

// A call that a stopped process is about to make.
class PendingCall {
public:
  PendingCall(pid_t process, const FileCall& call, const user_regs_struct& registers)
      : process_(process), call_(call), registers_(registers) {}

  // Whether one of its paths or descriptors lies in the folder or is it.
  bool concerns(const std::string& folder) const;
  bool changes() const;
  // Whether it asks for room on the disk, and so fails when that is full.
  bool takesRoom() const;
  unsigned long long argument(int index) const;

private:
  std::string pathOf(int folder, int path) const;
  std::string targetOf(int descriptor) const;

  pid_t process_;
  const FileCall& call_;
  const user_regs_struct& registers_;
};

// What an entry of /proc/PID leads to: "fd/3", "cwd".
std::string linkOf(pid_t process, const std::string& entry);

bool liesIn(const std::string& path, const std::string& folder);

} // namespace tervix::testing
