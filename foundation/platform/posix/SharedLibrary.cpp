#include <memory>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <link.h>

#include "foundation/platform/Platform.h"

namespace tervix::platform {
namespace {

struct SearchPath {
  std::vector<std::string> folders;
  bool holdsCurrentFolder = false;
};

// The folders in which the loader looks for a library that this one asks for. An empty or relative
// entry, easily left in LD_LIBRARY_PATH, means the current folder, from which nothing is loaded.
SearchPath searchPath() {
  SearchPath path;
  Dl_info self{};
  void* handle = nullptr;
  if (dladdr(reinterpret_cast<void*>(&searchPath), &self) != 0)
    handle = dlopen(self.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
  if (handle == nullptr)
    handle = dlopen(nullptr, RTLD_LAZY); // part of the program itself
  Dl_serinfo size{};
  if (handle == nullptr || dlinfo(handle, RTLD_DI_SERINFOSIZE, &size) != 0)
    return path;
  const auto storage = std::make_unique<char[]>(size.dls_size); // NOLINT(modernize-avoid-c-arrays)
  auto* const info = reinterpret_cast<Dl_serinfo*>(storage.get());
  *info = size;
  if (dlinfo(handle, RTLD_DI_SERINFO, info) == 0)
    for (unsigned int i = 0; i < info->dls_cnt; ++i) {
      const std::string folder = info->dls_serpath[i].dls_name;
      if (folder.empty() || folder.front() != '/')
        path.holdsCurrentFolder = true;
      else
        path.folders.push_back(folder);
    }
  dlclose(handle);
  return path;
}

void* load(const std::string& name) {
  const SearchPath path = searchPath();
  // The first one counts, even if it cannot be loaded: it was put there to be used.
  for (std::string file : path.folders)
    if (file.append("/").append(name); exists(file))
      return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  // The loader knows more folders than it tells, from its cache.
  return path.holdsCurrentFolder ? nullptr : dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
}

} // namespace

SharedLibrary::SharedLibrary(const char* name) : handle_(load(name)) {}

SharedLibrary::~SharedLibrary() {
  if (handle_ != nullptr)
    dlclose(handle_);
}

void* SharedLibrary::symbol(const char* name) const {
  return handle_ != nullptr ? dlsym(handle_, name) : nullptr;
}

} // namespace tervix::platform
