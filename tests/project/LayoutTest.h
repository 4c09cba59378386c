#pragma once

#include <gtest/gtest.h>

#include "tests/project/OpenedProject.h"

namespace tervix::testing {

// A test that holds in each of the four layouts.
class LayoutTest : public ::testing::TestWithParam<Layout> {
protected:
  std::string write(const ProjectPlan& plan = ProjectPlan()) const {
    return writeProject(folder, GetParam(), plan);
  }
  std::string simPath(const ProjectPlan& plan, std::size_t profile = 0) const {
    return folder.path(simPathIn(GetParam(), plan, plan.profiles[profile]));
  }
  int frontEnd() const { return frontEndOf(GetParam()); }
  bool isDesignFrontEnd() const { return frontEnd() == FRONTEND_ID_DESIGN_FILE; }
  bool isSimulationProject() const { return isSimulation(GetParam()); }
  PROJECT_TYPE type() const {
    return isSimulationProject() ? PROJECT_TYPE_SIMULATION : PROJECT_TYPE_OTHER;
  }

  // The tree of the plan that is written unless another one is given.
  Lines plannedTree() const {
    return isDesignFrontEnd() ? Lines{"TOP root", "  tran TOP-tran active"}
                              : Lines{"amp", "  tran"};
  }

  TemporaryFolder folder;
};

inline std::string layoutName(const ::testing::TestParamInfo<Layout>& info) {
  constexpr const char* names[] = {"DesignSimulation", "DesignOther", "ProjectSimulation",
                                   "ProjectOther"};
  return names[static_cast<int>(info.param)];
}

// NOLINTNEXTLINE(cppcoreguidelines-macro-usage)
#define TERVIX_IN_EACH_LAYOUT(suite)                                                               \
  INSTANTIATE_TEST_SUITE_P(EachLayout, suite, ::testing::ValuesIn(::tervix::testing::kAllLayouts), \
                           ::tervix::testing::layoutName)

} // namespace tervix::testing
