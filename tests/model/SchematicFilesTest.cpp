#include "tests/model/ModelTree.h"

namespace tervix::testing {
namespace {

class SchematicFiles : public ModelTree {
protected:
  std::string fileOf(const std::string& suffix) {
    std::string file = "before";
    EXPECT_EQ(top_->getSchematicBasedFile(file, text(std::string(suffix))), 0U) << suffix;
    return file;
  }
  std::string fileOf(SCHEMATICFILE_TYPE type) {
    std::string file = "before";
    EXPECT_EQ(top_->getSchematicBasedFile(file, type), 0U) << type;
    return file;
  }
  // While a rename is recorded.
  std::string fileOf(const std::string& suffix, bool useNewName) {
    std::string file = "before";
    EXPECT_EQ(top_->getSchematicBasedFile(file, text(std::string(suffix)), useNewName), 0U);
    return file;
  }
  void record(const char* former, const char* changed, RENAME_TYPE kind) {
    project_.setChangedName(text(former), text(changed), kind);
  }
};

TEST_F(SchematicFiles, OfASimulationProjectAreNamedAfterTheSchematic) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  const char* names[] = {"TOP.net",      "TOP.als",       "TOP.par",        "TOP.opt",
                         "TOP.aap",      "TOP_sch.prp",   "TOP.opt.log",    "TOP.monte.log",
                         "TOP.sens.log", "TOP.smoke.log", "TOP-default.mrk"};
  for (int type = SCHEMATIC_FILE_NET; type <= SCHEMATIC_FILE_MARKER; ++type)
    EXPECT_EQ(fileOf(static_cast<SCHEMATICFILE_TYPE>(type)), topFolder() + "/" + names[type]);
}

TEST_F(SchematicFiles, OfAnyOtherProjectBearTheDesignsNameToo) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const char* suffixes[] = {"net", "als",     "par",       "opt",      "aap",
                            "prp", "opt.log", "monte.log", "sens.log", "smoke.log"};
  for (int type = SCHEMATIC_FILE_NET; type < SCHEMATIC_FILE_MARKER; ++type)
    EXPECT_EQ(fileOf(static_cast<SCHEMATICFILE_TYPE>(type)), place("amp-TOP.") + suffixes[type]);
}

TEST_F(SchematicFiles, ValuesOfTheEnumerationAreFixed) {
  EXPECT_EQ(SCHEMATIC_FILE_NET, 0);
  EXPECT_EQ(SCHEMATIC_FILE_AAP, 4);
  EXPECT_EQ(SCHEMATIC_FILE_PRP, 5);
  EXPECT_EQ(SCHEMATIC_FILE_MARKER, 10);
}

TEST_F(SchematicFiles, ATypeOutsideTheTableIsRefused) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  for (const int type : {-1, 11, 1000000}) {
    std::string file;
    forgetLastError();
    EXPECT_EQ(top_->getSchematicBasedFile(file, static_cast<SCHEMATICFILE_TYPE>(type)), 10118U);
    expectLastError(10118, "Invalid schematic based file type.");
  }
}

TEST_F(SchematicFiles, SeparatorIgnoresTheCaseOfTheSuffixWhichStaysAsWritten) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  EXPECT_EQ(fileOf("PRP"), topFolder() + "/TOP_sch.PRP");
  EXPECT_EQ(fileOf("Default.MRK"), topFolder() + "/TOP-Default.MRK");
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  EXPECT_EQ(fileOf("PRP"), place("amp-TOP.PRP"));
}

TEST_F(SchematicFiles, MarkerFileOfAnyOtherProjectLiesInTheProjectsFolder) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  top_->setFolderPath(text("C:/schematics"));
  EXPECT_EQ(fileOf(SCHEMATIC_FILE_MARKER), place("amp-TOP-default.mrk"));
  EXPECT_EQ(fileOf("DEFAULT.mrk"), place("amp-TOP-DEFAULT.mrk"));
  EXPECT_EQ(fileOf(SCHEMATIC_FILE_NET), "C:/schematics/amp-TOP.net");
}

TEST_F(SchematicFiles, NeedNameFrontEndAndProjectType) {
  CTervixSchematic schematic;
  std::string file = "before";
  schematic.setFolderPath(text("C:/w"));
  EXPECT_EQ(schematic.getSchematicBasedFile(file, text("net")), 1U);
  schematic.setName(text("TOP"));
  EXPECT_EQ(schematic.getSchematicBasedFile(file, text("net")), 1U);
  schematic.setFrontEndId(FRONTEND_ID_DESIGN_FILE);
  EXPECT_EQ(schematic.getSchematicBasedFile(file, SCHEMATIC_FILE_NET), 1U);
  EXPECT_EQ(file, "before");
  schematic.setProjectType(PROJECT_TYPE_SIMULATION);
  EXPECT_EQ(schematic.getSchematicBasedFile(file, text("net")), 0U);
  EXPECT_EQ(file, "C:/w/TOP.net");
}

TEST_F(SchematicFiles, OutsideSimulationNeedAProject) {
  CTervixSchematic alone("C:/w", "TOP", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER, nullptr);
  std::string file = "before";
  EXPECT_EQ(alone.getSchematicBasedFile(file, text("net")), 1U);
  EXPECT_EQ(alone.getSchematicBasedFile(file, text("net"), true), 1U);
  EXPECT_EQ(file, "before");
  expectNoLastError();
}

