#include <gtest/gtest.h>

#include "tests/project/LayoutTest.h"

// Which profiles and schematics a project knows by the paths of their files.

namespace tervix::testing {
namespace {

class SimProfileExists : public ::testing::Test {
protected:
  SimProfileExists() : project("/w/amp.tvp", 2, true) {
    tran = addProfile(*project, "oldsch", "tran");
  }

  // Asks for path, which is rewritten. Found or not, the status is 0 and nothing is recorded.
  bool ask() {
    bool exists = !lastExists;
    found = &*project;
    recordOtherError();
    EXPECT_EQ(project->simProfileExists(exists, found, path), 0u);
    EXPECT_EQ(exists, found != nullptr);
    EXPECT_EQ(lastError(), kOtherError);
    return lastExists = exists;
  }
  bool ask(std::string sim) {
    path = std::move(sim);
    return ask();
  }

  OpenedProject project;
  CTervixProfile* tran = nullptr;
  std::string path;
  CTervixNode* found = nullptr;
  bool lastExists = false;
};

TEST_F(SimProfileExists, ForThePathInAnyCaseAndSpelling) {
  EXPECT_TRUE(ask("/w/amp-TervixFiles/oldsch/tran.sim"));
  EXPECT_EQ(found, tran);
  EXPECT_TRUE(ask("\\W\\AMP-TERVIXFILES/OLDSCH\\TRAN.SIM"));
  EXPECT_EQ(found, tran);
  EXPECT_EQ(path, "/W/AMP-TERVIXFILES/OLDSCH/TRAN.SIM");
}

TEST_F(SimProfileExists, ForItsBackup) {
  tran->setPath(arg("c:/p/a.sim"));
  EXPECT_TRUE(ask("C:\\p\\a.sim.bak"));
  EXPECT_EQ(found, tran);
  EXPECT_EQ(path, "C:/p/a.sim");
}

TEST_F(SimProfileExists, WithThePathCutAtTheFirstBackupEnding) {
  EXPECT_FALSE(ask("x\\y.bak/z.bak"));
  EXPECT_EQ(path, "x/y");
  EXPECT_FALSE(ask(".bak"));
  EXPECT_EQ(path, "");
  EXPECT_FALSE(ask("a.BAK"));
  EXPECT_EQ(path, "a.BAK");
}

TEST_F(SimProfileExists, WhenTheProfileItselfHasBackslashes) {
  tran->setPath(arg("C:\\p\\a.sim"));
  EXPECT_TRUE(ask("c:/p/a.sim"));
}

TEST_F(SimProfileExists, NotForOtherPaths) {
  for (const char* other : {"", "/", "tran.sim", "/w/amp-TervixFiles/oldsch/tran.sim2",
                            "/w/amp-TervixFiles/oldsch/tra.sim", "/w/amp-TervixFiles/oldsch"})
    EXPECT_FALSE(ask(other)) << other;
  EXPECT_FALSE(ask(std::string(100000, 'x')));
}

TEST_F(SimProfileExists, ForTheFirstOfTwo) {
  CTervixProfile* const other = addProfile(*project, "second", "tran");
  other->setPath(arg("/w/amp-TervixFiles/oldsch/tran.sim"));
  EXPECT_TRUE(ask("/w/amp-TervixFiles/oldsch/tran.sim"));
  EXPECT_EQ(found, tran);
}

TEST_F(SimProfileExists, UnderTheNewNameOfItsSchematic) {
  project->setChangedName(arg("oldsch"), arg("newsch"), RENAME_TYPE_SCHEMATIC);
  EXPECT_TRUE(ask("\\w\\amp-TervixFiles\\newsch\\tran.sim"));
  EXPECT_EQ(found, tran);
  EXPECT_EQ(path, "/w/amp-TervixFiles/oldsch/tran.sim");
}

TEST_F(SimProfileExists, NotUnderTheNewNameInAnotherCase) {
  project->setChangedName(arg("oldsch"), arg("newsch"), RENAME_TYPE_SCHEMATIC);
  EXPECT_FALSE(ask("/w/amp-TervixFiles/NEWSCH/tran.sim"));
  EXPECT_EQ(path, "/w/amp-TervixFiles/NEWSCH/tran.sim");
}

TEST_F(SimProfileExists, WithThePathRewrittenEvenWhenNothingIsFound) {
  project->setChangedName(arg("oldsch"), arg("newsch"), RENAME_TYPE_SCHEMATIC);
  EXPECT_FALSE(ask("/newsch/newsch/newsch/x.sim"));
  EXPECT_EQ(path, "/oldsch/oldsch/oldsch/x.sim");
}

TEST_F(SimProfileExists, AfterAsManyRewritesAsAreNeeded) {
  tran->setPath(arg("/oldsch/oldsch/newsch/x.sim"));
  project->setChangedName(arg("oldsch"), arg("newsch"), RENAME_TYPE_SCHEMATIC);
  EXPECT_TRUE(ask("/newsch/newsch/newsch/x.sim"));
  EXPECT_EQ(path, "/oldsch/oldsch/newsch/x.sim");
}

TEST_F(SimProfileExists, BetweenDashesInAnotherProject) {
  OpenedProject other("/w/amp.tvp", 2);
  other->setDesignName(arg("amp"));
  addProfile(*other, "oldsch", "tran");
  other->setChangedName(arg("oldsch"), arg("newsch"), RENAME_TYPE_SCHEMATIC);
  bool exists = false;
  CTervixNode* node = nullptr;
  std::string sim = "/w/amp-newsch-tran.sim";
  EXPECT_EQ(other->simProfileExists(exists, node, sim), 0u);
  EXPECT_TRUE(exists);
  EXPECT_EQ(sim, "/w/amp-oldsch-tran.sim");
  sim = "/w/newsch/tran.sim";
  other->simProfileExists(exists, node, sim);
  EXPECT_FALSE(exists);
  EXPECT_EQ(sim, "/w/newsch/tran.sim");
}

TEST_F(SimProfileExists, BetweenDashesWithoutAProjectTypeDoesNot) {
  CTervixProject none;
  none.setChangedName(arg("a"), arg("b"), RENAME_TYPE_SCHEMATIC);
  bool exists = true;
  CTervixNode* node = &none;
  std::string sim = "-b-/b/";
  EXPECT_EQ(none.simProfileExists(exists, node, sim), 0u);
  EXPECT_FALSE(exists);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(sim, "-b-/a/");
}

TEST_F(SimProfileExists, UnderTheNewNameOfTheProjectInAnyCase) {
  project->setChangedName(arg("amp"), arg("Stage"), RENAME_TYPE_PROJECT);
  EXPECT_TRUE(ask("/w\\STAGE-tervixfiles/oldsch/tran.sim"));
  EXPECT_EQ(found, tran);
  EXPECT_EQ(path, "/w/amp-TervixFiles/oldsch/tran.sim");
}

TEST_F(SimProfileExists, UnderTheProjectsNewNameInASimulationProjectOnly) {
  OpenedProject other("/w/amp.tvp", 2);
  addProfile(*other, "TOP", "tran")->setPath(arg("/w/amp-TervixFiles/x.sim"));
  other->setChangedName(arg("amp"), arg("stage"), RENAME_TYPE_PROJECT);
  bool exists = true;
  CTervixNode* node = nullptr;
  std::string sim = "/w/stage-TervixFiles/x.sim";
  EXPECT_EQ(other->simProfileExists(exists, node, sim), 0u);
  EXPECT_FALSE(exists);
  EXPECT_EQ(sim, "/w/stage-TervixFiles/x.sim");
}

TEST_F(SimProfileExists, NotForOtherRecords) {
  const std::string renamed = "/w/amp-TervixFiles/newsch/tran.sim";
  for (RENAME_TYPE kind : {RENAME_TYPE_NONE, RENAME_TYPE_PROFILE, RENAME_TYPE_DESIGN,
                           RENAME_TYPE_PROJECT, static_cast<RENAME_TYPE>(9)}) {
    project->setChangedName(arg("oldsch"), arg("newsch"), kind);
    EXPECT_FALSE(ask(renamed)) << kind;
    EXPECT_EQ(path, renamed);
  }
  project->setChangedName(arg(""), arg("newsch"), RENAME_TYPE_SCHEMATIC);
  EXPECT_FALSE(ask(renamed));
  project->setChangedName(arg("oldsch"), arg(""), RENAME_TYPE_SCHEMATIC);
  EXPECT_FALSE(ask(renamed));
}

TEST_F(SimProfileExists, EndsWhenTheFormerNameHoldsTheNewOne) {
  project->setChangedName(arg("b/a"), arg("a"), RENAME_TYPE_SCHEMATIC);
  EXPECT_FALSE(ask("/x/a/y.sim"));
  EXPECT_EQ(path, "/x/b/a/y.sim");
  project->setChangedName(arg("a"), arg("a"), RENAME_TYPE_SCHEMATIC);
  EXPECT_FALSE(ask("/x/a/y.sim"));
  EXPECT_EQ(path, "/x/a/y.sim");
  project->setChangedName(arg("AMP"), arg("amp"), RENAME_TYPE_PROJECT);
  EXPECT_FALSE(ask("/amp-TervixFiles/y.sim"));
  EXPECT_EQ(path, "/AMP-TervixFiles/y.sim");
  tran->setPath(arg("/x/b/a/z.sim"));
  project->setChangedName(arg("b/a"), arg("a"), RENAME_TYPE_SCHEMATIC);
  EXPECT_TRUE(ask("/x/a/z.sim"));
}

TEST_F(SimProfileExists, LeavesTheClientsCursorsWhereTheyAre) {
  addSchematic(*project, "second");
  CTervixNode* node = nullptr;
  project->getTopSchematic(node);
  ask("/w/gone.sim");
  project->getNextSchematic(node);
  EXPECT_EQ(nameOfNode(node), "second");
}

// ---- Schematics by their analysis file ----

class AapExists : public LayoutTest {
protected:
  unsigned long ask(CTervixProject& project, std::string& path) {
    bool exists = false;
    found = &project;
    const unsigned long status = project.aapExists(exists, found, path);
    EXPECT_EQ(exists, status == 0);
    EXPECT_EQ(found != nullptr, status == 0);
    return status;
  }

