#include "tests/model/ModelTree.h"
#include "tests/support/ProjectBuilder.h"

namespace tervix::testing {
namespace {

class ProfileFiles : public ModelTree {
protected:
  // The profile tran with a ".sim" file that names data and output file.
  CTervixProfile& open(FRONTEND_ID frontEnd, PROJECT_TYPE type, const std::string& dataFile = "",
                       const std::string& outFile = "") {
    makeTop(frontEnd, type);
    const std::string sim = topFolder() + "/tran.sim";
    writeFile(sim, simText("tran", "tran.sim", "", "", "", dataFile, outFile));
    profile_ = makeProfile(sim);
    forgetLastError();
    return *profile_;
  }

  std::string fileOf(const std::string& suffix) {
    std::string path = "before";
    EXPECT_EQ(profile_->getProfileBasedFile(path, text(std::string(suffix))), 0U) << suffix;
    return path;
  }
  std::string fileOf(PROFILEFILE_TYPE type) {
    std::string path = "before";
    EXPECT_EQ(profile_->getProfileBasedFile(path, type), 0U) << type;
    return path;
  }

  std::unique_ptr<CTervixProfile> profile_;
};

const std::vector<std::string> kSuffixes = {
    "csd",   "dat",     "opt.dat", "mc.dat",   "sens.dat", "opt.csd", "mc.csd", "sens.csd", "out",
    "out.1", "opt.out", "mc.out",  "sens.out", "prb",      "mrk",     "1op",    "cir",      "mif"};

TEST_F(ProfileFiles, EveryTypeHasItsSuffix) {
  open(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_SIMULATION);
  for (std::size_t i = 0; i < kSuffixes.size(); ++i)
    EXPECT_EQ(fileOf(static_cast<PROFILEFILE_TYPE>(i)), topFolder() + "/tran/tran." + kSuffixes[i]);
}

TEST_F(ProfileFiles, ValuesOfTheEnumerationAreFixed) {
  EXPECT_EQ(PROFILE_FILE_CSD, 0);
  EXPECT_EQ(PROFILE_FILE_SENS_CSD, 7);
  EXPECT_EQ(PROFILE_FILE_OUT, 8);
  EXPECT_EQ(PROFILE_FILE_PRB, 13);
  EXPECT_EQ(PROFILE_FILE_MIF, 17);
}

TEST_F(ProfileFiles, ATypeOutsideTheTableIsRefused) {
  open(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_SIMULATION);
  for (const int type : {-1, 18, 1000000}) {
    std::string path;
    forgetLastError();
    EXPECT_EQ(profile_->getProfileBasedFile(path, static_cast<PROFILEFILE_TYPE>(type)), 10113U);
    expectLastError(10113, "Invalid profile based file type.");
  }
}

TEST_F(ProfileFiles, DataLikeFilesLieBesideTheDataFile) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION, "C:\\runs\\d.dat", "C:\\outs\\o.out");
  for (const char* suffix :
       {"dat", "opt.dat", "mc.dat", "sens.dat", "csd", "prb", "CSD", "Prb", "database"})
    EXPECT_EQ(fileOf(suffix), std::string("C:/runs/d.") + suffix);
}

TEST_F(ProfileFiles, OutputLikeFilesLieBesideTheOutputFile) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION, "C:\\runs\\d.dat", "C:\\outs\\o.x.out");
  for (const char* suffix : {"out", "out.1", "opt.out", "mc.out", "sens.out", "layout"})
    EXPECT_EQ(fileOf(suffix), std::string("C:/outs/o.") + suffix);
}

TEST_F(ProfileFiles, ASuffixThatIsBothCountsAsDataLike) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION, "C:\\runs\\d.dat", "C:\\outs\\o.out");
  EXPECT_EQ(fileOf("out.dat"), "C:/runs/d.out.dat");
}

TEST_F(ProfileFiles, OthersLieInTheProfilesFolder) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION, "C:\\runs\\d.dat", "C:\\outs\\o.out");
  for (const char* suffix : {"opt.csd", "mc.csd", "DAT", "OUT", "mrk", "cir", "1op", "mif", "x"})
    EXPECT_EQ(fileOf(suffix), topFolder() + "/tran/tran." + suffix);
  expectNoLastError();
}

TEST_F(ProfileFiles, OfAPlainProjectOpenedByItsProjectFileAreNamedAfterTheProfile) {
  open(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_OTHER);
  EXPECT_EQ(fileOf("cir"), place("tran.sim.cir"));
  EXPECT_EQ(fileOf("1op"), place("tran.sim.1op"));
  EXPECT_EQ(fileOf("MIF"), place("tran.sim.MIF"));
  EXPECT_EQ(fileOf("mrk"), place("tran.mrk"));
}

TEST_F(ProfileFiles, OfAPlainProjectOpenedByItsDesignBearAllThreeNames) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  EXPECT_EQ(fileOf("cir"), place("amp-TOP-tran.sim.cir"));
  EXPECT_EQ(fileOf("1op"), place("amp-TOP-tran.sim.1op"));
  EXPECT_EQ(fileOf("mif"), place("amp-TOP-tran.sim.mif"));
  EXPECT_EQ(fileOf("opt.csd"), place("amp-TOP-tran.opt.csd"));
}

TEST_F(ProfileFiles, MarkerFileBearsTheMarkerKey) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  EXPECT_EQ(fileOf(PROFILE_FILE_MRK), place(got(*profile_, &CTervixProfile::getMarkerKey)));
}