TEST_F(SchematicFiles, PathAndSuffixMayBeOneString) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  std::string both = "prp";
  EXPECT_EQ(top_->getSchematicBasedFile(both, both), 0U);
  EXPECT_EQ(both, topFolder() + "/TOP_sch.prp");
  both = "prp";
  EXPECT_EQ(top_->getSchematicBasedFile(both, both, true), 0U);
  EXPECT_EQ(both, topFolder() + "/TOP_sch.prp");
}

TEST_F(SchematicFiles, WhileARenameIsRecordedNeedAProject) {
  CTervixSchematic alone("C:/w", "TOP", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION, nullptr);
  std::string file = "before";
  EXPECT_EQ(alone.getSchematicBasedFile(file, text("net"), true), 1U);
  EXPECT_EQ(file, "before");
}

TEST_F(SchematicFiles, WithoutARecordAreTheSame) {
  for (const PROJECT_TYPE type : {PROJECT_TYPE_OTHER, PROJECT_TYPE_SIMULATION}) {
    makeTop(FRONTEND_ID_DESIGN_FILE, type);
    for (const char* suffix : {"net", "prp", "default.mrk"})
      for (const bool useNewName : {false, true})
        EXPECT_EQ(fileOf(suffix, useNewName), fileOf(suffix));
  }
}

TEST_F(SchematicFiles, ARecordCountsOnlyWhenItIsWhole) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  record("TOP", "", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(fileOf("net", true), fileOf("net"));
  record("", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(fileOf("net", true), fileOf("net"));
  record("TOP", "NEW", RENAME_TYPE_NONE);
  EXPECT_EQ(fileOf("net", true), fileOf("net"));
  record("TOP", "NEW", RENAME_TYPE_PROFILE);
  EXPECT_EQ(fileOf("net", true), fileOf("net"));
}

TEST_F(SchematicFiles, OfARenamedSchematicInASimulationProjectMoveWithTheFolder) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  record("top", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(fileOf("net", true), place("prj-TervixFiles/NEW/NEW.net"));
  EXPECT_EQ(fileOf("net", false), place("prj-TervixFiles/top/top.net"));
  EXPECT_EQ(fileOf("PRP", true), place("prj-TervixFiles/NEW/NEW_sch.PRP"));
  EXPECT_EQ(fileOf("default.mrk", true), place("prj-TervixFiles/NEW/NEW-default.mrk"));
}

TEST_F(SchematicFiles, OfARenamedSchematicAreFoundUnderEitherName) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  record("OLD", "TOP", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(fileOf("net", true), place("prj-TervixFiles/TOP/TOP.net"));
  EXPECT_EQ(fileOf("net", false), place("prj-TervixFiles/OLD/OLD.net"));
}

TEST_F(SchematicFiles, OfAnyOtherSchematicStayWhereTheyAre) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  record("BIAS", "NEW", RENAME_TYPE_SCHEMATIC);
  for (const bool useNewName : {false, true})
    EXPECT_EQ(fileOf("net", useNewName), topFolder() + "/TOP.net");
}

TEST_F(SchematicFiles, OfARenamedSchematicOutsideSimulationStayInTheirFolder) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(fileOf("net", true), place("amp-NEW.net"));
  EXPECT_EQ(fileOf("net", false), place("amp-TOP.net"));
  EXPECT_EQ(fileOf("prp", true), place("amp-NEW.prp"));
  EXPECT_EQ(fileOf("default.mrk", true), place("amp-NEW-default.mrk"));
}

TEST_F(SchematicFiles, OfARenamedDesignTakeItsNameFromTheRecord) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  record("old", "new", RENAME_TYPE_DESIGN);
  EXPECT_EQ(fileOf("net", true), place("new-TOP.net"));
  EXPECT_EQ(fileOf("net", false), place("old-TOP.net"));
  EXPECT_EQ(fileOf("default.mrk", true), place("new-TOP-default.mrk"));
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  EXPECT_EQ(fileOf("net", true), topFolder() + "/TOP.net");
}

TEST_F(SchematicFiles, OfARenamedProjectTakeAFolderFromTheRecord) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  record("C:/old", "C:\\new", RENAME_TYPE_PROJECT);
  EXPECT_EQ(fileOf("net", true), "C:\\new/amp-TOP.net");
  EXPECT_EQ(fileOf("net", false), "C:/old/amp-TOP.net");
}

TEST_F(SchematicFiles, OfAProjectRenamedByABareNameStayInItsFolder) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  record("old", "new", RENAME_TYPE_PROJECT);
  for (const bool useNewName : {false, true}) {
    EXPECT_EQ(fileOf("net", useNewName), place("amp-TOP.net"));
    EXPECT_EQ(fileOf("default.mrk", useNewName), place("amp-TOP-default.mrk"));
  }
}

TEST_F(SchematicFiles, OfARenamedSimulationProjectStay) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  record("C:/old", "C:/new", RENAME_TYPE_PROJECT);
  EXPECT_EQ(fileOf("net", true), topFolder() + "/TOP.net");
}

} // namespace
} // namespace tervix::testing
