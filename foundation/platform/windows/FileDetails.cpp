#include "foundation/platform/FileDetails.h"

#include "foundation/platform/windows/Win32.h"

namespace tervix::platform {
namespace {

constexpr std::uint64_t kTicksPerSecond = 10'000'000; // of 100 ns each
constexpr std::int64_t kSecondsFrom1601To1970 = 11'644'473'600;

std::uint64_t joined(DWORD high, DWORD low) {
  return static_cast<std::uint64_t>(high) << 32U | low;
}

} // namespace

std::optional<FileDetails> detailsOf(const std::string& path) {
  constexpr DWORD kSharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  // No right but to ask; the flag lets folders be opened too.
  const HANDLE file = CreateFileA(path.c_str(), 0, kSharedWithAll, nullptr, OPEN_EXISTING,
                                  FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE)
    return std::nullopt;
  BY_HANDLE_FILE_INFORMATION status{};
  const bool isKnown = GetFileInformationByHandle(file, &status) != 0;
  CloseHandle(file);
  if (!isKnown)
    return std::nullopt;
  const FILETIME& written = status.ftLastWriteTime;
  const std::uint64_t ticks = joined(written.dwHighDateTime, written.dwLowDateTime);
  return FileDetails{joined(status.nFileSizeHigh, status.nFileSizeLow),
                     static_cast<std::int64_t>(ticks / kTicksPerSecond) - kSecondsFrom1601To1970};
}

} // namespace tervix::platform
