#include "tests/faults/FaultyRun.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/faults/FileCalls.h"

namespace tervix::testing {
namespace {

constexpr int kNotAllowed = 125;
// A call that does nothing and that nobody else makes marks where counting starts.
constexpr long kMark = SYS_getpgid;
constexpr pid_t kMarked = 0x7e57;

// The process stops at the calls that are looked at, and at no others: the rest runs at full speed.
bool stopAtFileCalls() {
  std::vector<sock_filter> filter = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
  for (const FileCall& call : fileCalls()) {
    filter.push_back(
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned int>(call.number), 0, 1));
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE));
  }
  filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, kMark, 0, 1));
  filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE));
  filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
  const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

// A file without a name, for what the process prints.
class Printed {
public:
  Printed() : file_(memfd_create("printed", 0)) {}
  ~Printed() { close(file_); }
  Printed(const Printed&) = delete;
  Printed& operator=(const Printed&) = delete;

  void takePlaceOf(int descriptor) const { dup2(file_, descriptor); }
  std::string text() const {
    std::string text(static_cast<std::size_t>(lseek(file_, 0, SEEK_END)), '\0');
    const ssize_t count = pread(file_, text.data(), text.size(), 0);
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return text;
  }

private:
  int file_;
};

class Tracer {
public:
  Tracer(pid_t process, const std::string& folder, const Fault& fault, Counting counting,
         FaultyRun& run)
      : process_(process), folder_(folder), fault_(fault),
        isCounting_(counting == Counting::kFromStart), run_(run) {}

  void follow() {
    int status = 0;
    if (waitpid(process_, &status, 0) != process_ || !WIFSTOPPED(status) ||
        ptrace(PTRACE_SETOPTIONS, process_, 0,
               PTRACE_O_EXITKILL | PTRACE_O_TRACESECCOMP | PTRACE_O_TRACEEXEC | PTRACE_O_TRACEEXIT |
                   PTRACE_O_TRACESYSGOOD) != 0)
      return refuse();
    // One that was killed cannot be told to go on, and still has to be waited for.
    while ((goOn() || run_.wasKilled) && waitpid(process_, &status, 0) == process_) {
      if (!WIFSTOPPED(status)) {
        run_.status = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
        return run_.status == kNotAllowed ? refuse() : void();
      }
      signal_ = 0;
      resume_ = PTRACE_CONT;
      onStop(status);
    }
  }

private:
  static void refuse() {
    FAIL() << "This system does not let one process trace another (ptrace, seccomp), so no fault "
              "can be injected. In a container allow it: --cap-add=SYS_PTRACE "
              "--security-opt seccomp=unconfined";
  }

  bool goOn() const { return ptrace(resume_, process_, 0, signal_) == 0; }

  void onStop(int status) {
    switch (status >> 8) {
    case SIGTRAP | (PTRACE_EVENT_SECCOMP << 8):
      return onCall();
    case SIGTRAP | (PTRACE_EVENT_EXIT << 8):
      return run_.wasKilled ? void() : noteOpenFiles();
    case SIGTRAP | (PTRACE_EVENT_EXEC << 8):
      return;
    case SIGTRAP | 0x80: // the call is over that goes wrong although it was made
      return fail();
    default:
      signal_ = WSTOPSIG(status);
    }
  }

  void onCall() {
    ptrace(PTRACE_GETREGS, process_, 0, &registers_);
    if (registers_.orig_rax == kMark && registers_.rdi == kMarked)
      isCounting_ = true;
    const FileCall* const known = fileCallOf(static_cast<long>(registers_.orig_rax));
    if (known == nullptr || !isCounting_)
      return;
    const PendingCall call(process_, *known, registers_);
    if (!call.concerns(folder_))
      return;
    const std::size_t index = run_.calls.size();
    const bool isLong = known->count >= 0 && call.argument(known->count) > 1;
    run_.calls.push_back({known->name, call.changes(), call.takesRoom(), isLong, known->errors});
    if (fault_.kind == Fault::Kind::kFullDisk) {
      if (index >= fault_.call && call.takesRoom())
        skip(ENOSPC);
    } else if (index == fault_.call) {
      inject(*known);
    }
  }

  void inject(const FileCall& call) {
    switch (fault_.kind) {
    case Fault::Kind::kKill:
      run_.wasKilled = kill(process_, SIGKILL) == 0;
      break;
    case Fault::Kind::kShort:
      if (call.count >= 0)
        cutShort(call.count);
      break;
    case Fault::Kind::kError:
      // A descriptor is gone also when its close fails.
      if (call.effect == Effect::kCloses)
        resume_ = PTRACE_SYSCALL;
      else
        skip(fault_.error);
      break;
    default:
      break;
    }
  }

  void skip(int error) {
    registers_.orig_rax = static_cast<unsigned long long>(-1);
    registers_.rax = static_cast<unsigned long long>(-error);
    ptrace(PTRACE_SETREGS, process_, 0, &registers_);
  }

  void fail() {
    ptrace(PTRACE_GETREGS, process_, 0, &registers_);
    registers_.rax = static_cast<unsigned long long>(-fault_.error);
    ptrace(PTRACE_SETREGS, process_, 0, &registers_);
  }

  void cutShort(int argument) {
    unsigned long long* const arguments[] = {&registers_.rdi, &registers_.rsi, &registers_.rdx,
                                             &registers_.r10, &registers_.r8,  &registers_.r9};
    *arguments[argument] /= 2;
    ptrace(PTRACE_SETREGS, process_, 0, &registers_);
  }

  void noteOpenFiles() {
    std::error_code error;
    const std::string descriptors = "/proc/" + std::to_string(process_) + "/fd";
    for (const auto& entry : std::filesystem::directory_iterator(descriptors, error))
      if (const std::string file = linkOf(process_, "fd/" + entry.path().filename().string());
          liesIn(file, folder_))
        run_.leftOpen.push_back(file);
  }

  pid_t process_;
  const std::string& folder_;
  const Fault& fault_;
  bool isCounting_;
  FaultyRun& run_;
  user_regs_struct registers_{};
  __ptrace_request resume_ = PTRACE_CONT;
  int signal_ = 0;
};

} // namespace

void startCounting() {
  static_cast<void>(syscall(kMark, kMarked));
}

FaultyRun runWithFault(const std::string& folder, const Fault& fault,
                       const std::function<void()>& body, Counting counting) {
  const Printed output;
  const Printed errors;
  const pid_t process = fork();
  if (process == 0) {
    output.takePlaceOf(STDOUT_FILENO);
    errors.takePlaceOf(STDERR_FILENO);
    if (ptrace(PTRACE_TRACEME, 0, 0, 0) != 0 || raise(SIGSTOP) != 0 || !stopAtFileCalls())
      _exit(kNotAllowed);
    body();
    _exit(kNotAllowed);
  }
  FaultyRun run;
  Tracer(process, folder, fault, counting, run).follow();
  run.output = output.text();
  run.errors = errors.text();
  return run;
}

std::ostream& operator<<(std::ostream& stream, const Fault& fault) {
  switch (fault.kind) {
  case Fault::Kind::kNone:
    return stream << "no fault";
  case Fault::Kind::kError:
    return stream << std::strerror(fault.error) << " at call " << fault.call;
  case Fault::Kind::kFullDisk:
    return stream << "a full disk from call " << fault.call << " on";
  case Fault::Kind::kShort:
    return stream << "a short transfer at call " << fault.call;
  case Fault::Kind::kKill:
    break;
  }
  return stream << "the end of the process at call " << fault.call;
}

} // namespace tervix::testing
