#include <gtest/gtest.h>

#include "tests/project/OpenedProject.h"

// The record of a rename that a client announces.

namespace tervix::testing {
namespace {

struct Record {
  std::string former = "?";
  std::string changed = "?";
  RENAME_TYPE kind = RENAME_TYPE_PROJECT;
};

Record recordOf(const CTervixProject& project) {
  Record record;
  EXPECT_EQ(project.getChangedName(record.former, record.changed, record.kind), 0u);
  return record;
}

TEST(ChangedName, IsEmptyInAFreshProject) {
  const CTervixProject project;
  const Record record = recordOf(project);
  EXPECT_EQ(record.former, "");
  EXPECT_EQ(record.changed, "");
  EXPECT_EQ(record.kind, RENAME_TYPE_NONE);
}

TEST(ChangedName, KeepsOnlyTheLastChange) {
  CTervixProject project;
  EXPECT_EQ(project.setChangedName(arg("a"), arg("b"), RENAME_TYPE_SCHEMATIC), 0u);
  EXPECT_EQ(project.setChangedName(arg("c"), arg("d"), RENAME_TYPE_PROFILE), 0u);
  const Record record = recordOf(project);
  EXPECT_EQ(record.former, "c");
  EXPECT_EQ(record.changed, "d");
  EXPECT_EQ(record.kind, RENAME_TYPE_PROFILE);
}

TEST(ChangedName, CanBeEmptiedByTheClient) {
  CTervixProject project;
  project.setChangedName(arg("a"), arg("b"), RENAME_TYPE_DESIGN);
  EXPECT_EQ(project.setChangedName(arg(""), arg(""), RENAME_TYPE_NONE), 0u);
  const Record record = recordOf(project);
  EXPECT_EQ(record.former + record.changed, "");
  EXPECT_EQ(record.kind, RENAME_TYPE_NONE);
}

TEST(ChangedName, StoresWhateverItIsGiven) {
  CTervixProject project;
  const std::string former = "50%s \"x\"\n\xc3\xa4";
  const std::string changed(5000, 'y');
  std::string first = former;
  std::string second = changed;
  EXPECT_EQ(project.setChangedName(first, second, static_cast<RENAME_TYPE>(77)), 0u);
  const Record record = recordOf(project);
  EXPECT_EQ(record.former, former);
  EXPECT_EQ(record.changed, changed);
  EXPECT_EQ(static_cast<int>(record.kind), 77);
}

TEST(ChangedName, NeverChangesTheTree) {
  OpenedProject project("/w/amp.tvp", 2, true);
  addProfile(*project, "TOP", "tran");
  const Lines before = treeOf(*project);
  for (int kind = 0; kind < 5; ++kind) {
    project->setChangedName(arg("TOP"), arg("NEW"), static_cast<RENAME_TYPE>(kind));
    EXPECT_EQ(treeOf(*project), before);
  }
}

TEST(ChangedName, StaysAfterLookUpsThatUseIt) {
  OpenedProject project("/w/amp.tvp", 2, true);
  addProfile(*project, "TOP", "tran");
  project->setChangedName(arg("TOP"), arg("NEW"), RENAME_TYPE_SCHEMATIC);
  EXPECT_NE(schematicIn(*project, "NEW"), nullptr);
  bool exists = false;
  CTervixNode* profile = nullptr;
  project->simProfileExists(exists, profile, arg("/w/amp-TervixFiles/NEW/tran.sim"));
  EXPECT_TRUE(exists);
  EXPECT_EQ(recordOf(*project).changed, "NEW");
}

} // namespace
} // namespace tervix::testing
