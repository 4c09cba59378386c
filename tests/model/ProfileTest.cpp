#include "CTervixProfile.h"

#include <string>

#include "tests/model/ModelTree.h"

namespace tervix::testing {
namespace {

std::string includeListOf(CTervixProfile& profile) {
  return got(profile, &CTervixProfile::getVariantFilePath);
}
std::string displayNameOf(CTervixProfile& profile) {
  return got(profile, &CTervixProfile::getDisplayName);
}
std::string markerKeyOf(CTervixProfile& profile) {
  return got(profile, &CTervixProfile::getMarkerKey);
}
std::string datFileOf(CTervixProfile& profile) {
  return got(profile, &CTervixProfile::getDatFilePath);
}
std::string outFileOf(CTervixProfile& profile) {
  return got(profile, &CTervixProfile::getOutFilePath);
}

using Profile = ModelTree;

TEST_F(Profile, MadeFromNothingIsEmpty) {
  CTervixProfile profile;
  EXPECT_EQ(nameOf(profile), "-");
  EXPECT_EQ(displayNameOf(profile), "-");
  EXPECT_EQ(includeListOf(profile), "-");
  EXPECT_EQ(markerKeyOf(profile), "");
  bool flag = true;
  EXPECT_EQ(profile.isActive(flag), 0U);
  EXPECT_FALSE(flag);
  flag = true;
  EXPECT_EQ(profile.areVariantsUpdated(flag), 0U);
  EXPECT_FALSE(flag);
  expectNoLastError();
}

TEST_F(Profile, OfASimulationProjectHasAFolderOfItsOwn) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  EXPECT_EQ(nameOf(*profile), "tran");
  EXPECT_EQ(pathOf(*profile), topFolder() + "/tran.sim");
  EXPECT_EQ(folderOf(*profile), topFolder() + "/tran");
  EXPECT_EQ(includeListOf(*profile), topFolder() + "/tran/tran_profile.inc");
  EXPECT_EQ(displayNameOf(*profile), "shown");
  EXPECT_EQ(markerKeyOf(*profile), "amp-TOP-tran.mrk");
}

TEST_F(Profile, OfAnyOtherProjectLiesInTheFolderOfItsFile) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  EXPECT_EQ(folderOf(*profile), place(""));
  EXPECT_EQ(includeListOf(*profile), "-");
  EXPECT_EQ(markerKeyOf(*profile), "amp-TOP-tran.mrk");
  expectNoLastError();
}

TEST_F(Profile, TakesTheFolderOfAPathWithBackslashes) {
  CTervixProfile profile("C:\\w\\tran.sim", "tran", nullptr, FRONTEND_ID_DESIGN_FILE,
                         PROJECT_TYPE_OTHER, nullptr);
  EXPECT_EQ(pathOf(profile), "C:\\w\\tran.sim");
  EXPECT_EQ(folderOf(profile), "C:\\w");
}

TEST_F(Profile, WithABareFileNameHasNoFolder) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  const auto profile = makeProfile("tran.sim");
  EXPECT_EQ(pathOf(*profile), "tran.sim");
  EXPECT_EQ(folderOf(*profile), "-");
  EXPECT_EQ(includeListOf(*profile), "-");
}

TEST_F(Profile, WithoutPathOrNameHasNeither) {
  auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  CTervixProfile noPath(nullptr, "tran", "shown", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION,
                        &top);
  CTervixProfile noName("C:/w/tran.sim", nullptr, "shown", FRONTEND_ID_DESIGN_FILE,
                        PROJECT_TYPE_SIMULATION, &top);
  for (CTervixProfile* profile : {&noPath, &noName}) {
    EXPECT_EQ(pathOf(*profile), "-");
    EXPECT_EQ(nameOf(*profile), "-");
    EXPECT_EQ(folderOf(*profile), "-");
    EXPECT_EQ(includeListOf(*profile), "-");
    EXPECT_EQ(displayNameOf(*profile), "shown");
    EXPECT_EQ(markerKeyOf(*profile), "amp-TOP-.mrk");
    EXPECT_EQ(profile->readVariants(), 1U);
  }
}

TEST_F(Profile, MadeOfNullsIsEmpty) {
  CTervixProfile profile(nullptr, nullptr, nullptr, FRONTEND_ID_UNSET, PROJECT_TYPE_UNSET, nullptr);
  EXPECT_EQ(nameOf(profile), "-");
  EXPECT_EQ(displayNameOf(profile), "-");
  EXPECT_EQ(markerKeyOf(profile), "");
  expectNoLastError();
}