TEST_F(ProfileFiles, RunFilesAreReadFromTheSimFileOnce) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION, "C:/first/d.dat", "C:/first/o.out");
  EXPECT_EQ(fileOf("dat"), "C:/first/d.dat");
  EXPECT_EQ(got(*profile_, &CTervixProfile::getOutFilePath), "C:/first/o.out");
  writeFile(topFolder() + "/tran.sim", simText("tran", "", "", "", "", "C:/x.dat", "C:/x.out"));
  EXPECT_EQ(fileOf("dat"), "C:/first/d.dat");
  EXPECT_EQ(fileOf("out"), "C:/first/o.out");
}

TEST_F(ProfileFiles, StoredRunFilesNeedNoSimFile) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  profile_ = makeProfile(topFolder() + "/tran.sim");
  forgetLastError();
  profile_->setDatFilePath(text("C:/runs/d.dat"));
  EXPECT_EQ(fileOf("csd"), "C:/runs/d.csd");
  expectNoLastError();
}

TEST_F(ProfileFiles, RunFilesOfTheSimFileAreResolvedAgainstTheProfile) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION, ".\\tran\\d.dat", "o.out");
  EXPECT_EQ(fileOf("dat"), topFolder() + "/tran/d.dat");
  EXPECT_EQ(fileOf("out"), topFolder() + "/tran/o.out");
}

TEST_F(ProfileFiles, WithoutRunFilesFallBackToTheProfilesFolder) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  EXPECT_EQ(fileOf("dat"), place("amp-TOP-tran.dat"));
  EXPECT_EQ(fileOf("out.1"), place("amp-TOP-tran.out.1"));
  expectNoLastError();
}

TEST_F(ProfileFiles, OneRunFileMayBeMissing) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER, "C:/runs/d.dat");
  EXPECT_EQ(fileOf("out"), place("amp-TOP-tran.out"));
  EXPECT_EQ(fileOf("dat"), "C:/runs/d.dat");
}

TEST_F(ProfileFiles, ARunFileWithoutAnExtensionIsNoAnchor) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER, "C:/runs/data", "C:/runs/o.out");
  EXPECT_EQ(fileOf("dat"), place("amp-TOP-tran.dat"));
}

TEST_F(ProfileFiles, WithoutASimFileFallBackToTheProfilesFolder) {
  makeTop(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_OTHER);
  profile_ = makeProfile(place("tran.sim"));
  EXPECT_EQ(fileOf("dat"), place("tran.dat"));
  expectNoLastError();
}

TEST_F(ProfileFiles, NeedAFolderAFrontEndAndAProjectType) {
  CTervixProfile profile;
  std::string path = "before";
  EXPECT_EQ(profile.getProfileBasedFile(path, PROFILE_FILE_CIR), 1U);
  EXPECT_EQ(path, "");
  profile.setFolderPath(text("C:/w"));
  EXPECT_EQ(profile.getProfileBasedFile(path, PROFILE_FILE_CIR), 1U);
  EXPECT_EQ(path, "C:/w");
  profile.setName(text("tran"));
  EXPECT_EQ(profile.getProfileBasedFile(path, PROFILE_FILE_CIR), 1U);
  profile.setFrontEndId(FRONTEND_ID_PROJECT_FILE);
  EXPECT_EQ(profile.getProfileBasedFile(path, PROFILE_FILE_CIR), 1U);
  EXPECT_EQ(path, "C:/w");
  profile.setProjectType(PROJECT_TYPE_OTHER);
  EXPECT_EQ(profile.getProfileBasedFile(path, PROFILE_FILE_CIR), 0U);
  EXPECT_EQ(path, "C:/w/tran.sim.cir");
  expectNoLastError();
}

TEST_F(ProfileFiles, OfAnUnknownFrontEndKeepTheFolder) {
  CTervixProfile profile("C:/w/tran.sim", "tran", nullptr, static_cast<FRONTEND_ID>(3),
                         PROJECT_TYPE_OTHER, nullptr);
  std::string path;
  EXPECT_EQ(profile.getProfileBasedFile(path, PROFILE_FILE_CIR), 1U);
  EXPECT_EQ(path, "C:/w");
}

TEST_F(ProfileFiles, WithoutASchematicOrProjectKeepTheFolder) {
  CTervixSchematic alone("C:/w", "TOP", FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER, nullptr);
  for (CTervixNode* parent :
       {static_cast<CTervixNode*>(nullptr), static_cast<CTervixNode*>(&alone)}) {
    CTervixProfile profile("C:/w/tran.sim", "tran", nullptr, FRONTEND_ID_DESIGN_FILE,
                           PROJECT_TYPE_OTHER, parent);
    std::string path = "before";
    EXPECT_EQ(profile.getProfileBasedFile(path, PROFILE_FILE_CIR), 1U);
    EXPECT_EQ(path, "C:/w");
  }
}

TEST_F(ProfileFiles, PathAndSuffixMayBeOneString) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  std::string both = "cir";
  EXPECT_EQ(profile_->getProfileBasedFile(both, both), 0U);
  EXPECT_EQ(both, place("amp-TOP-tran.sim.cir"));
}

TEST_F(ProfileFiles, AnySuffixIsTakenAsItIs) {
  open(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  EXPECT_EQ(fileOf(""), topFolder() + "/tran/tran.");
  EXPECT_EQ(fileOf("50%s%n\n\xC3\xA4"), topFolder() + "/tran/tran.50%s%n\n\xC3\xA4");
  EXPECT_EQ(fileOf(std::string(100000, 'x')).size(), (topFolder() + "/tran/tran.").size() + 100000);
}

} // namespace
} // namespace tervix::testing
