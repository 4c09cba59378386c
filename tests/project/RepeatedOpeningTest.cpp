#include "tests/project/LayoutTest.h"
#include "tests/support/BlocksInUse.h"

// A project that is opened again and again leaves nothing behind when what the caller owns is
// destroyed: its schematics, and with them their profiles.

namespace tervix::testing {
namespace {

constexpr int kOpenings = 1000;
constexpr int kSettled = 10; // by then what is allocated once is there

class RepeatedOpening : public LayoutTest {
protected:
  void open(const std::string& file, int from) const {
    OpenedProject project(file, from);
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_FALSE(treeOf(*project).empty());
  }
  // The blocks that are in use after the last opening and were not after the tenth.
  long grownBy(const std::string& file, int from) const {
    long settled = 0;
    for (int opening = 1; opening <= kOpenings; ++opening) {
      open(file, from);
      if (opening == kSettled)
        settled = blocksInUse();
    }
    return blocksInUse() - settled;
  }
};
TERVIX_IN_EACH_LAYOUT(RepeatedOpening);

TEST_P(RepeatedOpening, KeepsNoMemory) {
  EXPECT_EQ(grownBy(write(), frontEnd()), 0);
}

TEST_P(RepeatedOpening, FromAProfileKeepsNoMemory) {
  write();
  EXPECT_EQ(grownBy(simPath(ProjectPlan()), 0), 0);
}

TEST_P(RepeatedOpening, OfAProjectThatCannotBeReadKeepsNoMemory) {
  const std::string file = write();
  writeFile(file, "[\"Design Resources\"");
  const auto fail = [&] { EXPECT_EQ(OpenedProject(file, frontEnd())->initialize(), 10109u); };
  for (int opening = 0; opening < kSettled; ++opening)
    fail();
  const long settled = blocksInUse();
  for (int opening = kSettled; opening < kOpenings; ++opening)
    fail();
  EXPECT_EQ(blocksInUse(), settled);
}

// What the header says of a project that is destroyed without its schematics: the measure sees it.
TEST_P(RepeatedOpening, WithoutDestroyingTheSchematicsKeepsThem) {
  const std::string file = write();
  std::vector<CTervixNode*> forgotten;
  const long before = blocksInUse();
  {
    CTervixProject project(file.c_str(), static_cast<FRONTEND_ID>(frontEnd()), false, nullptr);
    EXPECT_EQ(project.initialize(), 0u);
    CTervixNode* schematic = nullptr;
    for (project.getTopSchematic(schematic); schematic != nullptr;
         project.getNextSchematic(schematic))
      forgotten.push_back(schematic);
  }
  EXPECT_GT(blocksInUse(), before + 1); // the list of them is one
  for (const CTervixNode* schematic : forgotten)
    delete schematic;
}

} // namespace
} // namespace tervix::testing
