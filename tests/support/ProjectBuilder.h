#pragma once

#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {

// The four ways in which a project lies on disk.
enum class Layout {
  kDesignSimulation,  // front end 2 with a "-TervixFiles" folder
  kDesignOther,       // front end 2, everything beside the project file
  kProjectSimulation, // front end 1 in "tvx_sim_1"
  kProjectOther       // front end 1 in "cfg_analog"
};

constexpr Layout kAllLayouts[] = {Layout::kDesignSimulation, Layout::kDesignOther,
                                  Layout::kProjectSimulation, Layout::kProjectOther};

// A project to write to disk. For the two layouts of front end 1 the one schematic bears the name
// of the project, whatever the profiles say.
struct ProjectPlan {
  struct Profile {
    std::string schematic;
    std::string name;
  };

  std::string name = "amp";
  std::vector<std::string> schematics = {"TOP"};
  std::string root = "TOP";
  std::vector<Profile> profiles = {{"TOP", "tran"}};
  std::string active = "TOP-tran";
};

// Writes project file, design, and for each profile its ".sim" file, its files "dat", "out",
// "cir" and "mrk" and, in a simulation project, its include list. Gives the project file's path.
std::string writeProject(const TemporaryFolder& folder, Layout layout,
                         const ProjectPlan& plan = ProjectPlan());

// Where the ".sim" file of a profile lies, relative to the temporary folder.
std::string simPathIn(Layout layout, const ProjectPlan& plan, const ProjectPlan::Profile& profile);

// 1 or 2.
int frontEndOf(Layout layout);
bool isSimulation(Layout layout);

// The text of a ".sim" file with all keys of the readers.
std::string simText(const std::string& profile, const std::string& profileFile,
                    const std::string& design, const std::string& project, const std::string& root,
                    const std::string& dataFile, const std::string& outFile);

} // namespace tervix::testing
