#include <gtest/gtest.h>

#include "tests/project/LayoutTest.h"

// Marker keys, and the names that they stand for.

namespace tervix::testing {
namespace {

class MarkerKeys : public ::testing::Test {
protected:
  MarkerKeys() : project("/w/amp.tvp", 2, true) {
    project->setDesignName(arg("amp"));
    addProfile(*project, "TOP", "tran");
    addProfile(*project, "TOP", "ac");
    addProfile(*project, "SUB", "tran");
  }

  // None of the operations records an error.
  bool exists(std::string key) {
    bool found = !lastFound;
    recordOtherError();
    EXPECT_EQ(project->markerKeyExists(found, key), 0u);
    EXPECT_EQ(lastError(), kOtherError);
    return lastFound = found;
  }
  // The names of a key as "design/schematic/profile".
  std::string names(std::string key) {
    const std::string before = key;
    recordOtherError();
    EXPECT_EQ(project->getDsnSchProfNamesForMarkerKey(design, schematic, profile, key), 0u);
    EXPECT_EQ(lastError(), kOtherError);
    EXPECT_EQ(key, before);
    return design + "/" + schematic + "/" + profile;
  }
  // The status for a key with a new name, and its names.
  std::string renamed(std::string key) {
    design = schematic = profile = "old";
    const std::string before = key;
    recordOtherError();
    const unsigned long status =
        project->getDsnSchProfNamesForNewMarkerKey(design, schematic, profile, key);
    EXPECT_EQ(lastError(), kOtherError);
    EXPECT_EQ(key, before);
    return std::to_string(status) + " " + design + "/" + schematic + "/" + profile;
  }
  void record(std::string former, std::string changed, RENAME_TYPE kind) {
    project->setChangedName(former, changed, kind);
  }