TEST_F(Profile, WithoutAProjectAboveHasNoMarkerKey) {
  CTervixProfile orphan("C:/w/tran.sim", "tran", nullptr, FRONTEND_ID_DESIGN_FILE,
                        PROJECT_TYPE_OTHER, nullptr);
  CTervixSchematic alone("C:/w", "TOP", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER, nullptr);
  CTervixProfile below("C:/w/tran.sim", "tran", nullptr, FRONTEND_ID_DESIGN_FILE,
                       PROJECT_TYPE_OTHER, &alone);
  for (CTervixProfile* profile : {&orphan, &below}) {
    EXPECT_EQ(markerKeyOf(*profile), "");
    EXPECT_EQ(profile->setMarkerKey(), 1U);
    EXPECT_EQ(markerKeyOf(*profile), "");
  }
}

TEST_F(Profile, WhoseGrandparentIsNoProjectHasNoMarkerKey) {
  CTervixSchematic above("C:/w", "ABOVE", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER, nullptr);
  CTervixSchematic parent("C:/w", "TOP", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER, &above);
  CTervixProfile profile("C:/w/tran.sim", "tran", nullptr, FRONTEND_ID_DESIGN_FILE,
                         PROJECT_TYPE_OTHER, &parent);
  EXPECT_EQ(profile.setMarkerKey(), 1U);
}

TEST_F(Profile, MarkerKeyFollowsNamesOnlyWhenItIsSetAgain) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  profile->setName(text("ac"));
  project_.setDesignName(text("mix"));
  EXPECT_EQ(markerKeyOf(*profile), "amp-TOP-tran.mrk");
  EXPECT_EQ(profile->setMarkerKey(), 0U);
  EXPECT_EQ(markerKeyOf(*profile), "mix-TOP-ac.mrk");
}

TEST_F(Profile, DisplayNameIsNotClearedByAnEmptyOne) {
  CTervixProfile profile;
  std::string name = "before";
  EXPECT_EQ(profile.getDisplayName(name), 1U);
  EXPECT_EQ(name, "");
  EXPECT_EQ(profile.setDisplayName(text("TOP-tran")), 0U);
  EXPECT_EQ(profile.setDisplayName(text("")), 0U);
  EXPECT_EQ(displayNameOf(profile), "TOP-tran");
}

TEST_F(Profile, IncludeListPathIsNotClearedByAnEmptyOne) {
  CTervixProfile profile;
  std::string path = "before";
  EXPECT_EQ(profile.getVariantFilePath(path), 1U);
  EXPECT_EQ(path, "");
  EXPECT_EQ(profile.setVariantFilePath(text("C:/x_profile.inc")), 0U);
  EXPECT_EQ(profile.setVariantFilePath(text("")), 0U);
  EXPECT_EQ(includeListOf(profile), "C:/x_profile.inc");
}

TEST_F(Profile, KeepsItsFlags) {
  CTervixProfile profile;
  for (const bool value : {true, false}) {
    bool read = !value;
    EXPECT_EQ(profile.setActive(value), 0U);
    EXPECT_EQ(profile.isActive(read), 0U);
    EXPECT_EQ(read, value);
    read = !value;
    EXPECT_EQ(profile.setVariantsUpdated(value), 0U);
    EXPECT_EQ(profile.areVariantsUpdated(read), 0U);
    EXPECT_EQ(read, value);
  }
}

TEST_F(Profile, IsCopiedWithEveryField) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  profile->setActive(true);
  profile->setVariantFilePath(text("C:/list.inc"));
  profile->setDatFilePath(text("C:/d.dat"));
  profile->setOutFilePath(text("C:/o.out"));
  profile->setVariantsUpdated(true);
  CTervixProfile copy(*profile);
  EXPECT_EQ(nameOf(copy), "tran");
  EXPECT_EQ(pathOf(copy), pathOf(*profile));
  EXPECT_EQ(displayNameOf(copy), "shown");
  EXPECT_EQ(includeListOf(copy), "C:/list.inc");
  EXPECT_EQ(datFileOf(copy), "C:/d.dat");
  EXPECT_EQ(outFileOf(copy), "C:/o.out");
  EXPECT_EQ(markerKeyOf(copy), "amp-TOP-tran.mrk");
  bool flag = false;
  copy.isActive(flag);
  EXPECT_TRUE(flag);
  flag = false;
  copy.areVariantsUpdated(flag);
  EXPECT_TRUE(flag);
  CTervixNode* parent = nullptr;
  EXPECT_EQ(copy.getParent(parent), 0U);
  EXPECT_EQ(parent, top_.get());
}

// The data file and the output file follow the same rules.
class RunFile : public ModelTree {
protected:
  using Setter = unsigned long (CTervixProfile::*)(std::string&);
  using Getter = unsigned long (CTervixProfile::*)(std::string&) const;
  static constexpr std::pair<Setter, Getter> kFields[] = {
      {&CTervixProfile::setDatFilePath, &CTervixProfile::getDatFilePath},
      {&CTervixProfile::setOutFilePath, &CTervixProfile::getOutFilePath}};

