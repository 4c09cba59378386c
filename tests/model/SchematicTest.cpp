#include "CTervixSchematic.h"

#include "tests/model/ModelTree.h"
#include "tests/support/System.h"

namespace tervix::testing {
namespace {

class Schematic : public ModelTree {
protected:
  std::string simPathFor(FRONTEND_ID frontEnd, PROJECT_TYPE type) {
    makeTop(frontEnd, type);
    return pathOf(addProfile("tran"));
  }
};

TEST_F(Schematic, MadeFromNothingIsEmpty) {
  CTervixSchematic schematic;
  bool root = true;
  int count = 7;
  EXPECT_EQ(nameOf(schematic), "-");
  EXPECT_EQ(schematic.isRoot(root), 0U);
  EXPECT_FALSE(root);
  EXPECT_EQ(schematic.numberOfProfiles(count), 1U);
  EXPECT_EQ(count, 0);
}

TEST_F(Schematic, HasOneStringForPathAndFolder) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  EXPECT_EQ(nameOf(top), "TOP");
  EXPECT_EQ(pathOf(top), topFolder());
  EXPECT_EQ(folderOf(top), topFolder());
}

TEST_F(Schematic, MadeOfNullsIsEmpty) {
  CTervixSchematic schematic(nullptr, nullptr, FRONTEND_ID_UNSET, PROJECT_TYPE_UNSET, nullptr);
  CTervixNode* parent = nullptr;
  EXPECT_EQ(nameOf(schematic), "-");
  EXPECT_EQ(pathOf(schematic), "-");
  EXPECT_EQ(folderOf(schematic), "-");
  EXPECT_EQ(schematic.getParent(parent), 1U);
  CTervixNode* profile = nullptr;
  EXPECT_EQ(schematic.addProfile(profile, text("tran"), text("")), 1U);
  EXPECT_EQ(profile, nullptr);
}

TEST_F(Schematic, KeepsTheRootFlag) {
  CTervixSchematic schematic;
  bool root = false;
  EXPECT_EQ(schematic.setRoot(true), 0U);
  EXPECT_EQ(schematic.isRoot(root), 0U);
  EXPECT_TRUE(root);
  schematic.setRoot(false);
  schematic.isRoot(root);
  EXPECT_FALSE(root);
}

TEST_F(Schematic, CopyHoldsTheSameProfiles) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  CTervixProfile& tran = addProfile("tran");
  top.setRoot(true);
  CTervixSchematic copy(top);
  bool root = false;
  CTervixNode* profile = nullptr;
  copy.isRoot(root);
  EXPECT_TRUE(root);
  EXPECT_EQ(nameOf(copy), "TOP");
  EXPECT_EQ(copy.getTopProfile(profile), 0U);
  EXPECT_EQ(profile, &tran);
  copy.deleteAllProfiles();
}

TEST_F(Schematic, PlacesItsProfilesByFrontEndAndProjectType) {
  EXPECT_EQ(simPathFor(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_SIMULATION),
            place("prj-TervixFiles/TOP/profiles/tran.sim"));
  EXPECT_EQ(simPathFor(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_OTHER), place("tran.sim"));
  EXPECT_EQ(simPathFor(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION),
            place("prj-TervixFiles/TOP/tran.sim"));
  EXPECT_EQ(simPathFor(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER), place("amp-TOP-tran.sim"));
}

TEST_F(Schematic, AddsAProfileThatKnowsItsPlace) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  CTervixProfile& tran = addProfile("tran");
  CTervixNode* parent = nullptr;
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  EXPECT_EQ(nameOf(tran), "tran");
  EXPECT_EQ(got(tran, &CTervixProfile::getDisplayName), "TOP-tran");
  EXPECT_EQ(got(tran, &CTervixProfile::getMarkerKey), "amp-TOP-tran.mrk");
  EXPECT_EQ(tran.getParent(parent), 0U);
  EXPECT_EQ(parent, &top);
  tran.getFrontEndId(frontEnd);
  tran.getProjectType(type);
  EXPECT_EQ(frontEnd, FRONTEND_ID_DESIGN_FILE);
  EXPECT_EQ(type, PROJECT_TYPE_SIMULATION);
  EXPECT_FALSE(isFolder(folder_.path("P")));
}

TEST_F(Schematic, HandsBackAProfileThatIsThere) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  CTervixProfile& tran = addProfile("tran");
  CTervixNode* profile = nullptr;
  int count = 0;
  EXPECT_EQ(top.addProfile(profile, text("TRAN"), text("other")), 0U);
  EXPECT_EQ(profile, &tran);
  EXPECT_EQ(got(tran, &CTervixProfile::getDisplayName), "TOP-tran");
  EXPECT_EQ(top.numberOfProfiles(count), 0U);
  EXPECT_EQ(count, 1);
}

TEST_F(Schematic, WithoutAProjectCannotPlaceAProfileThatBearsItsDesignsName) {
  CTervixSchematic alone("C:/w", "TOP", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER, nullptr);
  CTervixNode* profile = nullptr;
  EXPECT_EQ(alone.addProfile(profile, text("tran"), text("")), 1U);
  EXPECT_EQ(profile, nullptr);
  expectNoLastError();
}

