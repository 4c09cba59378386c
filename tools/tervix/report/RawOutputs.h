#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tools/tervix/Json.h"
#include "tools/tervix/ProjectView.h"
#include "tools/tervix/check/FolderIndex.h"

namespace tervix::tool {

// The simulator's raw outputs of a project's profiles, drawn as far as a page can hold them.
class RawOutputs {
public:
  explicit RawOutputs(const ProjectView& project) : project_(project), folders_(project.folder) {}

  // Full paths: those of the profile's files whose content says so, and further ones in its folder;
  // in a folder that others use too those that bear its name.
  std::vector<std::string> of(const ProfileView& profile);
  // The plots of one, with remarks where something is wrong or left out.
  Json drawn(const std::string& path);

private:
  std::string whyNot(const std::string& path);
  Json drawnPlots(const std::string& path, Json& remarks);

  const ProjectView& project_;
  FolderIndex folders_;
  std::uint64_t bytesRead_ = 0;
  std::size_t bytesDrawn_ = 0;
};

} // namespace tervix::tool
