#include "tests/tools/RunCommand.h"

#include <memory>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/windows/Wide.h"

namespace tervix::testing {
namespace {

// One in thousands of starts fails with Wine on a busy machine; the program has not run then.
constexpr int kStartAttempts = 3;

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<void, HandleCloser>;

// Inherited by the program that is run.
OwnedHandle opened(const std::string& path, DWORD access) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE;
  SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  const HANDLE file = CreateFileW(wide(path).c_str(), access, kShared, &inherited, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  EXPECT_NE(file, INVALID_HANDLE_VALUE) << path;
  return OwnedHandle(file);
}

// As a program takes its command line apart: a backslash counts as such but before a quote.
std::string inQuotes(const std::string& word) {
  std::string result = "\"";
  std::size_t backslashes = 0;
  for (const char c : word) {
    if (c == '"')
      result.append(backslashes + 1, '\\');
    backslashes = c == '\\' ? backslashes + 1 : 0;
    result += c;
  }
  return result.append(backslashes, '\\') + "\"";
}

std::wstring commandLine(const std::vector<std::string>& command) {
  std::string line;
  for (const std::string& word : command)
    line += (line.empty() ? "" : " ") + inQuotes(word);
  return wide(line);
}

bool startsWithName(const std::wstring& entry, const std::wstring& name) {
  return entry.size() > name.size() && entry[name.size()] == L'=' &&
         lstrcmpiW(entry.substr(0, name.size()).c_str(), name.c_str()) == 0;
}

bool isReplaced(const std::wstring& entry, const std::map<std::string, std::string>& variables) {
  for (const auto& [name, value] : variables)
    if (startsWithName(entry, wide(name)))
      return true;
  return false;
}

std::wstring environment(const std::map<std::string, std::string>& variables) {
  std::wstring block;
  wchar_t* const own = GetEnvironmentStringsW();
  for (const wchar_t* entry = own; *entry != L'\0'; entry += std::wstring(entry).size() + 1)
    if (!isReplaced(entry, variables))
      block.append(entry).push_back(L'\0');
  FreeEnvironmentStringsW(own);
  for (const auto& [name, value] : variables)
    if (!value.empty())
      block.append(wide(name + "=" + value)).push_back(L'\0');
  block.push_back(L'\0');
  return block;
}

} // namespace

int runCommand(std::vector<std::string> command, const RunOptions& options,
               const std::string& output, const std::string& errors) {
  EXPECT_FALSE(options.largestFile) << "no limit of a file's size here";
  // What may only be read takes no output, as a full disk.
  const OwnedHandle out =
      opened(output, options.output == Output::kFullDevice ? GENERIC_READ : GENERIC_WRITE);
  const OwnedHandle err = opened(errors, GENERIC_WRITE);
  const OwnedHandle in = opened("NUL", GENERIC_READ);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = in.get();
  start.hStdOutput = options.output == Output::kClosed ? nullptr : out.get();
  start.hStdError = err.get();
  std::wstring line = commandLine(command);
  std::wstring variables = environment(options.environment);
  const std::wstring folder = wide(options.folder);
  PROCESS_INFORMATION process{};
  BOOL isStarted = 0;
  for (int attempt = 1; isStarted == 0 && attempt <= kStartAttempts; ++attempt)
    isStarted = CreateProcessW(wide(command.front()).c_str(), line.data(), nullptr, nullptr, TRUE,
                               CREATE_UNICODE_ENVIRONMENT, variables.data(),
                               folder.empty() ? nullptr : folder.c_str(), &start, &process);
  EXPECT_NE(isStarted, 0) << command.front() << ": error " << GetLastError();
  if (isStarted == 0)
    return -1;
  const OwnedHandle thread(process.hThread);
  const OwnedHandle running(process.hProcess);
  WaitForSingleObject(running.get(), INFINITE);
  DWORD status = 0;
  EXPECT_NE(GetExitCodeProcess(running.get(), &status), 0);
  return static_cast<int>(status);
}

std::vector<std::string> onTerminal(const std::vector<std::string>& command) {
  ADD_FAILURE() << "no terminal to run a program on here";
  return command;
}

} // namespace tervix::testing
