#ifndef TERVIX_TEST_READERS_DESIGN_READER_H
#define TERVIX_TEST_READERS_DESIGN_READER_H

#include "ZelDsnReader.h"

#include "tests/support/System.h"

#include <stdexcept>

// The design reader, loaded and looked up by name.
class DesignReader {
public:
  DesignReader() {
    if (getDsnInfo_ == nullptr) {
      throw std::runtime_error("no design reader in " DESIGN_READER_LIBRARY);
    }
  }

  int read(const std::string& file, std::string& root, std::list<std::string>& schematics) const {
    return getDsnInfo_(file, root, schematics);
  }

private:
  using Read = int(const std::string&, std::string&, std::list<std::string>&);
  tervix::testing::LoadedLibrary library_{DESIGN_READER_LIBRARY};
  Read* getDsnInfo_ = library_.entryPoint<Read>("getDsnInfo");
};

#endif
