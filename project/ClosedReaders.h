#pragma once

#include <list>
#include <string>

// The calls into the suite's own reader libraries, of which only the interface is known. False
// when the library is missing, fails or throws.

namespace tervix::closed {

bool listFiles(const std::string& projectFile, const char* section, std::list<std::string>& files);
bool listFiles(const std::string& projectFile, const char* section, const std::string& item,
               std::list<std::string>& files);
bool listProfiles(const std::string& projectFile, std::list<std::string>& profiles,
                  std::string& activeProfile);
bool readItem(const std::string& projectFile, const char* section, const char* item,
              std::string& value);
bool readDesign(const std::string& designPath, std::string& rootSchematic,
                std::list<std::string>& schematics);

} // namespace tervix::closed
