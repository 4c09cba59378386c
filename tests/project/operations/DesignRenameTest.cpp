#include "tests/project/operations/SampleProject.h"

// Giving the design another name and folder.

namespace tervix::testing {
namespace {

std::string markerKeyOf(const CTervixProfile& profile) {
  return textOf(profile, &CTervixProfile::getMarkerKey);
}

// Name, path and folder of the design.
std::string designOf(CTervixProject& project) {
  return textOf(project, &CTervixProject::getDesignName) + " " +
         textOf(project, &CTervixProject::getDesignPath) + " " +
         textOf(project, &CTervixProject::getDesignFolderPath);
}

// A copy that fails, as a folder bears the name of the file to be made.
std::string copyError(const std::string& from, const std::string& to) {
  return "10108 Failed to copy file \"" + from + "\" to file \"" + to +
         "\". Check disk space and access permissions.";
}

class DesignRename : public InEachLayout {};
TERVIX_IN_EACH_LAYOUT(DesignRename);

TEST_P(DesignRename, GivesTheDesignItsNamePathAndFolder) {
  SampleProject amp(GetParam());
  std::string file = withBackslashes(amp.path("D/old.dsn"));
  EXPECT_EQ(amp->renameDesign(arg("pre"), file), 0u);
  EXPECT_EQ(file, amp.path("D/old.dsn"));
  EXPECT_EQ(designOf(*amp), "pre " + amp.path("D/pre.dsn") + " " + amp.path("D"));
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(DesignRename, GivesEveryProfileItsMarkerKey) {
  SampleProject amp(GetParam(), twoSchematics());
  EXPECT_EQ(amp->renameDesign(arg("pre"), arg(amp.folder() + "/pre.dsn")), 0u);
  for (std::size_t profile = 0; profile < 3; ++profile)
    EXPECT_EQ(markerKeyOf(amp.profile(profile)),
              "pre-" + amp.schematicOf(profile) + "-" + amp.nameOf(profile) + ".mrk");
}

TEST(DesignRenameOfSimulations, MovesNothing) {
  for (const Layout layout : {Layout::kDesignSimulation, Layout::kProjectSimulation}) {
    SampleProject amp(layout, twoSchematics());
    const auto files = amp.snapshot();
    const Lines places = placesOf(*amp);
    EXPECT_EQ(amp->renameDesign(arg("pre"), arg(amp.path("D/pre.dsn"))), 0u);
    EXPECT_EQ(amp.snapshot(), files);
    EXPECT_EQ(placesOf(*amp), places);
    EXPECT_EQ(lastError(), kOtherError);
  }
}

TEST(DesignRenameOfFrontEndTwo, CopiesEveryProfilesFilesToTheNewName) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  Files expected(amp);
  expected.copy("P/amp-", "P/pre-");
  for (const char* profile : {"TOP-tran", "TOP-ac", "SUB-dc"})
    expected.rewriteSim(std::string("P/pre-") + profile + ".sim", std::string("pre-") + profile,
                        "amp");
  EXPECT_EQ(amp->renameDesign(arg("pre"), arg(amp.path("P/amp.dsn"))), 0u);
  EXPECT_EQ(amp.snapshot(), expected);
  const std::string p = amp.path("P");
  EXPECT_EQ(placesOf(*amp),
            (Lines{"amp " + p + "/amp.tvp " + p, "TOP " + p + " " + p,
                   "tran " + p + "/pre-TOP-tran.sim " + p, "ac " + p + "/pre-TOP-ac.sim " + p,
                   "SUB " + p + " " + p, "dc " + p + "/pre-SUB-dc.sim " + p}));
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(DesignRenameOfFrontEndOne, CopiesTheFilesToTheLongName) {
  SampleProject amp(Layout::kProjectOther);
  Files expected(amp);
  expected.copy("amp/cfg_analog/tran.", "amp/cfg_analog/pre-amp-tran.");
  expected.rewriteSim("amp/cfg_analog/pre-amp-tran.sim", "pre-amp-tran", "amp");
  EXPECT_EQ(amp->renameDesign(arg("pre"), arg(amp.folder() + "/amp")), 0u);
  EXPECT_EQ(amp.snapshot(), expected);
  EXPECT_EQ(textOf(amp.profile(), &CTervixNode::getPath), amp.folder() + "/pre-amp-tran.sim");
}

TEST(DesignRenameOfFrontEndTwo, MovesTheSchematicsButNotTheProfilesToTheDesignsFolder) {
  SampleProject amp(Layout::kDesignOther);
  const std::string p = amp.path("P");
  const std::string d = amp.path("D");
  EXPECT_EQ(amp->renameDesign(arg("pre"), arg(d + "/amp.dsn")), 0u);
  EXPECT_EQ(placesOf(*amp), (Lines{"amp " + p + "/amp.tvp " + p, "TOP " + d + " " + d,
                                   "tran " + p + "/pre-TOP-tran.sim " + p}));
  EXPECT_FALSE(isFolder(d));
}

TEST(DesignRenameOfFrontEndTwo, ToTheSameNameRewritesTheProfileInItsPlace) {
  SampleProject amp(Layout::kDesignOther);
  Files expected(amp);
  expected.rewriteSim("P/amp-TOP-tran.sim", "amp-TOP-tran", "amp");
  EXPECT_EQ(amp->renameDesign(arg("amp"), arg(amp.path("P/amp.dsn"))), 0u);
  EXPECT_EQ(amp.snapshot(), expected);
}

TEST(DesignRenameOfFrontEndTwo, LeavesFilesOfTheNewNameAsTheyAre) {
  SampleProject amp(Layout::kDesignOther);
  amp.disk().file("P/pre-TOP-tran.dat", "newer");
  amp.disk().file("P/pre-TOP-tran.sim", "Own = 1\nNetlistFile=x\n ProjectFile=x\nProjectFile=x\n");
  EXPECT_EQ(amp->renameDesign(arg("pre"), arg(amp.path("P/amp.dsn"))), 0u);
  EXPECT_EQ(contentOf(amp.path("P/pre-TOP-tran.dat")), "newer");
  EXPECT_EQ(asText(contentOf(amp.path("P/pre-TOP-tran.sim"))),
            "Own = 1\nNetlistFile= \"pre-TOP-tran.sim.cir\" \n ProjectFile=x\n"
            "ProjectFile= \"amp.tvp\" \n");
}

TEST(DesignRenameOfFrontEndTwo, DropsTheStoredRunFiles) {
  SampleProject amp(Layout::kDesignOther);
  amp.profile().setDatFilePath(arg("/d/x.dat"));
  amp->renameDesign(arg("pre"), arg(amp.path("P/amp.dsn")));
  EXPECT_EQ(textOf(amp.profile(), &CTervixProfile::getDatFilePath), "");
}

TEST(DesignRenameWithAFailingProfile, GoesOnAndAnswersForTheLast) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  const std::string blocked = amp.disk().folder("P/pre-TOP-tran.dat");
  EXPECT_EQ(amp->renameDesign(arg("pre"), arg(amp.path("P/amp.dsn"))), 0u);
  EXPECT_EQ(lastError(), copyError(amp.path("P/amp-TOP-tran.dat"), blocked));
  EXPECT_TRUE(isFolder(blocked));
  for (const char* file : {"TOP-tran.out", "TOP-ac.dat", "SUB-dc.sim"})
    EXPECT_TRUE(isFile(amp.path("P/pre-") + file)) << file;
}

TEST(DesignRenameWithAFailingProfile, FailsWhenItIsTheLast) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  const std::string blocked = amp.disk().folder("P/pre-SUB-dc.sim");
  EXPECT_EQ(amp->renameDesign(arg("pre"), arg(amp.path("P/amp.dsn"))), 10108u);
  EXPECT_EQ(lastError(), copyError(amp.path("P/amp-SUB-dc.sim"), blocked));
  EXPECT_TRUE(isFile(amp.path("P/pre-TOP-ac.sim")));
  EXPECT_FALSE(isFile(amp.path("P/pre-SUB-dc.dat")));
}

TEST_P(DesignRename, WithoutAFolderChangesTheNameOnly) {
  SampleProject amp(GetParam());
  const auto files = amp.snapshot();
  const Lines places = placesOf(*amp);
  const std::string design = designOf(*amp);
  const std::string key = markerKeyOf(amp.profile());
  EXPECT_EQ(amp->renameDesign(arg("pre"), arg("pre.dsn")), 1u);
  EXPECT_EQ(designOf(*amp), "pre" + design.substr(3));
  EXPECT_EQ(markerKeyOf(amp.profile()), key);
  EXPECT_EQ(placesOf(*amp), places);
  EXPECT_EQ(amp.snapshot(), files);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(DesignRename, ToAnEmptyNameChangesNothing) {
  SampleProject amp(GetParam());
  const auto files = amp.snapshot();
  const Lines places = placesOf(*amp);
  const std::string design = designOf(*amp);
  std::string file = "\\D\\pre.dsn";
  EXPECT_EQ(amp->renameDesign(arg(""), file), 1u);
  EXPECT_EQ(file, "\\D\\pre.dsn");
  EXPECT_EQ(designOf(*amp), design);
  EXPECT_EQ(placesOf(*amp), places);
  EXPECT_EQ(amp.snapshot(), files);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(DesignRename, OfAProjectWithoutProfilesSucceeds) {
  ProjectPlan plan;
  plan.profiles.clear();
  SampleProject amp(GetParam(), plan);
  const auto files = amp.snapshot();
  EXPECT_EQ(amp->renameDesign(arg("pre"), arg(amp.folder() + "/pre.dsn")), 0u);
  EXPECT_EQ(amp.snapshot(), files);
}

TEST(DesignRenameOfSimulations, InTheRootOfTheDiskNeedsNoFolderName) {
  for (const Layout layout : {Layout::kDesignSimulation, Layout::kProjectSimulation}) {
    SampleProject amp(layout);
    EXPECT_EQ(amp->renameDesign(arg("pre"), arg("\\old.dsn")), 0u);
    EXPECT_EQ(designOf(*amp), "pre /pre.dsn ");
  }
}

// Whatever the name, what was there stays as it was.
TEST_P(DesignRename, ToAnOddNameLosesNothing) {
  for (const std::string& name :
       {std::string("a/b"), std::string(".."), std::string("../x"), std::string("a\\b"),
        std::string("%s%n"), std::string("q\"uo\nte"), std::string("\xc3\xa4\xff"),
        std::string("AMP"), std::string(300, 'x'), std::string(5000, 'y')}) {
    SampleProject amp(GetParam(), twoSchematics());
    const auto before = amp.snapshot();
    amp->renameDesign(arg(std::string(name)), arg(amp.folder() + "/amp.dsn"));
    const auto after = amp.snapshot();
    // Where the disk takes both for one name, the files are renamed to themselves and rewritten.
    const bool isOneName = name == "AMP" && isFile(amp.folder() + "/AMP.dsn");
    for (const auto& [file, content] : before)
      EXPECT_EQ(after.count(file) == 0                                ? "(gone)"
                : isOneName && file.find(".sim") != std::string::npos ? content
                                                                      : after.at(file),
                content)
          << name;
    EXPECT_EQ(textOf(*amp, &CTervixProject::getDesignName), name);
  }
}

TEST(DesignRenameOfFrontEndTwo, ToANameThatTheFileSystemCannotHoldTellsTheCopyThatFailed) {
  SampleProject amp(Layout::kDesignOther);
  const std::string name(300, 'x');
  EXPECT_EQ(amp->renameDesign(arg(std::string(name)), arg(amp.path("P/amp.dsn"))), 10108u);
  EXPECT_EQ(lastError(),
            copyError(amp.path("P/amp-TOP-tran.sim"), amp.path("P/" + name + "-TOP-tran.sim")));
}

TEST(DesignRenameOfFrontEndTwo, ToOneStringForNameAndFileTakesItForBoth) {
  SampleProject amp(Layout::kDesignSimulation);
  std::string text = "\\d\\x";
  EXPECT_EQ(amp->renameDesign(text, text), 0u);
  EXPECT_EQ(text, "/d/x");
  EXPECT_EQ(designOf(*amp), "/d/x /d//d/x.dsn /d");
}

} // namespace
} // namespace tervix::testing