TEST_F(Schematic, OfAnUnknownFrontEndHasNoPlaceForProfiles) {
  auto& top = makeTop(static_cast<FRONTEND_ID>(3), PROJECT_TYPE_OTHER);
  CTervixNode* profile = nullptr;
  EXPECT_EQ(top.addProfile(profile, text("tran"), text("")), 1U);
  EXPECT_EQ(profile, nullptr);
  expectNoLastError();
}

TEST_F(Schematic, RecordsAProfileThatCannotBeMadeButReturnsOne) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  CTervixNode* profile = nullptr;
  EXPECT_EQ(top.addProfile(profile, text(""), text("")), 1U);
  EXPECT_EQ(profile, nullptr);
  expectLastError(10115, "Failed to add profile \"\".");
}

TEST_F(Schematic, WalksFindsAndDeletesItsProfiles) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  CTervixProfile& tran = addProfile("tran");
  CTervixProfile& ac = addProfile("ac");
  CTervixNode* profile = nullptr;
  EXPECT_EQ(top.getTopProfile(profile), 0U);
  EXPECT_EQ(profile, &tran);
  EXPECT_EQ(top.getNextProfile(profile), 0U);
  EXPECT_EQ(profile, &ac);
  EXPECT_EQ(top.getNextProfile(profile), 0U);
  EXPECT_EQ(profile, nullptr);
  EXPECT_EQ(top.findProfile(profile, text("AC")), 0U);
  EXPECT_EQ(profile, &ac);
  EXPECT_EQ(top.deleteProfile(text("Tran")), 0U);
  EXPECT_EQ(top.findProfile(profile, text("tran")), 1U);
  EXPECT_EQ(profile, nullptr);
  EXPECT_EQ(top.deleteProfile(text("tran")), 1U);
}

TEST_F(Schematic, ForgetsItsProfilesWithoutDestroyingThem) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const std::unique_ptr<CTervixProfile> tran(&addProfile("tran"));
  int count = 7;
  EXPECT_EQ(top.deleteAllProfiles(), 0U);
  EXPECT_EQ(top.numberOfProfiles(count), 1U);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(nameOf(*tran), "tran");
}

TEST_F(Schematic, HasAnActiveProfileOnlyAsRoot) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  CTervixProfile& tran = addProfile("tran");
  tran.setActive(true);
  CTervixNode* profile = &tran;
  EXPECT_EQ(top.getActiveProfile(profile), 10117U);
  EXPECT_EQ(profile, nullptr);
  expectLastError(10117, "\"TOP\" is not the root schematic. Active profile can only be "
                         "associated with the root.");
}

TEST_F(Schematic, WithoutAnActiveProfileSaysSo) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  CTervixNode* profile = &addProfile("tran");
  top.setRoot(true);
  EXPECT_EQ(top.getActiveProfile(profile), 10116U);
  EXPECT_EQ(profile, nullptr);
  expectLastError(10116, "Active profile is not associated with schematic \"TOP\".");
}

TEST_F(Schematic, HandsOutTheFirstActiveProfile) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  addProfile("tran");
  CTervixProfile& ac = addProfile("ac");
  ac.setActive(true);
  addProfile("dc").setActive(true);
  top.setRoot(true);
  CTervixNode* profile = nullptr;
  EXPECT_EQ(top.getActiveProfile(profile), 0U);
  EXPECT_EQ(profile, &ac);
}

TEST_F(Schematic, LeavesTheClientsCursorWhereItIs) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  addProfile("tran");
  CTervixProfile& ac = addProfile("ac");
  top.setRoot(true);
  CTervixNode* profile = nullptr;
  top.getTopProfile(profile);
  top.getActiveProfile(profile);
  top.findProfile(profile, text("ac"));
  top.writeVariants();
  top.readVariants();
  addProfile("dc");
  top.getNextProfile(profile);
  EXPECT_EQ(profile, &ac);
}

TEST_F(Schematic, SavesAndLoadsTheListsOfAllItsProfiles) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  CTervixProfile& tran = addProfile("tran");
  CTervixProfile& ac = addProfile("ac");
  folder_.folder("P/prj-TervixFiles/TOP/ac"); // tran has no folder, and fails
  for (CTervixProfile* profile : {&tran, &ac})
    profile->addProfileLevelFile(text("x.lib"), VARIANTFILE_TYPE_LIBRARY, true, false);
  EXPECT_EQ(top.writeVariants(), 0U);
  EXPECT_EQ(contentOf(topFolder() + "/ac/ac_profile.inc"), inTextMode(".LIB\t\"x.lib\" \n"));
  writeFile(topFolder() + "/ac/ac_profile.inc", ".LIB \"y.lib\"\n");
  EXPECT_EQ(top.readVariants(), 0U);
  std::string file;
  ac.getTopProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  EXPECT_EQ(file, "y.lib");
}

TEST_F(Schematic, DestroyedDestroysItsProfiles) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  file("prj-TervixFiles/TOP/tran/tran_profile.inc", ".lib \"x.lib\"\n");
  addProfile("tran");
  top_.reset();
  EXPECT_EQ(contentOf(topFolder() + "/tran/tran_profile.inc"), inTextMode(".LIB\t\"x.lib\" \n"));
}

} // namespace
} // namespace tervix::testing
