#include "tests/performance/SystemCallCount.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <set>
#include <string_view>

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tervix::testing {
namespace {

using Arguments = std::array<std::uint64_t, 6>;

// What a call takes for its file: a path, or a path as seen from a descriptor, or a descriptor.
enum class Takes { kPath, kPathAt, kDescriptor };
struct Call {
  long number;
  Takes takes;
};
constexpr Call kCalls[] = {
#ifdef SYS_open // calls that newer machines do without
    {SYS_open, Takes::kPath},
    {SYS_stat, Takes::kPath},
    {SYS_lstat, Takes::kPath},
    {SYS_access, Takes::kPath},
    {SYS_mkdir, Takes::kPath},
    {SYS_rename, Takes::kPath},
    {SYS_unlink, Takes::kPath},
    {SYS_readlink, Takes::kPath},
#endif
    {SYS_openat, Takes::kPathAt},
    {SYS_newfstatat, Takes::kPathAt},
    {SYS_statx, Takes::kPathAt},
    {SYS_faccessat, Takes::kPathAt},
    {SYS_faccessat2, Takes::kPathAt},
    {SYS_mkdirat, Takes::kPathAt},
    {SYS_renameat, Takes::kPathAt},
    {SYS_renameat2, Takes::kPathAt},
    {SYS_unlinkat, Takes::kPathAt},
    {SYS_readlinkat, Takes::kPathAt},
    {SYS_fstat, Takes::kDescriptor},
    {SYS_read, Takes::kDescriptor},
    {SYS_pread64, Takes::kDescriptor},
    {SYS_write, Takes::kDescriptor},
    {SYS_writev, Takes::kDescriptor},
    {SYS_lseek, Takes::kDescriptor},
    {SYS_close, Takes::kDescriptor},
    {SYS_fcntl, Takes::kDescriptor},
    {SYS_fchmod, Takes::kDescriptor},
    {SYS_fchown, Takes::kDescriptor},
    {SYS_ftruncate, Takes::kDescriptor},
    {SYS_getdents64, Takes::kDescriptor},
    {SYS_copy_file_range, Takes::kDescriptor},
    {SYS_sendfile, Takes::kDescriptor},
};

// The child makes this call, which nothing else does, before and after what is counted.
constexpr long kMark = SYS_getpriority;
void mark() {
  syscall(kMark, -1, -1);
}

class Counter {
public:
  Counter(pid_t child, std::string folder) : child_(child), folder_(std::move(folder)) {}

  void enter(std::uint64_t number, const Arguments& arguments) {
    opens_ = false;
    if (static_cast<long>(number) == kMark)
      isCounting_ = !isCounting_;
    for (const Call& call : kCalls)
      if (call.number == static_cast<long>(number) && isCounting_)
        note(call, arguments);
  }
  void leave(std::int64_t result) {
    if (opens_ && result >= 0)
      descriptors_.insert(static_cast<std::uint64_t>(result));
  }
  int count() const { return count_; }

private:
  void note(const Call& call, const Arguments& arguments) {
    const bool isPath = call.takes != Takes::kDescriptor;
    const std::string path = isPath ? text(arguments[call.takes == Takes::kPathAt ? 1 : 0]) : "";
    const bool isAbsolute = !path.empty() && path.front() == '/';
    const bool isOurs = isAbsolute ? isInFolder(path) : descriptors_.count(arguments[0]) != 0;
    // How far it is to the root depends on where the test runs.
    const bool isWayUp = std::string_view(path).substr(0, 4) == "./..";
    if (!isOurs || isWayUp)
      return;
    ++count_;
    opens_ = isPath && (call.number == SYS_openat || call.number == kOpen);
    if (call.number == SYS_close)
      descriptors_.erase(arguments[0]);
  }

  bool isInFolder(std::string_view path) const {
    const std::string_view ending =
        path.substr(path.size() - std::min<std::size_t>(4, path.size()));
    return path.substr(0, folder_.size()) == folder_ && ending != ".tvp" && ending != ".dsn";
  }

  std::string text(std::uint64_t address) const {
    std::array<char, 4096> buffer{};
    constexpr std::uint64_t kPage = 4096;
    // No further than the page: what follows may not be there.
    iovec local{buffer.data(), kPage - address % kPage};
    iovec remote{reinterpret_cast<void*>(address), local.iov_len};
    std::string found;
    if (process_vm_readv(child_, &local, 1, &remote, 1, 0) <= 0)
      return found;
    found.assign(buffer.data(), strnlen(buffer.data(), local.iov_len));
    return found.size() == local.iov_len ? found + text(address + local.iov_len) : found;
  }

#ifdef SYS_open
  static constexpr long kOpen = SYS_open;
#else
  static constexpr long kOpen = -1;
#endif

  pid_t child_;
  std::string folder_;
  std::set<std::uint64_t> descriptors_;
  bool isCounting_ = false;
  bool opens_ = false;
  int count_ = 0;
};

[[noreturn]] void runTraced(const std::function<void()>& prepare,
                            const std::function<void()>& work) {
  if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
    _exit(2);
  raise(SIGSTOP);
  prepare();
  mark();
  work();
  mark();
  _exit(0);
}

} // namespace

std::optional<int> systemCallsOn(const std::string& folder, const std::function<void()>& prepare,
                                 const std::function<void()>& work) {
  const pid_t child = fork();
  if (child < 0)
    return std::nullopt;
  if (child == 0)
    runTraced(prepare, work);
  int status = 0;
  waitpid(child, &status, 0);
  if (!WIFSTOPPED(status))
    return std::nullopt;
  ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  Counter counter(child, folder);
  long signal = 0;
  for (;;) {
    ptrace(PTRACE_SYSCALL, child, nullptr, signal);
    if (waitpid(child, &status, 0) != child || !WIFSTOPPED(status))
      break;
    constexpr int kSystemCallStop = SIGTRAP | 0x80;
    signal = WSTOPSIG(status) == kSystemCallStop ? 0 : WSTOPSIG(status);
    __ptrace_syscall_info info{};
    if (signal != 0 || ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info) <= 0)
      continue;
    if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
      Arguments arguments{};
      std::copy(std::begin(info.entry.args), std::end(info.entry.args), arguments.begin());
      counter.enter(info.entry.nr, arguments);
    } else if (info.op == PTRACE_SYSCALL_INFO_EXIT) {
      counter.leave(info.exit.rval);
    }
  }
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
    return std::nullopt;
  return counter.count();
}

} // namespace tervix::testing