  void expectStored(CTervixProfile& profile, const std::string& path, const std::string& stored,
                    const std::string& argumentAfterwards) {
    for (const auto& [set, get] : kFields) {
      std::string argument = path;
      EXPECT_EQ((profile.*set)(argument), 0U) << path;
      EXPECT_EQ(got(profile, get), stored) << path;
      EXPECT_EQ(argument, argumentAfterwards) << path;
    }
  }
};

TEST_F(RunFile, ThatIsNotSetLeavesTheOutputAsItWas) {
  CTervixProfile profile;
  for (const auto& [set, get] : kFields) {
    std::string path = "before";
    EXPECT_EQ((profile.*get)(path), 1U);
    EXPECT_EQ(path, "before");
  }
}

TEST_F(RunFile, WithADriveIsStoredWithForwardSlashes) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const auto profile = makeProfile(place("a.sim"));
  expectStored(*profile, "C:\\runs\\t.dat", "C:/runs/t.dat", "C:/runs/t.dat");
  expectStored(*profile, "\\\\server\\t.dat", "//server/t.dat", "//server/t.dat");
}

TEST_F(RunFile, ThatIsABareNameLiesInTheProfilesFolder) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  expectStored(*profile, "t.dat", topFolder() + "/tran/t.dat", "t.dat");
}

TEST_F(RunFile, OfASimulationProjectIsRelativeToTheFolderAboveTheProfiles) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  expectStored(*profile, ".\\tran\\t.dat", topFolder() + "/tran/t.dat", "./tran/t.dat");
  expectStored(*profile, "tran/t.dat", topFolder() + "/tran/t.dat", "./tran/t.dat");
  expectStored(*profile, "../t.dat", place("prj-TervixFiles/t.dat"), "../t.dat");
}

TEST_F(RunFile, OfAnyOtherProjectIsRelativeToTheProfilesFolder) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  expectStored(*profile, "./runs/t.dat", place("runs/t.dat"), "./runs/t.dat");
  expectStored(*profile, "../t.dat", folder_.path("t.dat"), "../t.dat");
}

// Where the system has no drives such a path is full already.
TEST_F(RunFile, ThatBeginsWithASlashStandsAsItIs) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  expectStored(*profile, "/data/t.dat", "/data/t.dat", "/data/t.dat");
  expectStored(*profile, "\\data\\t.dat", "/data/t.dat", "/data/t.dat");
}

TEST_F(RunFile, InAFolderOfTwoLettersCountsAsAbsolute) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  expectStored(*profile, "ab/t.dat", "ab/t.dat", "ab/t.dat");
}

TEST_F(RunFile, IsClearedByAnEmptyPath) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  const auto profile = makeProfile(place("a.sim"));
  expectStored(*profile, "C:/t.dat", "C:/t.dat", "C:/t.dat");
  expectStored(*profile, "", "-", "");
}

TEST_F(RunFile, NeedsAFrontEnd) {
  CTervixProfile profile("C:/w/a.sim", "a", nullptr, FRONTEND_ID_UNSET, PROJECT_TYPE_OTHER,
                         nullptr);
  for (const auto& [set, get] : kFields) {
    std::string path = "C:\\t.dat";
    EXPECT_EQ((profile.*set)(path), 1U);
    EXPECT_EQ(path, "C:\\t.dat");
    EXPECT_EQ(got(profile, get), "-");
    EXPECT_EQ((profile.*set)(text("")), 0U);
  }
}

TEST_F(RunFile, NeedsAFolderToStartFrom) {
  CTervixProfile profile("a.sim", "a", nullptr, FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER,
                         nullptr);
  for (const auto& [set, get] : kFields) {
    EXPECT_EQ((profile.*set)(text("t.dat")), 1U);
    EXPECT_EQ((profile.*set)(text("./runs/t.dat")), 1U);
    EXPECT_EQ(got(profile, get), "-");
  }
}

TEST_F(RunFile, ThatIsRelativeNeedsAProjectType) {
  CTervixProfile profile("C:/w/a.sim", "a", nullptr, FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_UNSET,
                         nullptr);
  for (const auto& [set, get] : kFields) {
    EXPECT_EQ((profile.*set)(text("./runs/t.dat")), 1U);
    EXPECT_EQ((profile.*set)(text("t.dat")), 0U);
    EXPECT_EQ(got(profile, get), "C:/w/t.dat");
  }
}

TEST_F(RunFile, IsNotStoredWhenTheProfilesFolderHasNoneAbove) {
  CTervixProfile profile;
  profile.setFrontEndId(FRONTEND_ID_DESIGN_FILE);
  profile.setProjectType(PROJECT_TYPE_SIMULATION);
  profile.setFolderPath(text("tran"));
  for (const auto& [set, get] : kFields) {
    EXPECT_EQ((profile.*set)(text("./runs/t.dat")), 0U);
    EXPECT_EQ(got(profile, get), "-");
  }
}

} // namespace
} // namespace tervix::testing