  CTervixNode* found = nullptr;
};
TERVIX_IN_EACH_LAYOUT(AapExists);

TEST_P(AapExists, ForTheSchematicsFileAndItsBackup) {
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  CTervixSchematic* const schematic = schematicIn(*project, isDesignFrontEnd() ? "TOP" : "amp");
  std::string file;
  ASSERT_EQ(schematic->getSchematicBasedFile(file, SCHEMATIC_FILE_AAP), 0u);
  recordOtherError();
  for (const char* ending : {".aap", ".AAP", ".$ap", ".$AP"}) {
    std::string path = file.substr(0, file.size() - 4) + ending;
    path.insert(path.rfind('/'), 1, '\\').erase(path.rfind('/'), 1);
    EXPECT_EQ(ask(*project, path), 0u) << path;
    EXPECT_EQ(found, schematic);
    EXPECT_EQ(path,
              file.substr(0, file.size() - 4) + (std::string(ending) == ".AAP" ? ".AAP" : ".aap"));
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(AapExists, NotForOtherFiles) {
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  recordOtherError();
  for (const char* other :
       {"", "a", ".", ".aap", ".$ap", "$ap", "/x/TOP.aap", "TOP.aap", "%s.$ap"}) {
    std::string path = other;
    EXPECT_EQ(ask(*project, path), 1u) << other;
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(AapExists, NotInAProjectWithoutSchematics) {
  OpenedProject project(write(), frontEnd());
  std::string path = "X\\Y.$AP";
  EXPECT_EQ(ask(*project, path), 1u);
  EXPECT_EQ(path, "X/Y.aap");
}

TEST(AapOfSchematic, IsFoundInAnyCase) {
  OpenedProject project("/w/amp.tvp", 2);
  project->setDesignName(arg("x"));
  project->setDesignFolderPath(arg("/w"));
  CTervixSchematic* const top = addSchematic(*project, "y");
  bool exists = false;
  CTervixNode* found = nullptr;
  EXPECT_EQ(project->aapExists(exists, found, arg("/W/X-Y.$AP")), 0u);
  EXPECT_TRUE(exists);
  EXPECT_EQ(found, top);
}

TEST(AapOfSchematic, IsNotFoundUnderTheNewNameOfItsSchematic) {
  OpenedProject project("/w/amp.tvp", 2, true);
  addSchematic(*project, "OLD");
  project->setChangedName(arg("OLD"), arg("NEW"), RENAME_TYPE_SCHEMATIC);
  bool exists = true;
  CTervixNode* found = nullptr;
  EXPECT_EQ(project->aapExists(exists, found, arg("/w/amp-TervixFiles/NEW/NEW.aap")), 1u);
  EXPECT_FALSE(exists);
}

TEST(AapOfSchematic, IsLookedForBeyondASchematicWithoutOne) {
  OpenedProject project("/w/amp.tvp", 2);
  project->setDesignName(arg("amp"));
  project->setDesignFolderPath(arg("/w"));
  // Made before the project type is known, so it cannot tell its files.
  CTervixProject untyped;
  untyped.setFrontEndId(FRONTEND_ID_DESIGN_FILE);
  CTervixSchematic* const strange = addSchematic(untyped, "strange");
  CTervixProject copy(untyped);
  CTervixSchematic* const next = addSchematic(copy, "next");
  next->setProjectType(PROJECT_TYPE_SIMULATION);
  next->setFolderPath(arg("/w"));
  bool exists = false;
  CTervixNode* found = nullptr;
  EXPECT_EQ(copy.aapExists(exists, found, arg("/w/next.aap")), 0u);
  EXPECT_EQ(found, next);
  delete next;
  delete strange;
}

} // namespace
} // namespace tervix::testing
