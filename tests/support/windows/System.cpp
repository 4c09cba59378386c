#include "tests/support/System.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/support/windows/Wide.h"

// What this system has no equal of is reached by no test: those are skipped before.

namespace tervix::testing {
namespace {

HANDLE opened(const std::string& path, DWORD access) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE file = CreateFileW(wide(path).c_str(), access, kShared, nullptr, OPEN_EXISTING,
                                  FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  EXPECT_NE(file, INVALID_HANDLE_VALUE) << path;
  return file;
}

} // namespace

bool makePipe(const std::string& /*path*/) {
  return false;
}

bool makeSocket(const std::string& /*path*/) {
  return false;
}

bool canBeAFileName(std::string_view name) {
  const bool isUtf8 = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, name.data(),
                                          static_cast<int>(name.size()), nullptr, 0) != 0;
  const bool isPlain = std::none_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) < ' ' ||
           std::string_view("<>:\"/\\|?*").find(c) != std::string_view::npos;
  });
  return isUtf8 && isPlain && name.back() != ' ' && name.back() != '.';
}

std::string inTextMode(const std::string& content) {
  std::string result;
  for (std::size_t i = 0; i < content.size(); ++i) {
    if (content[i] == '\n' && (i == 0 || content[i - 1] != '\r'))
      result += '\r';
    result += content[i];
  }
  return result;
}

std::string asText(std::string content) {
  for (std::size_t end = content.find("\r\n"); end != std::string::npos;
       end = content.find("\r\n", end))
    content.erase(end, 1);
  return content;
}

std::string fullPath(const std::string& path) {
  return "C:" + path;
}

std::string impossibleFolder() {
  return "C:/a|b";
}

bool setModified(const std::string& file, std::time_t seconds) {
  constexpr ULONGLONG kTicksPerSecond = 10'000'000;
  constexpr ULONGLONG kSecondsFrom1601To1970 = 11'644'473'600;
  ULARGE_INTEGER ticks{};
  ticks.QuadPart = (static_cast<ULONGLONG>(seconds) + kSecondsFrom1601To1970) * kTicksPerSecond;
  const FILETIME time{ticks.LowPart, ticks.HighPart};
  const HANDLE handle = opened(file, FILE_WRITE_ATTRIBUTES);
  const bool isSet = SetFileTime(handle, nullptr, nullptr, &time) != 0;
  CloseHandle(handle);
  return isSet;
}

std::uint64_t fileNumber(const std::string& path) {
  const HANDLE handle = opened(path, FILE_READ_ATTRIBUTES);
  BY_HANDLE_FILE_INFORMATION status{};
  EXPECT_NE(GetFileInformationByHandle(handle, &status), 0) << path;
  CloseHandle(handle);
  return static_cast<std::uint64_t>(status.nFileIndexHigh) << 32U | status.nFileIndexLow;
}

LoadedLibrary::LoadedLibrary(const std::string& path) : handle_(LoadLibraryW(wide(path).c_str())) {}

LoadedLibrary::~LoadedLibrary() {
  if (handle_ != nullptr)
    FreeLibrary(static_cast<HMODULE>(handle_));
}

void* LoadedLibrary::symbol(const char* name) const {
  return handle_ == nullptr
             ? nullptr
             : reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

struct FullDisk::Limit {};
FullDisk::FullDisk(std::uint64_t /*bytes*/) {
  ADD_FAILURE() << "no limit of a file's size here";
}
FullDisk::~FullDisk() = default;

struct NoFreeDescriptor::Limit {};
NoFreeDescriptor::NoFreeDescriptor() {
  ADD_FAILURE() << "no limit of open files here";
}
NoFreeDescriptor::~NoFreeDescriptor() = default;

UnprivilegedUser::UnprivilegedUser() : wasRoot_(false) {}
UnprivilegedUser::~UnprivilegedUser() = default;
// Everybody is refused to write to a read-only file here.
bool UnprivilegedUser::isInForce() const {
  return !wasRoot_;
}

} // namespace tervix::testing
