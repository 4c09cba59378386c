#include <dlfcn.h>

#include "foundation/platform/Platform.h"

namespace tervix::platform {

// A bare name: the loader then looks where it is configured to and beside this library (its run
// path), never in the current folder.
SharedLibrary::SharedLibrary(const char* name) : handle_(dlopen(name, RTLD_NOW | RTLD_LOCAL)) {}

SharedLibrary::~SharedLibrary() {
  if (handle_ != nullptr)
    dlclose(handle_);
}

void* SharedLibrary::symbol(const char* name) const {
  return handle_ != nullptr ? dlsym(handle_, name) : nullptr;
}

} // namespace tervix::platform
