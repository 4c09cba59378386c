#include "tests/project/operations/SampleProject.h"

// The names of the profiles under a schematic, along that schematic's cursor.

namespace tervix::testing {
namespace {

using Query = unsigned long (CTervixProject::*)(std::string&, std::string&);

Answer ask(CTervixProject& project, Query query, std::string schematic) {
  return answerOf([&](std::string& out) { return (project.*query)(out, schematic); });
}

constexpr Query kTopName = &CTervixProject::getTopProfNameForSch;
constexpr Query kNextName = &CTervixProject::getNextProfNameForSch;
constexpr Query kTopDisplayName = &CTervixProject::getTopProfDispNameForSch;
constexpr Query kNextDisplayName = &CTervixProject::getNextProfDispNameForSch;
constexpr Query kTopMarkerName = &CTervixProject::getTopProfMarkerNameForSch;
constexpr Query kNextMarkerName = &CTervixProject::getNextProfMarkerNameForSch;
constexpr Query kAllQueries[] = {kTopName,         kNextName,      kTopDisplayName,
                                 kNextDisplayName, kTopMarkerName, kNextMarkerName};

// The pair query's answer: "STATUS DISPLAY|NAME".
std::string askForBoth(CTervixProject& project, bool next, std::string schematic) {
  std::string display = kBefore;
  std::string name = kBefore;
  const unsigned long status =
      next ? project.getNextProfDispNameProfNameForSch(display, name, schematic)
           : project.getTopProfDispNameProfNameForSch(display, name, schematic);
  return std::to_string(status) + " " + display + "|" + name;
}

class ProfileNames : public InEachLayout {};
TERVIX_IN_EACH_LAYOUT(ProfileNames);

TEST_P(ProfileNames, AreTheProfilesNames) {
  SampleProject amp(GetParam());
  EXPECT_EQ(ask(*amp, kTopName, amp.schematicOf()), (Answer{0, "tran"}));
  EXPECT_EQ(ask(*amp, kNextName, amp.schematicOf()), (Answer{0, kBefore}));
  EXPECT_EQ(lastError(), kOtherError);
}

// Only front end 2 has display names.
TEST_P(ProfileNames, AreTheDisplayNamesWhereThereAreAny) {
  SampleProject amp(GetParam());
  const Answer expected = amp.isDesignFrontEnd() ? Answer{0, "TOP-tran"} : Answer{1, ""};
  EXPECT_EQ(ask(*amp, kTopDisplayName, amp.schematicOf()), expected);
  EXPECT_EQ(ask(*amp, kNextDisplayName, amp.schematicOf()), (Answer{0, kBefore}));
}

TEST_P(ProfileNames, ComeInPairsThatAreFilledEvenWithoutADisplayName) {
  SampleProject amp(GetParam());
  EXPECT_EQ(askForBoth(*amp, false, amp.schematicOf()),
            amp.isDesignFrontEnd() ? "0 TOP-tran|tran" : "1 |tran");
  EXPECT_EQ(askForBoth(*amp, true, amp.schematicOf()), "0 before|before");
}

TEST_P(ProfileNames, AreTheMarkerNames) {
  SampleProject amp(GetParam());
  const bool isLong = GetParam() == Layout::kDesignOther;
  EXPECT_EQ(ask(*amp, kTopMarkerName, amp.schematicOf()),
            (Answer{0, isLong ? "amp-TOP-tran" : "tran"}));
  EXPECT_EQ(ask(*amp, kNextMarkerName, amp.schematicOf()), (Answer{0, kBefore}));
}

TEST_P(ProfileNames, OfAnUnknownSchematicAreNone) {
  SampleProject amp(GetParam());
  for (const char* name : {"", "NONE", "TOP/", "..", "%s%n"}) {
    for (const Query query : kAllQueries)
      EXPECT_EQ(ask(*amp, query, name), (Answer{1, kBefore})) << name;
    EXPECT_EQ(askForBoth(*amp, false, name), "1 before|before") << name;
    EXPECT_EQ(askForBoth(*amp, true, name), "1 before|before") << name;
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ProfileNames, OfASchematicWithoutProfilesEndAtOnce) {
  ProjectPlan plan;
  plan.profiles.clear();
  SampleProject amp(GetParam(), plan);
  const std::string schematic = amp.isDesignFrontEnd() ? "TOP" : "amp";
  for (const Query query : kAllQueries)
    EXPECT_EQ(ask(*amp, query, schematic), (Answer{0, kBefore}));
  EXPECT_EQ(askForBoth(*amp, false, schematic), "0 before|before");
}

TEST_P(ProfileNames, CanTakeThePlaceOfTheSchematicsName) {
  SampleProject amp(GetParam());
  std::string name = amp.schematicOf();
  EXPECT_EQ(amp->getTopProfNameForSch(name, name), 0u);
  EXPECT_EQ(name, "tran");
  name = amp.schematicOf();
  EXPECT_EQ(amp->getTopProfMarkerNameForSch(name, name), 0u);
  EXPECT_EQ(name, GetParam() == Layout::kDesignOther ? "amp-TOP-tran" : "tran");
  name = amp.schematicOf();
  EXPECT_EQ(amp->getTopProfDispNameForSch(name, name), amp.isDesignFrontEnd() ? 0u : 1u);
  EXPECT_EQ(name, amp.isDesignFrontEnd() ? "TOP-tran" : "");
  name = amp.schematicOf();
  std::string display;
  amp->getTopProfDispNameProfNameForSch(display, name, name);
  EXPECT_EQ(name, "tran");
}

TEST(ProfileName, FollowsTheOrderOfTheTree) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  EXPECT_EQ(ask(*amp, kTopName, "top"), (Answer{0, "tran"}));
  EXPECT_EQ(ask(*amp, kNextName, "TOP"), (Answer{0, "ac"}));
  EXPECT_EQ(ask(*amp, kNextName, "TOP"), (Answer{0, kBefore}));
  EXPECT_EQ(ask(*amp, kTopName, "SUB"), (Answer{0, "dc"}));
}

TEST(ProfileName, OfEveryKindShareOneCursorPerSchematic) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  addProfile(*amp, "TOP", "noise");
  addProfile(*amp, "TOP", "mc");
  EXPECT_EQ(ask(*amp, kTopName, "TOP"), (Answer{0, "tran"}));
  EXPECT_EQ(ask(*amp, kTopName, "SUB"), (Answer{0, "dc"}));
  EXPECT_EQ(ask(*amp, kNextMarkerName, "TOP"), (Answer{0, "amp-TOP-ac"}));
  EXPECT_EQ(askForBoth(*amp, true, "TOP"), "0 TOP-noise|noise");
  CTervixNode* profile = nullptr;
  schematicIn(*amp, "TOP")->getNextProfile(profile);
  EXPECT_EQ(nameOfNode(profile), "mc");
  EXPECT_EQ(ask(*amp, kNextDisplayName, "TOP"), (Answer{0, kBefore}));
}

TEST(ProfileName, OfARenamedSchematicIsAskedForByItsNewNameToo) {
  SampleProject amp(Layout::kDesignOther);
  amp.setChangedName("TOP", "MAIN", RENAME_TYPE_SCHEMATIC);
  EXPECT_EQ(ask(*amp, kTopName, "MAIN"), (Answer{0, "tran"}));
  EXPECT_EQ(ask(*amp, kTopName, "main"), (Answer{1, kBefore}));
}

TEST(MarkerName, NeedsAKnownFrontEnd) {
  recordOtherError();
  OpenedProject project;
  project->setFrontEndId(FRONTEND_ID_DESIGN_FILE);
  project->setProjectType(PROJECT_TYPE_OTHER);
  addProfile(*project, "TOP", "tran");
  project->setFrontEndId(static_cast<FRONTEND_ID>(3));
  EXPECT_EQ(ask(*project, kTopMarkerName, "TOP"), (Answer{1, kBefore}));
  EXPECT_EQ(ask(*project, kTopName, "TOP"), (Answer{0, "tran"}));
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(MarkerName, FollowsAChangedDesignName) {
  SampleProject amp(Layout::kDesignOther);
  amp->setDesignName(arg("pre"));
  EXPECT_EQ(ask(*amp, kTopMarkerName, "TOP"), (Answer{0, "pre-TOP-tran"}));
}

} // namespace
} // namespace tervix::testing
