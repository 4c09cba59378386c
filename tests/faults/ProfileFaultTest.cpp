#include <gtest/gtest.h>

#include "tests/faults/LibraryFaults.h"
#include "tests/project/LayoutTest.h"
#include "tests/project/OpenedProject.h"
#include "tests/support/ProjectBuilder.h"

// What changes a project's files through the library, with each call of the system failing in turn.

namespace tervix::testing {
namespace {

ProjectPlan twoProfiles() {
  ProjectPlan plan;
  plan.profiles = {{"TOP", "tran"}, {"TOP", "ac"}};
  return plan;
}

// Something to do with the project of a layout, opened before any fault. It is not destroyed unless
// the operation does so, as that saves include lists.
LibraryOperation onProject(Layout layout,
                           const std::function<unsigned long(CTervixProject&)>& operation) {
  return {[layout](const TemporaryFolder& folder) { writeProject(folder, layout, twoProfiles()); },
          [layout, operation](const std::string& folder) {
            const ProjectPlan plan = twoProfiles();
            const std::string sim = folder + "/" + simPathIn(layout, plan, plan.profiles[0]);
            std::string file = folder + "/P/amp.tvp";
            if (frontEndOf(layout) == 1)
              file = folder + (isSimulation(layout) ? "/amp/tvx_sim_1" : "/amp/cfg_analog") +
                     "/amp.tvp";
            auto* const project = new CTervixProject(
                file.c_str(), static_cast<FRONTEND_ID>(frontEndOf(layout)), false, nullptr);
            if (const unsigned long status = project->initialize(); status != 0)
              return status;
            startCounting();
            return operation(*project);
          },
          {},
          Counting::kFromMark};
}

CTervixProfile* tranOf(CTervixProject& project) {
  std::string name = "tran";
  std::string schematic = nameOfNode([&] {
    CTervixNode* first = nullptr;
    project.getTopSchematic(first);
    return first;
  }());
  CTervixNode* node = nullptr;
  project.findProfile(node, schematic, name);
  return static_cast<CTervixProfile*>(node);
}

class ProjectFaults : public ::testing::TestWithParam<Layout> {};

INSTANTIATE_TEST_SUITE_P(All, ProjectFaults, ::testing::ValuesIn(kAllLayouts));

TEST_P(ProjectFaults, ARenamedProfile) {
  expectSurvivesFaults(onProject(GetParam(), [](CTervixProject& project) -> unsigned long {
    CTervixProfile* const profile = tranOf(project);
    std::string name = "renamed";
    return profile != nullptr ? profile->rename(name) : 1;
  }));
}

TEST_P(ProjectFaults, ARenamedSchematic) {
  expectSurvivesFaults(onProject(GetParam(), [](CTervixProject& project) -> unsigned long {
    CTervixNode* schematic = nullptr;
    project.getTopSchematic(schematic);
    if (schematic == nullptr)
      return 1;
    std::string former = nameOfNode(schematic);
    std::string name = "NEXT";
    project.setChangedName(former, name, RENAME_TYPE_SCHEMATIC);
    return static_cast<CTervixSchematic*>(schematic)->rename(name);
  }));
}

// A profile that fails does not stop the others, whose status comes last.
TEST_P(ProjectFaults, ARenamedDesign) {
  LibraryOperation operation = onProject(GetParam(), [](CTervixProject& project) {
    std::string former = textOf(project, &CTervixProject::getDesignName);
    std::string name = "next";
    std::string file = textOf(project, &CTervixProject::getFolderPath) + "/next.dsn";
    project.setChangedName(former, name, RENAME_TYPE_DESIGN);
    return project.renameDesign(name, file);
  });
  operation.tellsLastOnly = true;
  if (!isSimulation(GetParam()))
    expectSurvivesFaults(operation);
}

TEST_P(ProjectFaults, ARenamedProject) {
  if (frontEndOf(GetParam()) == 1)
    return; // the project lies in a folder of a fixed name
  expectSurvivesFaults(onProject(GetParam(), [](CTervixProject& project) {
    std::string file = textOf(project, &CTervixProject::getPath);
    std::string newFile = textOf(project, &CTervixProject::getFolderPath) + "/next/next.tvp";
    return project.rename(file, newFile);
  }));
}

TEST_P(ProjectFaults, AnArchive) {
  if (!isSimulation(GetParam()))
    return; // there is nothing to archive
  expectSurvivesFaults(onProject(GetParam(), [](CTervixProject& project) {
    std::string folder = textOf(project, &CTervixProject::getFolderPath) + "/archive";
    return project.archiveProject(folder);
  }));
}

TEST_P(ProjectFaults, ASavedIncludeList) {
  if (!isSimulation(GetParam()))
    return; // profiles have none
  expectSurvivesFaults(onProject(GetParam(), [](CTervixProject& project) -> unsigned long {
    CTervixProfile* const profile = tranOf(project);
    if (profile == nullptr)
      return 1;
    std::string file(5000, 'y');
    file += ".lib";
    profile->addProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY, true, false);
    return profile->writeProfileLevelVariants();
  }));
}

// A list that could not be read must not be saved over what nobody saw.
TEST_P(ProjectFaults, AProjectOpenedAndDestroyed) {
  LibraryOperation operation = onProject(GetParam(), [](CTervixProject& project) -> unsigned long {
    destroySchematics(project);
    return 0;
  });
  operation.counting = Counting::kFromStart;
  expectSurvivesFaults(operation);
}

} // namespace
} // namespace tervix::testing
