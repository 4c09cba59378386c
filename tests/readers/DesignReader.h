#ifndef TERVIX_TEST_READERS_DESIGN_READER_H
#define TERVIX_TEST_READERS_DESIGN_READER_H

#include "ZelDsnReader.h"

#include <dlfcn.h>

#include <stdexcept>

// The design reader, loaded and looked up by name.
class DesignReader {
public:
  DesignReader() : library_(dlopen(DESIGN_READER_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {
    if (library_ == nullptr) {
      throw std::runtime_error(dlerror());
    }
    getDsnInfo_ = reinterpret_cast<decltype(&getDsnInfo)>(dlsym(library_, "getDsnInfo"));
    if (getDsnInfo_ == nullptr) {
      throw std::runtime_error(dlerror());
    }
  }
  ~DesignReader() { dlclose(library_); }
  DesignReader(const DesignReader&) = delete;
  DesignReader& operator=(const DesignReader&) = delete;

  int read(const std::string& file, std::string& root, std::list<std::string>& schematics) const {
    return getDsnInfo_(file, root, schematics);
  }

private:
  void* library_;
  decltype(&getDsnInfo) getDsnInfo_ = nullptr;
};

#endif
