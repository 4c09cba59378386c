#include "project/ClosedReaders.h"

#include <tvx_wobj.h>

#include "foundation/platform/Platform.h"

namespace tervix::closed {
namespace {

constexpr const char* kDesignReader = "ZelDsnReader.dll"; // under this name on every system
constexpr const char* kDesignReaderEntry = "getDsnInfo";

using DesignReaderEntry = int(const std::string&, std::string&, std::list<std::string>&);

// Nothing is known of what a closed library may throw, so everything counts as its failure.
template <class Call> bool succeeds(Call call) {
  try {
    return call() == 0;
  } catch (...) {
    return false;
  }
}

} // namespace

bool listFiles(const std::string& projectFile, const char* section, std::list<std::string>& files) {
  std::list<std::string> unused;
  return succeeds([&] { return readProjectFiles(projectFile, section, files, unused, true); });
}

bool listFiles(const std::string& projectFile, const char* section, const std::string& item,
               std::list<std::string>& files) {
  std::list<std::string> unused;
  return succeeds(
      [&] { return readProjectFiles(projectFile, section, item, files, unused, true); });
}

bool listProfiles(const std::string& projectFile, std::list<std::string>& profiles,
                  std::string& activeProfile) {
  std::list<std::string> unused;
  return succeeds(
      [&] { return readSimProfiles(projectFile, profiles, unused, activeProfile, true); });
}

bool readItem(const std::string& projectFile, const char* section, const char* item,
              std::string& value) {
  return succeeds([&] { return readItemFromProject(projectFile, section, item, value); });
}

bool readDesign(const std::string& designPath, std::string& rootSchematic,
                std::list<std::string>& schematics) {
  const platform::SharedLibrary reader(kDesignReader);
  auto* const entry = reader.entryPoint<DesignReaderEntry>(kDesignReaderEntry);
  return entry != nullptr && succeeds([&] { return entry(designPath, rootSchematic, schematics); });
}

} // namespace tervix::closed
