#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/windows/Wide.h"
#include "tests/tools/EntriesOnDisk.h"

namespace tervix::testing {

EntryOnDisk entryAt(const std::string& path) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE entry = CreateFileW(wide(path).c_str(), FILE_READ_ATTRIBUTES, kShared, nullptr,
                                   OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  FILE_BASIC_INFO info{};
  EXPECT_NE(GetFileInformationByHandleEx(entry, FileBasicInfo, &info, sizeof(info)), 0) << path;
  CloseHandle(entry);
  return {fileNumber(path), info.FileAttributes, std::to_string(info.LastWriteTime.QuadPart),
          std::to_string(info.ChangeTime.QuadPart), isFile(path) ? contentOf(path) : ""};
}

} // namespace tervix::testing
