#include "tests/model/ModelTree.h"
#include "tests/support/System.h"

namespace tervix::testing {
namespace {

using ProfileRename = ModelTree;

TEST_F(ProfileRename, InASimulationProjectChangesAllThatFollowsFromTheName) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  file("prj-TervixFiles/TOP/tran.sim", "sim");
  file("prj-TervixFiles/TOP/tran/tran.dat", "data");
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  EXPECT_EQ(profile->rename(text("ac")), 0U);
  EXPECT_EQ(nameOf(*profile), "ac");
  EXPECT_EQ(pathOf(*profile), topFolder() + "/ac.sim");
  EXPECT_EQ(folderOf(*profile), topFolder() + "/ac");
  EXPECT_EQ(got(*profile, &CTervixProfile::getDisplayName), "TOP-ac");
  EXPECT_EQ(got(*profile, &CTervixProfile::getVariantFilePath), topFolder() + "/ac/ac_profile.inc");
  EXPECT_EQ(got(*profile, &CTervixProfile::getMarkerKey), "amp-TOP-ac.mrk");
  EXPECT_EQ(snapshotOf(topFolder()), (Snapshot{{"tran.sim", "sim"},
                                               {"tran/tran.dat", "data"},
                                               {"ac.sim", "sim"},
                                               {"ac/ac.dat", "data"}}));
}

TEST_F(ProfileRename, OutsideSimulationChangesAllThatFollowsFromTheName) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  file("amp-TOP-tran.sim", "NetlistFile = \"amp-TOP-tran.sim.cir\"\n");
  file("amp-TOP-tran.mrk", "marker");
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  EXPECT_EQ(profile->rename(text("ac")), 0U);
  EXPECT_EQ(nameOf(*profile), "ac");
  EXPECT_EQ(pathOf(*profile), place("amp-TOP-ac.sim"));
  EXPECT_EQ(folderOf(*profile), place(""));
  EXPECT_EQ(got(*profile, &CTervixProfile::getDisplayName), "TOP-ac");
  EXPECT_EQ(got(*profile, &CTervixProfile::getVariantFilePath), place("ac_profile.inc"));
  EXPECT_EQ(got(*profile, &CTervixProfile::getMarkerKey), "amp-TOP-ac.mrk");
  EXPECT_EQ(snapshot(),
            (Snapshot{{"amp-TOP-tran.sim", "NetlistFile = \"amp-TOP-tran.sim.cir\"\n"},
                      {"amp-TOP-tran.mrk", "marker"},
                      {"amp-TOP-ac.sim", inTextMode("NetlistFile= \"amp-TOP-ac.sim.cir\" \n")},
                      {"amp-TOP-ac.mrk", "marker"}}));
}

TEST_F(ProfileRename, KeepsTheListsForTheNextSave) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  file("prj-TervixFiles/TOP/tran/tran_profile.inc", ".LIB\t\"x.lib\" \n");
  auto profile = makeProfile(topFolder() + "/tran.sim");
  profile->addProfileLevelFile(text("y.lib"), VARIANTFILE_TYPE_LIBRARY, true, false);
  EXPECT_EQ(profile->rename(text("ac")), 0U);
  EXPECT_EQ(contentOf(topFolder() + "/ac/ac_profile.inc"), ".LIB\t\"x.lib\" \n");
  profile.reset();
  EXPECT_EQ(contentOf(topFolder() + "/ac/ac_profile.inc"),
            inTextMode(".LIB\t\"x.lib\" \n.LIB\t\"y.lib\" \n"));
  EXPECT_EQ(contentOf(topFolder() + "/tran/tran_profile.inc"), ".LIB\t\"x.lib\" \n");
}

TEST_F(ProfileRename, ThatChangesOnlyTheCaseRenamesNoFileInTheCopy) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  file("prj-TervixFiles/TOP/tran.sim", "sim");
  file("prj-TervixFiles/TOP/tran/tran.dat", "data");
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  EXPECT_EQ(profile->rename(text("TRAN")), 0U);
  EXPECT_EQ(snapshotOf(topFolder() + "/TRAN"), (Snapshot{{"tran.dat", "data"}}));
  EXPECT_EQ(contentOf(topFolder() + "/TRAN.sim"), "sim");
}

TEST_F(ProfileRename, ToTheSameNameChangesNothingOnDisk) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  file("prj-TervixFiles/TOP/tran.sim", "sim");
  file("prj-TervixFiles/TOP/tran/tran.dat", "data");
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  const Snapshot before = snapshot();
  EXPECT_EQ(profile->rename(text("tran")), 0U);
  EXPECT_EQ(snapshot(), before);
  expectLastError(10104, "File \"" + topFolder() + "/tran/tran_profile.inc\" does not exist.");
}

TEST_F(ProfileRename, ToAnEmptyNameChangesNothing) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  EXPECT_EQ(profile->rename(text("")), 1U);
  EXPECT_EQ(nameOf(*profile), "tran");
  EXPECT_EQ(pathOf(*profile), place("amp-TOP-tran.sim"));
  EXPECT_EQ(got(*profile, &CTervixProfile::getDisplayName), "shown");
}

TEST_F(ProfileRename, WithoutASchematicChangesTheNameAlone) {
  CTervixProfile orphan("C:/w/tran.sim", "tran", "shown", FRONTEND_ID_DESIGN_FILE,
                        PROJECT_TYPE_OTHER, nullptr);
  EXPECT_EQ(orphan.rename(text("ac")), 1U);
  EXPECT_EQ(nameOf(orphan), "ac");
  EXPECT_EQ(pathOf(orphan), "C:/w/tran.sim");
  EXPECT_EQ(got(orphan, &CTervixProfile::getDisplayName), "shown");
}

TEST_F(ProfileRename, WithoutAProjectFails) {
  CTervixSchematic alone("C:/w", "TOP", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER, nullptr);
  CTervixProfile profile("C:/w/tran.sim", "tran", "shown", FRONTEND_ID_DESIGN_FILE,
                         PROJECT_TYPE_OTHER, &alone);
  EXPECT_EQ(profile.rename(text("ac")), 1U);
  EXPECT_EQ(nameOf(profile), "ac");
}

TEST_F(ProfileRename, OfAnUnknownProjectTypeFails) {
  makeTop(FRONTEND_ID_DESIGN_FILE, static_cast<PROJECT_TYPE>(3));
  EXPECT_EQ(makeProfile(place("tran.sim"))->rename(text("ac")), 1U);
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_UNSET);
  EXPECT_EQ(makeProfile(place("tran.sim"))->rename(text("ac")), 1U);
}

} // namespace
} // namespace tervix::testing
