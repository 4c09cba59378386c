#include <vector>

#include "foundation/platform/Platform.h"
#include "foundation/platform/windows/NativePath.h"
#include "foundation/platform/windows/Win32.h"

namespace tervix::platform {
namespace {

// A file that is no library must not stop the program with a message box.
class QuietErrors {
public:
  QuietErrors() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &former_); }
  ~QuietErrors() { SetThreadErrorMode(former_, nullptr); }
  QuietErrors(const QuietErrors&) = delete;
  QuietErrors& operator=(const QuietErrors&) = delete;

private:
  DWORD former_ = 0;
};

// The folder of the library that this code is in.
std::string folderOfThisLibrary() {
  static const char place = 0;
  constexpr DWORD kByAddress =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  HMODULE library = nullptr;
  if (GetModuleHandleExA(kByAddress, &place, &library) == 0)
    return {};
  std::string path(MAX_PATH, '\0');
  for (;;) {
    const DWORD length = GetModuleFileNameA(library, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path.substr(0, path.find_last_of('\\') + 1);
    }
    path.resize(path.size() * 2);
  }
}

std::string environmentValue(const char* name) {
  std::string value(GetEnvironmentVariableA(name, nullptr, 0), '\0');
  const DWORD length =
      GetEnvironmentVariableA(name, value.data(), static_cast<DWORD>(value.size()));
  value.resize(length < value.size() ? length : 0);
  return value;
}

// Whether the folder is the same one wherever the process stands.
bool isComplete(const std::string& folder) {
  const bool startsAtDrive = folder.size() > 2 && folder[1] == ':' && folder[2] == '\\';
  const bool startsAtServer = folder.compare(0, 2, "\\\\") == 0;
  return startsAtDrive || startsAtServer;
}

void appendFolder(std::vector<std::string>& folders, const std::string& entry) {
  std::string folder = NativePath(entry).text();
  if (!isComplete(folder))
    return;
  if (folder.back() != '\\')
    folder += '\\';
  folders.push_back(std::move(folder));
}

// The folders of PATH, less those that depend on the current folder. An entry, or a part of it,
// can be quoted, and may then hold the delimiter.
std::vector<std::string> searchPath() {
  std::vector<std::string> folders;
  std::string entry;
  bool isQuoted = false;
  for (const char c : environmentValue("PATH")) {
    if (c == '"') {
      isQuoted = !isQuoted;
    } else if (c == ';' && !isQuoted) {
      appendFolder(folders, entry);
      entry.clear();
    } else {
      entry += c;
    }
  }
  appendFolder(folders, entry);
  return folders;
}

HMODULE loadFrom(const std::string& folder, const char* name) {
  // What the library needs itself is found beside it too.
  return LoadLibraryExA((folder + name).c_str(), nullptr,
                        LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
}

// Beside this library; then where the loader is configured to look; then on PATH. The system's
// own search takes the current folder in, so PATH is gone through here.
HMODULE load(const char* name) {
  const QuietErrors quiet;
  const std::string here = folderOfThisLibrary();
  HMODULE library = here.empty() ? nullptr : loadFrom(here, name);
  if (library == nullptr)
    library = LoadLibraryExA(name, nullptr, LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
  if (library != nullptr)
    return library;
  for (const std::string& folder : searchPath()) {
    library = loadFrom(folder, name);
    if (library != nullptr)
      return library;
  }
  return nullptr;
}

} // namespace

SharedLibrary::SharedLibrary(const char* name) : handle_(load(name)) {}

SharedLibrary::~SharedLibrary() {
  if (handle_ != nullptr)
    FreeLibrary(static_cast<HMODULE>(handle_));
}

void* SharedLibrary::symbol(const char* name) const {
  if (handle_ == nullptr)
    return nullptr;
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

} // namespace tervix::platform
