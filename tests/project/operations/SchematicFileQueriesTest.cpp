#include "tests/project/operations/SampleProject.h"

// The files of a schematic, asked of the project by the schematic's name or its ".aap" file.

namespace tervix::testing {
namespace {

constexpr const char* kSuffixes[] = {"net",      "als",       "par",        "opt",
                                     "aap",      "prp",       "opt.log",    "monte.log",
                                     "sens.log", "smoke.log", "default.mrk"};
const char* const kInvalidType = "10118 Invalid schematic based file type.";

Answer fileOfType(CTervixProject& project, std::string schematic, int type,
                  bool useNewName = false) {
  return answerOf([&](std::string& file) {
    return project.getSchematicBasedFile(file, schematic, static_cast<SCHEMATICFILE_TYPE>(type),
                                         useNewName);
  });
}
Answer fileWithSuffix(CTervixProject& project, std::string schematic, std::string suffix,
                      bool useNewName = false) {
  return answerOf([&](std::string& file) {
    return project.getSchematicBasedFile(file, schematic, suffix, useNewName);
  });
}
Answer fileForAap(CTervixProject& project, std::string& aapPath, std::string suffix) {
  return answerOf([&](std::string& file) {
    return project.getSchematicBasedFileForAap(file, aapPath, suffix);
  });
}

class SchematicFiles : public InEachLayout {
protected:
  // Where a file of the sample's first schematic lies.
  static std::string expected(const SampleProject& amp, const std::string& suffix) {
    const std::string name = amp.schematicOf();
    const std::string stem =
        amp.schematicFolder() + "/" + (amp.isSimulationProject() ? name : "amp-" + name);
    if (suffix == "default.mrk")
      return stem + "-" + suffix;
    return stem + (amp.isSimulationProject() && suffix == "prp" ? "_sch." : ".") + suffix;
  }
};
TERVIX_IN_EACH_LAYOUT(SchematicFiles);

TEST_P(SchematicFiles, OfEachTypeLieInTheSchematicsFolder) {
  SampleProject amp(GetParam());
  for (int type = 0; type <= SCHEMATIC_FILE_MARKER; ++type)
    for (const bool useNewName : {false, true})
      EXPECT_EQ(fileOfType(*amp, amp.schematicOf(), type, useNewName),
                (Answer{0, expected(amp, kSuffixes[type])}));
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(SchematicFiles, OfASuffixAreThoseOfItsType) {
  SampleProject amp(GetParam());
  for (const char* suffix : kSuffixes)
    EXPECT_EQ(fileWithSuffix(*amp, amp.schematicOf(), suffix), (Answer{0, expected(amp, suffix)}));
  EXPECT_EQ(fileWithSuffix(*amp, amp.schematicOf(), "x%s y"), (Answer{0, expected(amp, "x%s y")}));
}

TEST_P(SchematicFiles, AreFoundByANameInAnyCase) {
  SampleProject amp(GetParam());
  for (const char* name : {"top", "Top", "AMP", "Amp"})
    EXPECT_EQ(fileOfType(*amp, name, SCHEMATIC_FILE_NET).status,
              (name[0] == 't' || name[0] == 'T') == amp.isDesignFrontEnd() ? 0u : 1u)
        << name;
}

TEST_P(SchematicFiles, OfAnUnknownSchematicAreNone) {
  SampleProject amp(GetParam());
  for (const char* name : {"", "NONE", "../TOP", "TOP/", "%s"}) {
    EXPECT_EQ(fileOfType(*amp, name, SCHEMATIC_FILE_NET), (Answer{1, ""})) << name;
    EXPECT_EQ(fileWithSuffix(*amp, name, "net"), (Answer{1, ""})) << name;
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(SchematicFiles, OfATypeOutsideTheTableAreRefused) {
  SampleProject amp(GetParam());
  std::string aap = expected(amp, "aap");
  for (const int type : {-1, 11, 1 << 30}) {
    recordOtherError();
    EXPECT_EQ(fileOfType(*amp, amp.schematicOf(), type), (Answer{10118, ""}));
    EXPECT_EQ(lastError(), kInvalidType);
    recordOtherError();
    std::string file = kBefore;
    EXPECT_EQ(amp->getSchematicBasedFileForAap(file, aap, static_cast<SCHEMATICFILE_TYPE>(type)),
              10118u);
    EXPECT_EQ(file, "");
    EXPECT_EQ(lastError(), kInvalidType);
  }
}

TEST_P(SchematicFiles, AreFoundByTheAapFile) {
  SampleProject amp(GetParam());
  std::string aap = expected(amp, "aap");
  EXPECT_EQ(fileForAap(*amp, aap, "net"), (Answer{0, expected(amp, "net")}));
  EXPECT_EQ(aap, expected(amp, "aap"));
  std::string file;
  EXPECT_EQ(amp->getSchematicBasedFileForAap(file, aap, SCHEMATIC_FILE_MARKER), 0u);
  EXPECT_EQ(file, expected(amp, "default.mrk"));
}

TEST_P(SchematicFiles, AreFoundByTheBackupOfTheAapFileWhichIsRewritten) {
  SampleProject amp(GetParam());
  const std::string actual = expected(amp, "aap");
  const std::string backup = actual.substr(0, actual.size() - 3) + "$ap";
  for (const std::string& spelling :
       {backup, withBackslashes(backup), backup.substr(0, backup.size() - 3) + "$Ap"}) {
    std::string aap = spelling;
    EXPECT_EQ(fileForAap(*amp, aap, "net"), (Answer{0, expected(amp, "net")})) << spelling;
    EXPECT_EQ(aap, actual) << spelling;
  }
}

TEST_P(SchematicFiles, AreFoundByAnAapFileInAnyCaseWhichIsKept) {
  SampleProject amp(GetParam());
  std::string aap = inUpperCase(expected(amp, "aap"));
  const std::string given = aap;
  EXPECT_EQ(fileForAap(*amp, aap, "net"), (Answer{0, expected(amp, "net")}));
  EXPECT_EQ(aap, given);
}

TEST_P(SchematicFiles, OfAnUnknownAapFileAreNoneButItsPathIsRewritten) {
  SampleProject amp(GetParam());
  std::string aap = "X:\\d\\other.$ap";
  EXPECT_EQ(fileForAap(*amp, aap, "net"), (Answer{1, ""}));
  EXPECT_EQ(aap, "X:/d/other.aap");
  for (std::string odd : {"", ".aap", "$ap", ".$ap", "/", "\\"})
    EXPECT_EQ(fileForAap(*amp, odd, "net").status, 1u) << odd;
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(SchematicFiles, CanTakeThePlaceOfAnyArgument) {
  SampleProject amp(GetParam());
  std::string name = amp.schematicOf();
  EXPECT_EQ(amp->getSchematicBasedFile(name, name, SCHEMATIC_FILE_NET, false), 0u);
  EXPECT_EQ(name, expected(amp, "net"));
  std::string suffix = "prp";
  EXPECT_EQ(amp->getSchematicBasedFile(suffix, arg(amp.schematicOf()), suffix, true), 0u);
  EXPECT_EQ(suffix, expected(amp, "prp"));
  std::string aap = withBackslashes(expected(amp, "aap"));
  EXPECT_EQ(amp->getSchematicBasedFileForAap(aap, aap, SCHEMATIC_FILE_NET), 0u);
  EXPECT_EQ(aap, expected(amp, "net"));
  suffix = "net";
  EXPECT_EQ(amp->getSchematicBasedFileForAap(suffix, arg(expected(amp, "aap")), suffix), 0u);
  EXPECT_EQ(suffix, expected(amp, "net"));
}

TEST(SchematicFile, OfTheSecondSchematicIsFoundByItsAapFile) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  std::string aap = amp.path("P/amp-TervixFiles/SUB/SUB.aap");
  EXPECT_EQ(fileForAap(*amp, aap, "par"), (Answer{0, amp.path("P/amp-TervixFiles/SUB/SUB.par")}));
}

TEST(SchematicFile, ByAapFileOfADriveIsFoundUnderItsBackup) {
  OpenedProject amp("X:\\d\\p.tvp", 2);
  amp->setDesignName(arg("amp"));
  amp->setDesignFolderPath(arg("X:/d"));
  addSchematic(*amp, "TOP");
  std::string aap = "X:\\d\\amp-top.$ap";
  EXPECT_EQ(fileForAap(*amp, aap, "net"), (Answer{0, "X:/d/amp-TOP.net"}));
  EXPECT_EQ(aap, "X:/d/amp-top.aap");
}

// ---- While a rename is recorded ----

TEST(SchematicFile, OfARenamedSchematicFollowsTheChosenName) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  amp.setChangedName("TOP", "MAIN", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(fileOfType(*amp, "TOP", SCHEMATIC_FILE_PRP, true),
            (Answer{0, amp.path("P/amp-TervixFiles/MAIN/MAIN_sch.prp")}));
  EXPECT_EQ(fileOfType(*amp, "TOP", SCHEMATIC_FILE_PRP, false),
            (Answer{0, amp.path("P/amp-TervixFiles/TOP/TOP_sch.prp")}));
}

TEST(SchematicFile, OfARenamedSchematicIsAskedForByEitherName) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  amp.setChangedName("TOP", "MAIN", RENAME_TYPE_SCHEMATIC);
  for (const char* name : {"TOP", "top", "MAIN"}) {
    EXPECT_EQ(fileOfType(*amp, name, SCHEMATIC_FILE_NET, true),
              (Answer{0, amp.path("P/amp-MAIN.net")}));
    EXPECT_EQ(fileOfType(*amp, name, SCHEMATIC_FILE_NET, false),
              (Answer{0, amp.path("P/amp-TOP.net")}));
  }
  // The new name counts as it was recorded only.
  EXPECT_EQ(fileOfType(*amp, "main", SCHEMATIC_FILE_NET, true), (Answer{1, ""}));
}

TEST(SchematicFile, OfAnotherSchematicDoesNotFollowTheRename) {
  for (const Layout layout : {Layout::kDesignSimulation, Layout::kDesignOther}) {
    SampleProject amp(layout, twoSchematics());
    const Answer before = fileOfType(*amp, "SUB", SCHEMATIC_FILE_NET, true);
    amp.setChangedName("TOP", "MAIN", RENAME_TYPE_SCHEMATIC);
    EXPECT_EQ(fileOfType(*amp, "SUB", SCHEMATIC_FILE_NET, true), before);
  }
}

TEST_P(SchematicFiles, FollowADesignRenameWhereTheDesignIsInTheName) {
  SampleProject amp(GetParam());
  amp.setChangedName("amp", "pre", RENAME_TYPE_DESIGN);
  const std::string former = expected(amp, "net");
  const std::string changed =
      amp.isSimulationProject() ? former : amp.folder() + "/pre-" + amp.schematicOf() + ".net";
  EXPECT_EQ(fileOfType(*amp, amp.schematicOf(), SCHEMATIC_FILE_NET, true), (Answer{0, changed}));
  EXPECT_EQ(fileOfType(*amp, amp.schematicOf(), SCHEMATIC_FILE_NET, false), (Answer{0, former}));
}

TEST_P(SchematicFiles, FollowAProjectRenameIntoTheRecordedFolder) {
  SampleProject amp(GetParam());
  amp.setChangedName("/old", "/new", RENAME_TYPE_PROJECT);
  for (const bool useNewName : {false, true}) {
    const std::string folder = useNewName ? "/new" : "/old";
    EXPECT_EQ(
        fileOfType(*amp, amp.schematicOf(), SCHEMATIC_FILE_NET, useNewName),
        (Answer{0, amp.isSimulationProject() ? expected(amp, "net")
                                             : folder + "/amp-" + amp.schematicOf() + ".net"}));
  }
}

TEST_P(SchematicFiles, StayInTheProjectsFolderWhenItsBareNameChanges) {
  SampleProject amp(GetParam());
  amp.setChangedName("amp", "pre", RENAME_TYPE_PROJECT);
  for (const bool useNewName : {false, true})
    EXPECT_EQ(fileOfType(*amp, amp.schematicOf(), SCHEMATIC_FILE_NET, useNewName),
              (Answer{0, expected(amp, "net")}));
}

TEST_P(SchematicFiles, DoNotFollowAProfileRenameOrARecordThatIsNotWhole) {
  SampleProject amp(GetParam());
  const std::string name = amp.schematicOf();
  const auto expectUnchanged = [&] {
    EXPECT_EQ(fileOfType(*amp, name, SCHEMATIC_FILE_NET, true), (Answer{0, expected(amp, "net")}));
  };
  amp.setChangedName(name, "new", RENAME_TYPE_PROFILE);
  expectUnchanged();
  amp.setChangedName(name, "", RENAME_TYPE_SCHEMATIC);
  expectUnchanged();
  amp.setChangedName("", "new", RENAME_TYPE_DESIGN);
  expectUnchanged();
  amp.setChangedName(name, "new", RENAME_TYPE_NONE);
  expectUnchanged();
}

TEST_P(SchematicFiles, ByAapFileDoNotFollowARename) {
  SampleProject amp(GetParam());
  amp.setChangedName(amp.schematicOf(), "MAIN", RENAME_TYPE_SCHEMATIC);
  std::string aap = expected(amp, "aap");
  EXPECT_EQ(fileForAap(*amp, aap, "net"), (Answer{0, expected(amp, "net")}));
}

} // namespace
} // namespace tervix::testing
