#include "ZelDsnReader.h"

#include "DesignFile.h"

#include <utility>

extern "C" int getDsnInfo(const std::string& designPath, std::string& rootSchematic,
                          std::list<std::string>& schematics) {
  auto design = tervix::formats::readDesign(designPath);
  if (!design) {
    return 1;
  }
  schematics.splice(schematics.end(), design->schematics);
  rootSchematic = std::move(design->root);
  return 0;
}
