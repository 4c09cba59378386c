#include "tests/project/operations/SampleProject.h"

// Operations on a profile that is known by the names of its schematic and of itself, or by its
// display name.

namespace tervix::testing {
namespace {

constexpr VARIANTFILE_TYPE kLibrary = VARIANTFILE_TYPE_LIBRARY;
constexpr VARIANTFILE_TYPE kInclude = VARIANTFILE_TYPE_INCLUDE;
const char* const kInvalidType = "10112 Invalid profile level variant type.";

Answer topFile(CTervixProject& project, std::string schematic, std::string profile,
               VARIANTFILE_TYPE type) {
  return answerOf([&](std::string& file) {
    return project.getTopProfileLevelFileForSch(file, schematic, profile, type);
  });
}
Answer nextFile(CTervixProject& project, std::string schematic, std::string profile,
                VARIANTFILE_TYPE type) {
  return answerOf([&](std::string& file) {
    return project.getNextProfileLevelFileForSch(file, schematic, profile, type);
  });
}
// "STATUS COUNT"; the count is 7 before the call.
std::string countOf(CTervixProject& project, std::string schematic, std::string profile,
                    VARIANTFILE_TYPE type) {
  int count = 7;
  const unsigned long status = project.getProfileLevelFileCount(count, schematic, profile, type);
  return std::to_string(status) + " " + std::to_string(count);
}
bool areUpdated(const CTervixProfile& profile) {
  bool updated = false;
  profile.areVariantsUpdated(updated);
  return updated;
}

class ForwardingByNames : public InEachLayout {};
TERVIX_IN_EACH_LAYOUT(ForwardingByNames);

TEST_P(ForwardingByNames, SetsDataAndOutputFile) {
  SampleProject amp(GetParam());
  std::string data = fullPath("\\runs\\one.dat");
  EXPECT_EQ(amp->setDatFileForProfile(data, arg(amp.schematicOf()), arg("TRAN")), 0u);
  EXPECT_EQ(data, fullPath("/runs/one.dat"));
  EXPECT_EQ(amp->setOutFileForProfile(arg("one.out"), arg(amp.schematicOf()), arg("tran")), 0u);
  EXPECT_EQ(textOf(amp.profile(), &CTervixProfile::getDatFilePath), fullPath("/runs/one.dat"));
  EXPECT_EQ(textOf(amp.profile(), &CTervixProfile::getOutFilePath), amp.folderOf() + "/one.out");
}

TEST_P(ForwardingByNames, WalksAndCountsTheVariantFiles) {
  SampleProject amp(GetParam());
  amp.profile().addProfileLevelFile(arg("b.inc"), kInclude, false, false);
  const std::string name = amp.schematicOf();
  if (amp.isSimulationProject()) {
    EXPECT_EQ(topFile(*amp, name, "tran", kInclude), (Answer{0, ".\\load.inc"}));
    EXPECT_EQ(nextFile(*amp, name, "tran", kInclude), (Answer{0, "b.inc"}));
    EXPECT_EQ(nextFile(*amp, name, "tran", kInclude), (Answer{0, ""}));
    EXPECT_EQ(countOf(*amp, name, "tran", kInclude), "0 2");
  } else {
    EXPECT_EQ(topFile(*amp, name, "tran", kInclude), (Answer{1, ""}));
    EXPECT_EQ(nextFile(*amp, name, "tran", kInclude), (Answer{1, ""}));
    EXPECT_EQ(countOf(*amp, name, "tran", kInclude), "0 0");
  }
  EXPECT_EQ(countOf(*amp, name, "tran", kLibrary), "0 0");
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ForwardingByNames, IsSilentWhenThereIsNoSuchSchematicOrProfile) {
  SampleProject amp(GetParam());
  const auto before = amp.snapshot();
  const std::string name = amp.schematicOf();
  const std::pair<std::string, std::string> misses[] = {
      {"NONE", "tran"}, {name, "none"}, {"", ""}, {"..", "../tran"}, {name, "%s\n\"\xff"}};
  for (const auto& [schematic, profile] : misses) {
    EXPECT_EQ(topFile(*amp, schematic, profile, kInclude), (Answer{0, ""}));
    EXPECT_EQ(nextFile(*amp, schematic, profile, kInclude), (Answer{0, ""}));
    EXPECT_EQ(countOf(*amp, schematic, profile, kInclude), "0 7");
    std::string data = "\\one.dat";
    EXPECT_EQ(
        amp->setDatFileForProfile(data, arg(std::string(schematic)), arg(std::string(profile))),
        0u);
    EXPECT_EQ(
        amp->setOutFileForProfile(data, arg(std::string(schematic)), arg(std::string(profile))),
        0u);
    EXPECT_EQ(data, "\\one.dat");
  }
  EXPECT_EQ(textOf(amp.profile(), &CTervixProfile::getDatFilePath), "");
  EXPECT_EQ(lastError(), kOtherError);
  EXPECT_EQ(amp.snapshot(), before);
}

TEST_P(ForwardingByNames, IsSilentInAProjectWithoutSchematics) {
  SampleProject amp(GetParam());
  destroySchematics(*amp);
  recordOtherError();
  EXPECT_EQ(topFile(*amp, "TOP", "tran", kInclude), (Answer{0, ""}));
  EXPECT_EQ(countOf(*amp, "TOP", "tran", kInclude), "0 7");
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ForwardingByNames, RefusesATypeOutsideTheTable) {
  SampleProject amp(GetParam());
  const std::string name = amp.schematicOf();
  for (const int value : {-1, 3}) {
    const auto type = static_cast<VARIANTFILE_TYPE>(value);
    const Answer refused{amp.isSimulationProject() ? 10112u : 1u, ""};
    recordOtherError();
    EXPECT_EQ(topFile(*amp, name, "tran", type), refused);
    EXPECT_EQ(nextFile(*amp, name, "tran", type), refused);
    EXPECT_EQ(lastError(), amp.isSimulationProject() ? kInvalidType : kOtherError);
    recordOtherError();
    EXPECT_EQ(countOf(*amp, name, "tran", type), "10112 7");
    EXPECT_EQ(lastError(), kInvalidType);
    // No profile, no type to look at.
    recordOtherError();
    EXPECT_EQ(topFile(*amp, name, "none", type), (Answer{0, ""}));
    EXPECT_EQ(lastError(), kOtherError);
  }
}

TEST(ForwardingByName, CanAnswerInTheStringThatAsks) {
  SampleProject amp(Layout::kDesignSimulation);
  std::string text = "TOP";
  EXPECT_EQ(amp->getTopProfileLevelFileForSch(text, text, arg("tran"), kInclude), 0u);
  EXPECT_EQ(text, ".\\load.inc");
  text = "tran";
  EXPECT_EQ(amp->getTopProfileLevelFileForSch(text, arg("TOP"), text, kInclude), 0u);
  EXPECT_EQ(text, ".\\load.inc");
  text = "none";
  EXPECT_EQ(amp->getNextProfileLevelFileForSch(text, arg("TOP"), text, kInclude), 0u);
  EXPECT_EQ(text, "");
}

// ---- By display name ----

class ForwardingByDisplayName : public InEachLayout {};
TERVIX_IN_EACH_LAYOUT(ForwardingByDisplayName);

unsigned long deleteVariant(CTervixProject& project, std::string displayName, std::string file,
                            VARIANTFILE_TYPE type = kInclude) {
  return project.deleteVariantForProfileDispName(displayName, type, file);
}

TEST_P(ForwardingByDisplayName, RemovesTheFileFromTheProfilesList) {
  SampleProject amp(GetParam());
  amp.profile().setDisplayName(arg("First Run"));
  amp.profile().setVariantsUpdated(false);
  const auto before = amp.snapshot();
  const std::string name = amp.schematicOf();
  EXPECT_EQ(deleteVariant(*amp, "fIRST rUN", "./LOAD.inc"), amp.isSimulationProject() ? 0u : 1u);
  EXPECT_EQ(countOf(*amp, name, "tran", kInclude), "0 0");
  EXPECT_EQ(areUpdated(amp.profile()), amp.isSimulationProject());
  EXPECT_EQ(amp.snapshot(), before);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ForwardingByDisplayName, FindsNoProfileOfAnotherDisplayName) {
  SampleProject amp(GetParam());
  for (const char* name : {"", "tran", "TOP", "TOP-tran ", "TOP-trans", "%s"})
    EXPECT_EQ(deleteVariant(*amp, name, ".\\load.inc"), 1u) << name;
  EXPECT_EQ(countOf(*amp, amp.schematicOf(), "tran", kInclude),
            amp.isSimulationProject() ? "0 1" : "0 0");
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ForwardingByDisplayName, FindsNothingInAProjectWithoutSchematics) {
  SampleProject amp(GetParam());
  destroySchematics(*amp);
  recordOtherError();
  EXPECT_EQ(deleteVariant(*amp, "TOP-tran", ".\\load.inc"), 1u);
  EXPECT_EQ(deleteVariant(*amp, "", "", static_cast<VARIANTFILE_TYPE>(3)), 1u);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(DisplayName, OfAProfileThatDoesNotListTheFileStillMarksItsLists) {
  SampleProject amp(Layout::kDesignSimulation);
  amp.profile().setVariantsUpdated(false);
  EXPECT_EQ(deleteVariant(*amp, "top-TRAN", "none.inc"), 0u);
  EXPECT_TRUE(areUpdated(amp.profile()));
  EXPECT_EQ(countOf(*amp, "TOP", "tran", kInclude), "0 1");
}

TEST(DisplayName, OfAProfileIsRefusedWithATypeOutsideTheTable) {
  SampleProject amp(Layout::kDesignSimulation);
  EXPECT_EQ(deleteVariant(*amp, "TOP-tran", "a.inc", static_cast<VARIANTFILE_TYPE>(3)), 10112u);
  EXPECT_EQ(lastError(), kInvalidType);
}

TEST(DisplayName, ThatTwoProfilesHaveMeansTheFirst) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  for (std::size_t profile = 0; profile < 3; ++profile)
    amp.profile(profile).setDisplayName(arg(profile == 0 ? "other" : "same"));
  EXPECT_EQ(deleteVariant(*amp, "SAME", ".\\load.inc"), 0u);
  EXPECT_EQ(countOf(*amp, "TOP", "tran", kInclude), "0 1");
  EXPECT_EQ(countOf(*amp, "TOP", "ac", kInclude), "0 0");
  EXPECT_EQ(countOf(*amp, "SUB", "dc", kInclude), "0 1");
}

TEST(DisplayName, CanBeTheFileToo) {
  SampleProject amp(Layout::kDesignSimulation);
  amp.profile().setDisplayName(arg(".\\load.inc"));
  std::string text = ".\\load.inc";
  EXPECT_EQ(amp->deleteVariantForProfileDispName(text, kInclude, text), 0u);
  EXPECT_EQ(countOf(*amp, "TOP", "tran", kInclude), "0 0");
}

} // namespace
} // namespace tervix::testing
