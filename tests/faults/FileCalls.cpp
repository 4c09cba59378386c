#include "tests/faults/FileCalls.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <vector>

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace tervix::testing {
namespace {

const std::vector<int> kLooking = {EACCES, EIO};
const std::vector<int> kOpening = {EMFILE, EACCES, EINTR, ENOSPC};
const std::vector<int> kReading = {EIO, EINTR};
const std::vector<int> kWriting = {ENOSPC, EIO, EINTR};
const std::vector<int> kNaming = {EACCES, ENOSPC, EIO};
const std::vector<int> kRemoving = {EACCES, EIO};
const std::vector<int> kClosing = {EIO, EINTR};
const std::vector<int> kAdjusting = {EPERM, EIO};
const std::vector<int> kTransferring = {ENOSPC, EIO};

FileCall byPath(long number, const char* name, int path, Effect effect,
                const std::vector<int>& errors, int folder = -1) {
  return {number, name, folder, path, -1, -1, -1, -1, -1, -1, effect, errors};
}
FileCall byTwoPaths(long number, const char* name, int folder, int path, int secondFolder,
                    int secondPath) {
  return {number, name, folder, path, secondFolder,     secondPath,
          -1,     -1,   -1,     -1,   Effect::kChanges, kNaming};
}
FileCall byDescriptor(long number, const char* name, Effect effect, const std::vector<int>& errors,
                      int count = -1, int second = -1) {
  return {number, name, -1, -1, -1, -1, 0, second, count, -1, effect, errors};
}
FileCall opening(long number, const char* name, int folder, int path, int flags) {
  return {number, name, folder, path, -1, -1, -1, -1, -1, flags, Effect::kOpens, kOpening};
}

std::vector<FileCall> makeCalls() {
  return {
      opening(SYS_open, "open", -1, 0, 1),
      opening(SYS_openat, "openat", 0, 1, 2),
      byPath(SYS_creat, "creat", 0, Effect::kChanges, kOpening),
      byDescriptor(SYS_close, "close", Effect::kCloses, kClosing),
      byDescriptor(SYS_read, "read", Effect::kReads, kReading, 2),
      byDescriptor(SYS_pread64, "pread", Effect::kReads, kReading, 2),
      byDescriptor(SYS_readv, "readv", Effect::kReads, kReading),
      byDescriptor(SYS_write, "write", Effect::kChanges, kWriting, 2),
      byDescriptor(SYS_pwrite64, "pwrite", Effect::kChanges, kWriting, 2),
      byDescriptor(SYS_writev, "writev", Effect::kChanges, kWriting),
      byDescriptor(SYS_sendfile, "sendfile", Effect::kChanges, kTransferring, 3, 1),
      byDescriptor(SYS_copy_file_range, "copy_file_range", Effect::kChanges, kTransferring, 4, 2),
      byDescriptor(SYS_getdents64, "getdents", Effect::kReads, {EIO}),
      byDescriptor(SYS_fstat, "fstat", Effect::kReads, {EIO}),
      byPath(SYS_stat, "stat", 0, Effect::kReads, kLooking),
      byPath(SYS_lstat, "lstat", 0, Effect::kReads, kLooking),
      byPath(SYS_newfstatat, "fstatat", 1, Effect::kReads, kLooking, 0),
      byPath(SYS_statx, "statx", 1, Effect::kReads, kLooking, 0),
      byPath(SYS_access, "access", 0, Effect::kReads, kLooking),
      byPath(SYS_faccessat, "faccessat", 1, Effect::kReads, kLooking, 0),
      byPath(SYS_faccessat2, "faccessat2", 1, Effect::kReads, kLooking, 0),
      byPath(SYS_readlink, "readlink", 0, Effect::kReads, kLooking),
      byPath(SYS_readlinkat, "readlinkat", 1, Effect::kReads, kLooking, 0),
      byPath(SYS_mkdir, "mkdir", 0, Effect::kChanges, kNaming),
      byPath(SYS_mkdirat, "mkdirat", 1, Effect::kChanges, kNaming, 0),
      byPath(SYS_unlink, "unlink", 0, Effect::kChanges, kRemoving),
      byPath(SYS_unlinkat, "unlinkat", 1, Effect::kChanges, kRemoving, 0),
      byPath(SYS_rmdir, "rmdir", 0, Effect::kChanges, kRemoving),
      byTwoPaths(SYS_rename, "rename", -1, 0, -1, 1),
      byTwoPaths(SYS_renameat, "renameat", 0, 1, 2, 3),
      byTwoPaths(SYS_renameat2, "renameat2", 0, 1, 2, 3),
      byTwoPaths(SYS_link, "link", -1, 0, -1, 1),
      byTwoPaths(SYS_linkat, "linkat", 0, 1, 2, 3),
      byPath(SYS_symlink, "symlink", 1, Effect::kChanges, kNaming),
      byPath(SYS_symlinkat, "symlinkat", 2, Effect::kChanges, kNaming, 1),
      byPath(SYS_chmod, "chmod", 0, Effect::kChanges, kAdjusting),
      byPath(SYS_fchmodat, "fchmodat", 1, Effect::kChanges, kAdjusting, 0),
      byDescriptor(SYS_fchmod, "fchmod", Effect::kChanges, kAdjusting),
      byPath(SYS_fchownat, "fchownat", 1, Effect::kChanges, kAdjusting, 0),
      byDescriptor(SYS_fchown, "fchown", Effect::kChanges, kAdjusting),
      byPath(SYS_truncate, "truncate", 0, Effect::kChanges, {EIO}),
      byDescriptor(SYS_ftruncate, "ftruncate", Effect::kChanges, {EIO, ENOSPC}),
      byPath(SYS_utimensat, "utimensat", 1, Effect::kChanges, kAdjusting, 0),
      byDescriptor(SYS_fsync, "fsync", Effect::kReads, {EIO, ENOSPC}),
      byDescriptor(SYS_fdatasync, "fdatasync", Effect::kReads, {EIO, ENOSPC})};
}

std::string textAt(pid_t process, unsigned long long address) {
  std::string text;
  constexpr std::size_t kBlock = 64; // never reaches into a page that is not there
  while (text.size() < PATH_MAX) {
    std::string block(kBlock - address % kBlock, '\0');
    const iovec here{block.data(), block.size()};
    const iovec there{reinterpret_cast<void*>(address), block.size()};
    if (process_vm_readv(process, &here, 1, &there, 1, 0) != static_cast<ssize_t>(block.size()))
      break;
    const std::size_t end = block.find('\0');
    text += block.substr(0, end);
    if (end != std::string::npos)
      break;
    address += block.size();
  }
  return text;
}

} // namespace

const std::vector<FileCall>& fileCalls() {
  static const std::vector<FileCall> calls = makeCalls();
  return calls;
}

const FileCall* fileCallOf(long number) {
  for (const FileCall& call : fileCalls())
    if (call.number == number)
      return &call;
  return nullptr;
}

std::string linkOf(pid_t process, const std::string& entry) {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/" + entry, error)
      .string();
}

bool liesIn(const std::string& path, const std::string& folder) {
  return path.compare(0, folder.size(), folder) == 0 &&
         (path.size() == folder.size() || path[folder.size()] == '/');
}

unsigned long long PendingCall::argument(int index) const {
  const unsigned long long arguments[] = {registers_.rdi, registers_.rsi, registers_.rdx,
                                          registers_.r10, registers_.r8,  registers_.r9};
  return arguments[index];
}

std::string PendingCall::targetOf(int descriptor) const {
  return linkOf(process_, "fd/" + std::to_string(static_cast<int>(argument(descriptor))));
}

std::string PendingCall::pathOf(int folder, int path) const {
  const std::string text = textAt(process_, argument(path));
  if (!text.empty() && text.front() == '/')
    return std::filesystem::path(text).lexically_normal().string();
  const bool isHere = folder < 0 || static_cast<int>(argument(folder)) == AT_FDCWD;
  const std::string start = isHere ? linkOf(process_, "cwd") : targetOf(folder);
  return text.empty() ? start : (std::filesystem::path(start) / text).lexically_normal().string();
}

bool PendingCall::concerns(const std::string& folder) const {
  return (call_.path >= 0 && liesIn(pathOf(call_.folder, call_.path), folder)) ||
         (call_.secondPath >= 0 && liesIn(pathOf(call_.secondFolder, call_.secondPath), folder)) ||
         (call_.descriptor >= 0 && liesIn(targetOf(call_.descriptor), folder)) ||
         (call_.secondDescriptor >= 0 && liesIn(targetOf(call_.secondDescriptor), folder));
}

bool PendingCall::changes() const {
  if (call_.effect == Effect::kOpens)
    return (argument(call_.flags) & (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC)) != 0;
  return call_.effect == Effect::kChanges;
}

bool PendingCall::takesRoom() const {
  if (call_.effect == Effect::kOpens)
    return (argument(call_.flags) & O_CREAT) != 0;
  const auto& errors = call_.errors;
  return call_.effect == Effect::kChanges &&
         std::find(errors.begin(), errors.end(), ENOSPC) != errors.end();
}

} // namespace tervix::testing
