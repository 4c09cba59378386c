#include "tests/project/operations/SampleProject.h"

// Where the ".sim" file of a profile lies, asked by names or by the schematic's ".aap" file.

namespace tervix::testing {
namespace {

Answer simPathFor(CTervixProject& project, std::string schematic, std::string profile) {
  return answerOf([&](std::string& path) {
    return project.getProfilePathForSchProf(path, schematic, profile);
  });
}
Answer simPathForAap(CTervixProject& project, std::string& aapPath, std::string profile) {
  return answerOf(
      [&](std::string& path) { return project.getProfilePathForAapProf(path, aapPath, profile); });
}

std::string aapFileOf(const SampleProject& amp) {
  return amp.schematicFolder() + (amp.isSimulationProject() ? "/" : "/amp-") + amp.schematicOf() +
         ".aap";
}
std::string folderOfFile(const std::string& path) {
  return path.substr(0, path.rfind('/'));
}

class SimPath : public InEachLayout {};
TERVIX_IN_EACH_LAYOUT(SimPath);

TEST_P(SimPath, IsFoundByNamesInAnyCase) {
  SampleProject amp(GetParam(), twoSchematics());
  for (std::size_t profile = 0; profile < 3; ++profile) {
    const Answer expected{0, amp.simPath(profile)};
    EXPECT_EQ(simPathFor(*amp, amp.schematicOf(profile), amp.nameOf(profile)), expected);
    EXPECT_EQ(
        simPathFor(*amp, inUpperCase(amp.schematicOf(profile)), inUpperCase(amp.nameOf(profile))),
        expected);
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(SimPath, OfUnknownNamesIsNone) {
  SampleProject amp(GetParam());
  for (const char* odd : {"", "none", "../tran", "tran.sim", "%s", "tr\xc3\xa4n"}) {
    EXPECT_EQ(simPathFor(*amp, amp.schematicOf(), odd), (Answer{1, ""})) << odd;
    EXPECT_EQ(simPathFor(*amp, odd, "tran"), (Answer{1, ""})) << odd;
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(SimPath, IsFoundByTheAapFileWhichIsRewritten) {
  SampleProject amp(GetParam());
  const std::string actual = aapFileOf(amp);
  const std::string backup = actual.substr(0, actual.size() - 3) + "$ap";
  for (std::string aap : {actual, withBackslashes(actual), backup, withBackslashes(backup)}) {
    EXPECT_EQ(simPathForAap(*amp, aap, "TRAN"), (Answer{0, amp.simPath()}));
    EXPECT_EQ(aap, actual);
  }
}

TEST_P(SimPath, OfAnUnknownAapFileOrProfileIsNone) {
  SampleProject amp(GetParam());
  std::string aap = "\\d\\other.$ap";
  EXPECT_EQ(simPathForAap(*amp, aap, "tran"), (Answer{1, ""}));
  EXPECT_EQ(aap, "/d/other.aap");
  aap = aapFileOf(amp);
  EXPECT_EQ(simPathForAap(*amp, aap, "none"), (Answer{1, ""}));
  aap.clear();
  EXPECT_EQ(simPathForAap(*amp, aap, "tran"), (Answer{1, ""}));
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(SimPath, CanTakeThePlaceOfAnyArgument) {
  SampleProject amp(GetParam());
  std::string text = amp.schematicOf();
  EXPECT_EQ(amp->getProfilePathForSchProf(text, text, arg("tran")), 0u);
  EXPECT_EQ(text, amp.simPath());
  text = "tran";
  EXPECT_EQ(amp->getProfilePathForSchProf(text, arg(amp.schematicOf()), text), 0u);
  EXPECT_EQ(text, amp.simPath());
  text = withBackslashes(aapFileOf(amp));
  EXPECT_EQ(amp->getProfilePathForAapProf(text, text, arg("tran")), 0u);
  EXPECT_EQ(text, amp.simPath());
  text = "tran";
  EXPECT_EQ(amp->getProfilePathForAapProf(text, arg(aapFileOf(amp)), text), 0u);
  EXPECT_EQ(text, amp.simPath());
}

// ---- While a rename is recorded ----

// With front end 1 the file takes the new name; with front end 2 the tree tells.
TEST_P(SimPath, OfARenamedProfileIsFoundByEitherName) {
  SampleProject amp(GetParam());
  amp.setChangedName("tran", "pulse", RENAME_TYPE_PROFILE);
  const std::string expected =
      amp.isDesignFrontEnd() ? amp.simPath() : folderOfFile(amp.simPath()) + "/pulse.sim";
  std::string aap = aapFileOf(amp);
  for (const char* name : {"tran", "TRAN", "pulse", "PULSE"}) {
    EXPECT_EQ(simPathFor(*amp, amp.schematicOf(), name), (Answer{0, expected})) << name;
    EXPECT_EQ(simPathForAap(*amp, aap, name), (Answer{0, expected})) << name;
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(SimPath, OfARenameWhoseFormerProfileIsMissingIsNone) {
  SampleProject amp(GetParam());
  amp.setChangedName("gone", "pulse", RENAME_TYPE_PROFILE);
  EXPECT_EQ(simPathFor(*amp, amp.schematicOf(), "pulse"), (Answer{1, ""}));
  EXPECT_EQ(simPathFor(*amp, amp.schematicOf(), "tran"), (Answer{0, amp.simPath()}));
}

TEST_P(SimPath, OfAnotherProfileStays) {
  SampleProject amp(GetParam(), twoSchematics());
  amp.setChangedName("tran", "pulse", RENAME_TYPE_PROFILE);
  EXPECT_EQ(simPathFor(*amp, amp.schematicOf(1), "ac"), (Answer{0, amp.simPath(1)}));
}

TEST_P(SimPath, OfARenamedSchematicIsFoundByItsNewName) {
  SampleProject amp(GetParam());
  amp.setChangedName(amp.schematicOf(), "MAIN", RENAME_TYPE_SCHEMATIC);
  for (const std::string& name : {amp.schematicOf(), std::string("MAIN")})
    EXPECT_EQ(simPathFor(*amp, name, "tran"), (Answer{0, amp.simPath()})) << name;
}

TEST_P(SimPath, StaysWithARecordThatIsNotWholeOrOfAnotherKind) {
  SampleProject amp(GetParam());
  const Answer expected{0, amp.simPath()};
  amp.setChangedName("tran", "", RENAME_TYPE_PROFILE);
  EXPECT_EQ(simPathFor(*amp, amp.schematicOf(), "tran"), expected);
  EXPECT_EQ(simPathFor(*amp, amp.schematicOf(), ""), (Answer{1, ""}));
  for (const RENAME_TYPE kind : {RENAME_TYPE_NONE, RENAME_TYPE_DESIGN, RENAME_TYPE_PROJECT}) {
    amp.setChangedName("tran", "pulse", kind);
    EXPECT_EQ(simPathFor(*amp, amp.schematicOf(), "tran"), expected);
    EXPECT_EQ(simPathFor(*amp, amp.schematicOf(), "pulse"), (Answer{1, ""}));
  }
}

TEST(SimPathOfFrontEndTwo, OfAProfileOfAnotherSchematicIsNone) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  EXPECT_EQ(simPathFor(*amp, "SUB", "tran"), (Answer{1, ""}));
}

// Front end 1: the file may be named in three forms, each of them whole.
struct NameForm {
  std::string file;
  std::string afterProfileRename;
  std::string afterSchematicRename;
};

std::ostream& operator<<(std::ostream& stream, const NameForm& form) {
  return stream << form.file;
}

class SimPathForm : public ::testing::TestWithParam<NameForm> {};
INSTANTIATE_TEST_SUITE_P(
    OfFrontEndOne, SimPathForm,
    ::testing::Values(NameForm{"tran.sim", "pulse.sim", "tran.sim"},
                      NameForm{"TRAN.SIM", "pulse.SIM", "TRAN.SIM"},
                      NameForm{"amp-tran.sim", "amp-pulse.sim", "main-tran.sim"},
                      NameForm{"amp-amp-tran.sim", "amp-amp-pulse.sim", "amp-main-tran.sim"},
                      NameForm{"tran2.sim", "tran2.sim", "tran2.sim"},
                      NameForm{"my-tran.sim", "my-tran.sim", "my-tran.sim"},
                      NameForm{"amp-tran-1.sim", "amp-tran-1.sim", "amp-tran-1.sim"},
                      NameForm{"tran", "tran", "tran"}, NameForm{".sim", ".sim", ".sim"}));

TEST_P(SimPathForm, TakesTheNewNameWhereItHoldsTheFormerOneWhole) {
  SampleProject amp(Layout::kProjectOther);
  const std::string folder = "/tran/amp-tran/";
  amp.profile().setPath(arg(folder + GetParam().file));
  amp.setChangedName("tran", "pulse", RENAME_TYPE_PROFILE);
  EXPECT_EQ(simPathFor(*amp, "amp", "pulse"), (Answer{0, folder + GetParam().afterProfileRename}));
  amp.setChangedName("amp", "main", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(simPathFor(*amp, "amp", "tran"), (Answer{0, folder + GetParam().afterSchematicRename}));
}

TEST(SimPathOfFrontEndOne, WithoutAFolderStaysWithoutOne) {
  SampleProject amp(Layout::kProjectOther);
  amp.profile().setPath(arg("tran.sim"));
  amp.setChangedName("tran", "pulse", RENAME_TYPE_PROFILE);
  EXPECT_EQ(simPathFor(*amp, "amp", "tran"), (Answer{0, "pulse.sim"}));
}

TEST(SimPathOfFrontEndOne, OfAProfileThatBearsTheNewNameAlreadyIsItsOwn) {
  ProjectPlan plan;
  plan.profiles = {{"amp", "tran"}, {"amp", "pulse"}};
  SampleProject amp(Layout::kProjectOther, plan);
  amp.setChangedName("tran", "pulse", RENAME_TYPE_PROFILE);
  EXPECT_EQ(simPathFor(*amp, "amp", "pulse"), (Answer{0, amp.simPath(1)}));
}

} // namespace
} // namespace tervix::testing