  OpenedProject project;
  std::string design = "old";
  std::string schematic = "old";
  std::string profile = "old";
  bool lastFound = false;
};

TEST_F(MarkerKeys, ExistInAnyCase) {
  EXPECT_TRUE(exists("amp-TOP-tran.mrk"));
  EXPECT_TRUE(exists("AMP-sub-TRAN.MRK"));
  for (const char* other : {"", "amp-TOP-tran", "amp-SUB-ac.mrk", "amp-TOP-default.mrk", "-"})
    EXPECT_FALSE(exists(other)) << other;
}

TEST_F(MarkerKeys, StandForTheirNames) {
  EXPECT_EQ(names("amp-TOP-tran.mrk"), "amp/TOP/tran");
  EXPECT_EQ(names("amp-TOP-ac.mrk"), "amp/TOP/ac");
  EXPECT_EQ(names("AMP-sub-TRAN.mrk"), "amp/SUB/tran");
}

TEST_F(MarkerKeys, ThatAreUnknownStandForNothing) {
  EXPECT_EQ(names("amp-TOP-gone.mrk"), "//");
  EXPECT_EQ(names(""), "//");
}

TEST_F(MarkerKeys, StandForTheDesignsPresentName) {
  project->setDesignName(arg("stage"));
  EXPECT_EQ(names("amp-TOP-tran.mrk"), "stage/TOP/tran");
}

TEST_F(MarkerKeys, StandForTheFirstOfTwo) {
  addProfile(*project, "A", "B-C");
  addProfile(*project, "A-B", "C");
  EXPECT_EQ(names("amp-A-B-C.mrk"), "amp/A/B-C");
}

TEST_F(MarkerKeys, MayBeReplacedByOneOfTheirNames) {
  std::string key = "amp-TOP-tran.mrk";
  EXPECT_EQ(project->getDsnSchProfNamesForMarkerKey(design, schematic, key, key), 0u);
  EXPECT_EQ(design + "/" + schematic + "/" + key, "amp/TOP/tran");
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  key = "amp-NEW-tran.mrk";
  EXPECT_EQ(project->getDsnSchProfNamesForNewMarkerKey(key, schematic, profile, key), 0u);
  EXPECT_EQ(key + "/" + schematic + "/" + profile, "amp/NEW/tran");
}

TEST_F(MarkerKeys, AreNoneInAnEmptyProject) {
  CTervixProject none;
  bool found = true;
  EXPECT_EQ(none.markerKeyExists(found, arg("")), 0u);
  EXPECT_FALSE(found);
  EXPECT_EQ(none.getDsnSchProfNamesForMarkerKey(design, schematic, profile, arg("")), 0u);
  EXPECT_EQ(design + schematic + profile, "");
}

// ---- With a new name in the key ----

TEST_F(MarkerKeys, AreNotTranslatedWithoutARecord) {
  EXPECT_EQ(renamed("amp-TOP-tran.mrk"), "1 //");
  record("TOP", "NEW", RENAME_TYPE_NONE);
  EXPECT_EQ(renamed("amp-TOP-tran.mrk"), "1 //");
  EXPECT_EQ(renamed("amp-NEW-tran.mrk"), "1 //");
}

TEST_F(MarkerKeys, AreNotTranslatedWithoutANewName) {
  for (RENAME_TYPE kind : {RENAME_TYPE_SCHEMATIC, RENAME_TYPE_PROFILE, RENAME_TYPE_DESIGN}) {
    record("TOP", "", kind);
    EXPECT_EQ(renamed("amp-TOP-tran.mrk"), "1 //");
  }
}

TEST_F(MarkerKeys, AreNotTranslatedWithoutAFormerNameOfSchematicOrProfile) {
  record("", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(renamed("amp-NEW-tran.mrk"), "1 //");
  record("", "new", RENAME_TYPE_PROFILE);
  EXPECT_EQ(renamed("amp-TOP-new.mrk"), "1 //");
}

TEST_F(MarkerKeys, AreNotTranslatedForAProject) {
  record("amp", "stage", RENAME_TYPE_PROJECT);
  EXPECT_EQ(renamed("stage-TOP-tran.mrk"), "1 //");
  record("amp", "stage", static_cast<RENAME_TYPE>(9));
  EXPECT_EQ(renamed("stage-TOP-tran.mrk"), "1 //");
}

TEST_F(MarkerKeys, OfARenamedSchematicReportItsNewName) {
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(renamed("amp-NEW-tran.mrk"), "0 amp/NEW/tran");
  EXPECT_EQ(renamed("AMP-NEW-TRAN.mrk"), "0 amp/NEW/tran");
}

TEST_F(MarkerKeys, OfARenamedSchematicMatchItsCase) {
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(renamed("amp-new-tran.mrk"), "1 //");
  EXPECT_EQ(renamed("amp-TOP-tran.mrk"), "1 //");
}

TEST_F(MarkerKeys, OfARenamedSchematicMayBeRecordedInAnotherCase) {
  record("top", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(renamed("amp-NEW-tran.mrk"), "0 amp/NEW/tran");
}

TEST_F(MarkerKeys, OfARenamedSchematicThatLeadNowhereStandForNothing) {
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(renamed("amp-NEW-gone.mrk"), "0 //");
}

TEST_F(MarkerKeys, OfARenamedProfileEndInItsNewNameInAnyCase) {
  record("tran", "New", RENAME_TYPE_PROFILE);
  EXPECT_EQ(renamed("amp-TOP-nEW.MRK"), "0 amp/TOP/tran");
  EXPECT_EQ(renamed("amp-SUB-new.mrk"), "0 amp/SUB/tran");
  for (const char* other :
       {"amp-TOP-tran.mrk", "amp-TOP-new.mrk.x", "amp-TOPnew.mrk", "new.mrk", "-new.mr", ""})
    EXPECT_EQ(renamed(other), "1 //") << other;
  EXPECT_EQ(renamed("-new.mrk"), "0 //");
}

TEST_F(MarkerKeys, OfARenamedDesignBeginWithItsNewName) {
  record("amp", "stage", RENAME_TYPE_DESIGN);
  EXPECT_EQ(renamed("stage-TOP-tran.mrk"), "0 amp/TOP/tran");
  EXPECT_EQ(renamed("STAGE-TOP-tran.mrk"), "1 //");
  EXPECT_EQ(renamed("amp-TOP-tran.mrk"), "1 //");
}

TEST_F(MarkerKeys, OfADesignRenamedFromItsPresentNameNeedNoFormerOne) {
  record("", "stage", RENAME_TYPE_DESIGN);
  EXPECT_EQ(renamed("stage-SUB-tran.mrk"), "0 amp/SUB/tran");
  project->setDesignName(arg(""));
  EXPECT_EQ(renamed("stage-SUB-tran.mrk"), "1 //");
}

TEST_F(MarkerKeys, TakeTheFirstPlaceOfTheNewName) {
  addProfile(*project, "OLD", "NEW-x");
  record("OLD", "NEW", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(renamed("amp-NEW-NEW-x.mrk"), "0 amp/NEW/NEW-x");
  record("amp", "s", RENAME_TYPE_DESIGN);
  addProfile(*project, "s", "s");
  EXPECT_EQ(renamed("s-s-s.mrk"), "0 amp/s/s");
}

TEST_F(MarkerKeys, SurviveAnyText) {
  const std::string odd = "50%s \"\n\xc3\xa4";
  addProfile(*project, odd, odd);
  EXPECT_EQ(names("amp-" + odd + "-" + odd + ".mrk"), "amp/" + odd + "/" + odd);
  record(odd, std::string(100000, 'n'), RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(renamed("amp-" + std::string(100000, 'n') + "-" + odd + ".mrk"),
            "0 amp/" + std::string(100000, 'n') + "/" + odd);
}

TEST_F(MarkerKeys, LeaveTheClientsCursorWhereItIs) {
  CTervixNode* node = nullptr;
  project->getTopSchematic(node);
  exists("gone");
  names("gone");
  record("TOP", "NEW", RENAME_TYPE_SCHEMATIC);
  renamed("amp-NEW-gone.mrk");
  project->getNextSchematic(node);
  EXPECT_EQ(nameOfNode(node), "SUB");
}

class MarkerKeysOnDisk : public LayoutTest {};
TERVIX_IN_EACH_LAYOUT(MarkerKeysOnDisk);

TEST_P(MarkerKeysOnDisk, AreKnownAfterOpening) {
  OpenedProject project(write(), frontEnd());
  ASSERT_EQ(project->initialize(), 0u);
  const std::string name = isDesignFrontEnd() ? "TOP" : "amp";
  bool exists = false;
  EXPECT_EQ(project->markerKeyExists(exists, arg("amp-" + name + "-tran.mrk")), 0u);
  EXPECT_TRUE(exists);
}

} // namespace
} // namespace tervix::testing
