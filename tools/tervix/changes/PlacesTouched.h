#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tools/tervix/changes/ChangeRecord.h"

namespace tervix::tool {

// The folders in which a change of a project touches files. A link in the project may lead
// anywhere; what lies there is not the project's to write or remove.
class PlacesTouched {
public:
  explicit PlacesTouched(std::vector<std::string> folders);

  // The first path of a record that does not lie in them without a link that leads away.
  std::optional<std::string> firstOutside(const ChangeRecord& record);

private:
  struct Folder {
    std::string path;
    std::string real;
  };

  bool holds(const std::string& path);
  const std::string& realFolder(const std::string& folder);

  std::vector<Folder> folders_;
  std::map<std::string, std::string> known_;
};

// The folders of a change that takes a project file from one place to another, and of its design.
// For front end 1 the folder that holds that of the project file gets another name.
std::vector<std::string> foldersOf(const ChangePlan& plan);

} // namespace tervix::tool
