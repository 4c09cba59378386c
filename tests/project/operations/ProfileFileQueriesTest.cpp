#include "tests/project/operations/SampleProject.h"

// The files of a profile and the schematic that holds it, asked by the profile's name or path.

namespace tervix::testing {
namespace {

constexpr const char* kSuffixes[] = {
    "csd",   "dat",     "opt.dat", "mc.dat",   "sens.dat", "opt.csd", "mc.csd", "sens.csd", "out",
    "out.1", "opt.out", "mc.out",  "sens.out", "prb",      "mrk",     "1op",    "cir",      "mif"};
const char* const kInvalidType = "10113 Invalid profile based file type.";

Answer fileOfType(CTervixProject& project, std::string profile, int type) {
  return answerOf([&](std::string& path) {
    return project.getProfileBasedFile(path, profile, static_cast<PROFILEFILE_TYPE>(type));
  });
}
Answer fileWithSuffix(CTervixProject& project, std::string profile, std::string suffix) {
  return answerOf(
      [&](std::string& path) { return project.getProfileBasedFile(path, profile, suffix); });
}
Answer parentOf(CTervixProject& project, std::string profile) {
  return answerOf(
      [&](std::string& name) { return project.getParentNameForProfile(name, profile); });
}

// The file beside a stem, as a layout names it.
std::string besideStem(const SampleProject& amp, const std::string& stem,
                       const std::string& suffix) {
  const bool isNetlistSide = suffix == "1op" || suffix == "cir" || suffix == "mif";
  return stem + (isNetlistSide && !amp.isSimulationProject() ? ".sim." : ".") + suffix;
}

class ProfileFiles : public InEachLayout {
protected:
  // Where a file of a profile in the first schematic lies, whether or not there is one.
  static std::string expected(const SampleProject& amp, const std::string& profile,
                              const std::string& suffix) {
    const std::string sim = amp.simPath();
    const std::string folder = sim.substr(0, sim.rfind('/'));
    const std::string prefix = GetParam() == Layout::kDesignOther ? "amp-TOP-" : "";
    return besideStem(
        amp, folder + (amp.isSimulationProject() ? "/" + profile : "") + "/" + prefix + profile,
        suffix);
  }
};
TERVIX_IN_EACH_LAYOUT(ProfileFiles);

TEST_P(ProfileFiles, OfEachTypeLieInTheProfilesFolder) {
  SampleProject amp(GetParam());
  for (int type = 0; type <= PROFILE_FILE_MIF; ++type) {
    const Answer answer{0, expected(amp, "tran", kSuffixes[type])};
    EXPECT_EQ(fileOfType(*amp, "tran", type), answer);
    EXPECT_EQ(fileWithSuffix(*amp, "tran", kSuffixes[type]), answer);
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ProfileFiles, AreFoundByTheSimPathInAnySpelling) {
  SampleProject amp(GetParam());
  const std::string sim = amp.simPath();
  for (const std::string& spelling : {sim, withBackslashes(sim), inUpperCase(sim)})
    EXPECT_EQ(fileOfType(*amp, spelling, PROFILE_FILE_CIR),
              (Answer{0, expected(amp, "tran", "cir")}));
}

TEST_P(ProfileFiles, LieBesideTheDataFileThatTheProfileTells) {
  SampleProject amp(GetParam());
  amp.profile().setDatFilePath(arg(fullPath("/data/run7.dat")));
  EXPECT_EQ(fileOfType(*amp, "tran", PROFILE_FILE_CSD), (Answer{0, fullPath("/data/run7.csd")}));
}

TEST_P(ProfileFiles, OfAPathThatIsNotInTheTreeLieInItsPlace) {
  SampleProject amp(GetParam());
  for (const char* path : {"/d/new.sim", "\\d\\new.sim", "/d/new.SIM", "/d/new"})
    for (const char* suffix : kSuffixes)
      EXPECT_EQ(
          fileWithSuffix(*amp, path, suffix),
          (Answer{0, besideStem(amp, amp.isSimulationProject() ? "/d/new/new" : "/d/new", suffix)}))
          << path;
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ProfileFiles, OfAPathKeepTheSuffixAsItWasGiven) {
  SampleProject amp(GetParam());
  EXPECT_EQ(fileWithSuffix(*amp, "/d/new.sim", "CIR"),
            (Answer{0, amp.isSimulationProject() ? "/d/new/new.CIR" : "/d/new.sim.CIR"}));
  EXPECT_EQ(fileWithSuffix(*amp, "/d/a.b.sim", "dat"),
            (Answer{0, amp.isSimulationProject() ? "/d/a.b/a.b.dat" : "/d/a.b.dat"}));
}

TEST_P(ProfileFiles, OfTheRecordedNewNameLieInTheFormerProfilesPlace) {
  SampleProject amp(GetParam());
  amp.setChangedName("tran", "pulse", RENAME_TYPE_PROFILE);
  for (const char* suffix : kSuffixes)
    EXPECT_EQ(fileWithSuffix(*amp, "pulse", suffix), (Answer{0, expected(amp, "pulse", suffix)}));
  EXPECT_EQ(fileOfType(*amp, "PULSE", PROFILE_FILE_CIR).status, 0u);
  EXPECT_EQ(fileOfType(*amp, "tran", PROFILE_FILE_CIR), (Answer{0, expected(amp, "tran", "cir")}));
}

TEST_P(ProfileFiles, OfAnUnknownNameAreNone) {
  SampleProject amp(GetParam());
  for (const char* name : {"", "none", "..", "TOP-tran", "%s", "tr\xc3\xa4n", "pulse"}) {
    EXPECT_EQ(fileOfType(*amp, name, PROFILE_FILE_DAT), (Answer{1, ""})) << name;
    EXPECT_EQ(fileWithSuffix(*amp, name, "dat"), (Answer{1, ""})) << name;
  }
  amp.setChangedName("gone", "pulse", RENAME_TYPE_PROFILE);
  EXPECT_EQ(fileOfType(*amp, "pulse", PROFILE_FILE_DAT), (Answer{1, ""}));
  amp.setChangedName("tran", "pulse", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(fileOfType(*amp, "pulse", PROFILE_FILE_DAT), (Answer{1, ""}));
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ProfileFiles, OfATypeOutsideTheTableAreRefused) {
  SampleProject amp(GetParam());
  for (const int type : {-1, 18, 1 << 30}) {
    recordOtherError();
    EXPECT_EQ(fileOfType(*amp, "tran", type), (Answer{10113, ""}));
    EXPECT_EQ(lastError(), kInvalidType);
  }
}

TEST_P(ProfileFiles, CanTakeThePlaceOfAnyArgument) {
  SampleProject amp(GetParam());
  const std::string cir = expected(amp, "tran", "cir");
  for (std::string text : {std::string("tran"), amp.simPath()}) {
    EXPECT_EQ(amp->getProfileBasedFile(text, text, PROFILE_FILE_CIR), 0u);
    EXPECT_EQ(text, cir);
  }
  std::string suffix = "cir";
  EXPECT_EQ(amp->getProfileBasedFile(suffix, arg("tran"), suffix), 0u);
  EXPECT_EQ(suffix, cir);
  suffix = "dat";
  EXPECT_EQ(amp->getProfileBasedFile(suffix, arg("tran"), suffix), 0u);
  EXPECT_EQ(suffix, expected(amp, "tran", "dat"));
  std::string path = "/d/new.sim";
  EXPECT_EQ(amp->getProfileBasedFile(path, path, PROFILE_FILE_MRK), 0u);
  EXPECT_EQ(path, amp.isSimulationProject() ? "/d/new/new.mrk" : "/d/new.mrk");
  amp.setChangedName("tran", "pulse", RENAME_TYPE_PROFILE);
  path = "pulse";
  EXPECT_EQ(amp->getProfileBasedFile(path, path, PROFILE_FILE_MRK), 0u);
  EXPECT_EQ(path, expected(amp, "pulse", "mrk"));
}

TEST_P(ProfileFiles, OfAnEndlessPathAreComposedAllTheSame) {
  SampleProject amp(GetParam());
  const std::string stem = "/d/" + std::string(100000, 'x');
  const Answer answer = fileWithSuffix(*amp, stem + ".sim", "mrk");
  EXPECT_EQ(answer.status, 0u);
  EXPECT_EQ(answer.text.compare(0, stem.size(), stem), 0);
}

TEST(ProfileFile, OfAProjectFromNowhereIsNone) {
  recordOtherError();
  CTervixProject nowhere;
  EXPECT_EQ(fileOfType(nowhere, "/d/tran.sim", PROFILE_FILE_DAT), (Answer{1, ""}));
  EXPECT_EQ(parentOf(nowhere, "tran"), (Answer{1, ""}));
  EXPECT_EQ(parentOf(nowhere, "/d/tran.sim"), (Answer{1, ""}));
  EXPECT_EQ(lastError(), kOtherError);
}

// ---- The schematic of a profile ----

TEST_P(ProfileFiles, BelongToASchematicThatIsFoundByNameOrPath) {
  SampleProject amp(GetParam(), twoSchematics());
  for (std::size_t profile = 0; profile < 3; ++profile) {
    const Answer expected{0, amp.schematicOf(profile)};
    for (const std::string& asked :
         {amp.nameOf(profile), inUpperCase(amp.nameOf(profile)), amp.simPath(profile),
          withBackslashes(amp.simPath(profile)), amp.simPath(profile) + ".bak"})
      EXPECT_EQ(parentOf(*amp, asked), expected) << asked;
  }
}

TEST_P(ProfileFiles, BelongToNoSchematicWhenTheProfileIsUnknown) {
  SampleProject amp(GetParam());
  for (const char* asked : {"", "none", "..", "%s"}) {
    EXPECT_EQ(parentOf(*amp, asked), (Answer{1, ""})) << asked;
    EXPECT_EQ(lastError(), kOtherError) << asked;
  }
  EXPECT_EQ(parentOf(*amp, "/nowhere/none.sim"), (Answer{1, ""}));
  EXPECT_EQ(parentOf(*amp, amp.disk().folder("a.sim")), (Answer{1, ""}));
  EXPECT_EQ(parentOf(*amp, amp.disk().file("junk.sim", std::string("\x7f\x00\xff\n", 4))),
            (Answer{1, ""}));
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ProfileFiles, BelongToASchematicThatTheNewNameOfARenameLeadsTo) {
  SampleProject amp(GetParam());
  amp.setChangedName("tran", "pulse", RENAME_TYPE_PROFILE);
  const std::string sim = amp.simPath();
  const std::string newSim = sim.substr(0, sim.size() - 8) + "pulse.sim";
  for (const std::string& asked : {std::string("pulse"), std::string("PULSE"), newSim})
    EXPECT_EQ(parentOf(*amp, asked), (Answer{0, amp.schematicOf()})) << asked;
}

TEST_P(ProfileFiles, ParentsNameCanTakeThePlaceOfTheProfiles) {
  SampleProject amp(GetParam());
  for (std::string text : {std::string("tran"), amp.simPath()}) {
    EXPECT_EQ(amp->getParentNameForProfile(text, text), 0u);
    EXPECT_EQ(text, amp.schematicOf());
  }
}

TEST(ProfileFile, OfANameInTwoSchematicsIsThatOfTheFirst) {
  ProjectPlan plan;
  plan.schematics = {"TOP", "SUB"};
  plan.profiles = {{"SUB", "tran"}, {"TOP", "tran"}};
  SampleProject amp(Layout::kDesignSimulation, plan);
  EXPECT_EQ(parentOf(*amp, "tran"), (Answer{0, "TOP"}));
  EXPECT_EQ(fileOfType(*amp, "tran", PROFILE_FILE_MRK),
            (Answer{0, amp.path("P/amp-TervixFiles/TOP/tran/tran.mrk")}));
  EXPECT_EQ(parentOf(*amp, amp.simPath(0)), (Answer{0, "SUB"}));
  EXPECT_EQ(fileOfType(*amp, amp.simPath(0), PROFILE_FILE_MRK),
            (Answer{0, amp.path("P/amp-TervixFiles/SUB/tran/tran.mrk")}));
}

TEST(ProfileFile, OfAFileUnderAnyNameBelongsToTheSchematicThatItNames) {
  SampleProject amp(Layout::kDesignOther);
  const std::string copy = amp.disk().file("copies/one.sim", contentOf(amp.simPath()));
  EXPECT_EQ(parentOf(*amp, copy), (Answer{0, "TOP"}));
}

} // namespace
} // namespace tervix::testing
