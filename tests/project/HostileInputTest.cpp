
#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

#include "tests/project/LayoutTest.h"
#include "tests/support/System.h"

// Projects whose files are damaged, misleading or no files at all. None of this may crash, hang or
// change a file.

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

// What may stand where a file is expected.
struct Obstacle {
  const char* name;
  std::function<void(const std::string&)> put;
};

void PrintTo(const Obstacle& obstacle, std::ostream* stream) {
  *stream << obstacle.name;
}

const Obstacle kObstacles[] = {
    {"Nothing", [](const std::string&) {}},
    {"Folder", [](const std::string& path) { fs::create_directories(path); }},
    {"Pipe", [](const std::string& path) { ASSERT_TRUE(makePipe(path)); }},
    {"LinkLoop", [](const std::string& path) { fs::create_symlink(path, path); }},
    {"LinkToNothing", [](const std::string& path) { fs::create_symlink("/nowhere/x", path); }},
    {"LinkToDevice", [](const std::string& path) { fs::create_symlink("/dev/zero", path); }}};

using LayoutAndObstacle = std::tuple<Layout, Obstacle>;

class InPlaceOfAFile : public ::testing::TestWithParam<LayoutAndObstacle> {
protected:
  Layout layout() const { return std::get<0>(GetParam()); }
  void replace(const std::string& path) const {
    fs::remove_all(path);
    std::get<1>(GetParam()).put(path);
  }
  bool isDesignFrontEnd() const { return frontEndOf(layout()) == FRONTEND_ID_DESIGN_FILE; }

  TemporaryFolder folder;
  const std::string projectFile = writeProject(folder, layout());
};

std::string obstacleName(const ::testing::TestParamInfo<LayoutAndObstacle>& info) {
  return layoutName({std::get<0>(info.param), 0}) + std::get<1>(info.param).name;
}
INSTANTIATE_TEST_SUITE_P(EachLayout, InPlaceOfAFile,
                         ::testing::Combine(::testing::ValuesIn(kAllLayouts),
                                            ::testing::ValuesIn(kObstacles)),
                         obstacleName);

TEST_P(InPlaceOfAFile, OfTheProjectIsReported) {
  replace(projectFile);
  OpenedProject project(projectFile, frontEndOf(layout()));
  EXPECT_EQ(project->initialize(), 10109u);
  EXPECT_EQ(lastError(),
            "10109 Failed to read file \"" + projectFile + "\". Check the file syntax.");
}

TEST_P(InPlaceOfAFile, OfTheDesignIsReported) {
  replace(projectFile.substr(0, projectFile.size() - 4) + ".dsn");
  OpenedProject project(projectFile, frontEndOf(layout()));
  recordOtherError();
  EXPECT_EQ(project->initialize(), 0u);
  if (!isDesignFrontEnd()) {
    EXPECT_EQ(treeOf(*project), (Lines{"amp", "  tran"}));
    return;
  }
  EXPECT_EQ(lastError(),
            "10124 Project file \"" + projectFile + "\" does not contain any valid design.");
  EXPECT_EQ(treeOf(*project), Lines());
}

TEST_P(InPlaceOfAFile, OfAProfileIsPassedOver) {
  const ProjectPlan plan;
  const std::string sim = folder.path(simPathIn(layout(), plan, plan.profiles[0]));
  replace(sim);
  OpenedProject project(projectFile, frontEndOf(layout()));
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), isDesignFrontEnd() ? Lines{"TOP root"} : Lines{"amp"});
}

TEST_P(InPlaceOfAFile, OpenedAsAProfileMakesAnEmptyOrWholeProject) {
  const ProjectPlan plan;
  const std::string sim = folder.path(simPathIn(layout(), plan, plan.profiles[0]));
  replace(sim);
  OpenedProject project(sim, 0);
  EXPECT_EQ(project->initialize(), 0u);
  // The folders of the first front end tell where the project is, the others do not.
  EXPECT_EQ(treeOf(*project), isDesignFrontEnd() ? Lines() : Lines{"amp"});
}

TEST_P(InPlaceOfAFile, OfAnIncludeListIsPassedOver) {
  const ProjectPlan plan;
  const std::string sim = folder.path(simPathIn(layout(), plan, plan.profiles[0]));
  const std::string list = sim.substr(0, sim.size() - 4) + "/tran_profile.inc";
  fs::create_directories(fs::path(list).parent_path());
  replace(list);
  OpenedProject project(projectFile, frontEndOf(layout()));
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project).size(), 2u);
}

// ---- Damaged text ----

const char* const kMalformed[] = {
    "[\"Design Resources\"",
    "= 3",
    "\"unclosed",
    "[a]\n[a]\n",
    "x = 1\nx = 2\n",
    "a = [1, 2",
    "\xff\xfe\x00",
    "[\"Design Resources\"]\nFiles = ['\xff\xfe']\n",
    "[\"Design Resources\"]\nFiles = \"amp.dsn\"\nTERVIX_Output_File = 5\n"
    "[\"Tervix Resources\"]\n\"Model Libraries\" = {}\n",
    "\"Design Resources\" = 3\n\"Tervix Resources\" = 3\n",
};

class DamagedText : public LayoutTest {};
TERVIX_IN_EACH_LAYOUT(DamagedText);

TEST_P(DamagedText, OfAProjectFileIsReported) {
  const std::string projectFile = write();
  for (const char* text : kMalformed) {
    writeFile(projectFile, text);
    const auto before = snapshotOf(folder.path());
    OpenedProject project(projectFile, frontEnd());
    EXPECT_EQ(project->initialize(), 10109u) << text;
    EXPECT_EQ(lastError(),
              "10109 Failed to read file \"" + projectFile + "\". Check the file syntax.");
    EXPECT_EQ(snapshotOf(folder.path()), before);
  }
}

TEST_P(DamagedText, OfBinaryJunkIsReported) {
  const std::string projectFile = write();
  std::string junk;
  for (int i = 0; i < 200000; ++i)
    junk += static_cast<char>((i * 7919) >> 3);
  writeFile(projectFile, junk);
  OpenedProject project(projectFile, frontEnd());
  EXPECT_EQ(project->initialize(), 10109u);
}

TEST_P(DamagedText, OfADeeplyNestedProjectFileIsReported) {
  const std::string projectFile = write();
  writeFile(projectFile, "a = " + std::string(200000, '['));
  OpenedProject project(projectFile, frontEnd());
  EXPECT_EQ(project->initialize(), 10109u);
}

TEST_P(DamagedText, OfAProfileIsPassedOver) {
  const std::string projectFile = write();
  const std::string sim = simPath(ProjectPlan());
  std::string junk;
  for (int i = 0; i < 200000; ++i)
    junk += static_cast<char>((i * 7919) >> 3);
  for (const std::string& text : {std::string(), junk, std::string(100000, '"'),
                                  std::string(3000, '\n'), std::string(3000, '\0')}) {
    writeFile(sim, text);
    const auto before = snapshotOf(folder.path());
    OpenedProject project(projectFile, frontEnd());
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_EQ(treeOf(*project), isDesignFrontEnd() ? Lines{"TOP root"} : Lines{"amp"});
    OpenedProject fromProfile(sim, 0);
    EXPECT_EQ(fromProfile->initialize(), 0u);
    EXPECT_EQ(snapshotOf(folder.path()), before);
  }
}

TEST_P(DamagedText, OfALineOfAnyLengthIsReadInPieces) {
  const std::string projectFile = write();
  const std::string sim = simPath(ProjectPlan());
  writeFile(sim, std::string(1 << 20, '#') + "\n" + contentOf(sim));
  OpenedProject project(projectFile, frontEnd());
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), plannedTree());
}

// ---- Names ----

TEST_P(DamagedText, OfTheActiveProfileMarksNone) {
  ProjectPlan plan;
  for (const char* active : {"", "TOP-gone", "%s%n", "tran", "-"}) {
    plan.active = active;
    OpenedProject project(write(plan), frontEnd());
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_EQ(treeOf(*project), isDesignFrontEnd() ? (Lines{"TOP root", "  tran TOP-tran"})
                                                   : (Lines{"amp", "  tran"}));
    std::string name;
    EXPECT_EQ(project->getActiveProfile(name), 1u);
  }
}

class OddNames : public LayoutTest {};
TERVIX_IN_EACH_LAYOUT(OddNames);

TEST_P(OddNames, AreKept) {
  for (const std::string& odd :
       {std::string("50%s%n%d"), std::string("it's"), std::string("\xc3\xa4\xe2\x82\xac"),
        std::string("a b"), std::string("-"), std::string("%"), std::string(60, 'x')}) {
    ProjectPlan plan;
    plan.name = odd;
    plan.schematics = {isDesignFrontEnd() ? "S" + odd : odd};
    plan.root = plan.schematics[0];
    plan.profiles = {{plan.root, "p" + odd}};
    plan.active = plan.root + "-p" + odd;
    const std::string projectFile = write(plan);
    const auto before = snapshotOf(folder.path());
    const Lines tree = isDesignFrontEnd()
                           ? Lines{plan.root + " root", "  p" + odd + " " + plan.active + " active"}
                           : Lines{odd, "  p" + odd};
    OpenedProject project(projectFile, frontEnd());
    EXPECT_EQ(project->initialize(), 0u) << odd;
    EXPECT_EQ(treeOf(*project), tree) << odd;
    OpenedProject fromProfile(simPath(plan), 0);
    EXPECT_EQ(fromProfile->initialize(), 0u) << odd;
    EXPECT_EQ(treeOf(*fromProfile), tree) << odd;
    EXPECT_EQ(snapshotOf(folder.path()), before) << odd;
  }
}

TEST_P(OddNames, AppearInMessagesAsTheyAre) {
  for (const char* odd : {"50%s%n%s", "say \"so\"", "two\nlines", "\xc3\xa4\xff"}) {
    const std::string path = folder.path(std::string(odd) + "/cfg_analog/amp.tvp");
    OpenedProject project(path, frontEnd());
    EXPECT_EQ(project->initialize(), 10109u);
    EXPECT_EQ(lastError(), "10109 Failed to read file \"" + path + "\". Check the file syntax.");
  }
}

TEST_P(OddNames, TooLongForTheSystemAreReported) {
  for (std::size_t length : {std::size_t{300}, std::size_t{5000}, std::size_t{1} << 20}) {
    const std::string path = "/" + std::string(length, 'x') + "/cfg_analog/amp.tvp";
    OpenedProject project(path, frontEnd());
    EXPECT_EQ(project->initialize(), 10109u);
    const std::string message = "Failed to read file \"" + path + "\". Check the file syntax.";
    EXPECT_EQ(lastError(), "10109 " + message.substr(0, 1023));
    for (const char* ending : {".sim", ".aap", ".$ap"}) {
      OpenedProject run("/" + std::string(length, 'x') + "/amp-TervixFiles/x" + ending, 0);
      EXPECT_EQ(run->initialize(), 0u);
    }
  }
}

TEST_P(OddNames, WithAZeroByteAreCutThereByTheCaller) {
  const std::string projectFile = write();
  OpenedProject project(projectFile + std::string("\0.x", 3), frontEnd());
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), plannedTree());
}

class DesignFrontEnd : public ::testing::TestWithParam<Layout> {
protected:
  std::string list(const std::string& text) const {
    const std::string path = folder.path("P/amp.tvp");
    writeFile(path, "[\"Design Resources\"]\nFiles = ['amp.dsn']\n[\"Simulation Profiles\"]\n"
                    "Active = 'TOP-tran'\nFiles = [" +
                        text + "]\n");
    return path;
  }

  TemporaryFolder folder;
  const std::string written = writeProject(folder, GetParam());
  const std::string sim = simPathIn(GetParam(), ProjectPlan(), ProjectPlan().profiles[0]).substr(1);
};
INSTANTIATE_TEST_SUITE_P(EachLayout, DesignFrontEnd,
                         ::testing::Values(Layout::kDesignSimulation, Layout::kDesignOther),
                         layoutName);

TEST_P(DesignFrontEnd, ReportsADamagedDesign) {
  const std::string design = folder.path("P/amp.dsn");
  for (const char* text : {"[Design", "Design = 3", "[Design]\nSchematics = 'TOP'\n",
                           "[Design]\nRoot = 3\n", "[Design]\nSchematics = [3]\n", "\xff\xfe"}) {
    writeFile(design, text);
    OpenedProject project(written, 2);
    EXPECT_EQ(project->initialize(), 10110u) << text;
    EXPECT_EQ(lastError(), "10110 Failed to read the design file \"" + design + "\".");
  }
}

TEST_P(DesignFrontEnd, TakesAnEmptyDesignForOneWithoutSchematics) {
  writeFile(folder.path("P/amp.dsn"), "");
  OpenedProject project(list(""), 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), Lines());
}

TEST_P(DesignFrontEnd, TakesAProfileListedTwiceOnce) {
  OpenedProject project(list("'." + sim + "', '." + sim + "', '" + folder.path("P") + sim +
                             "', './.." + "/P" + sim + "'"),
                        2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran active"}));
}

TEST_P(DesignFrontEnd, TakesProfilesThatDifferInCaseOnlyAsOne) {
  ProjectPlan plan;
  plan.profiles = {{"TOP", "tran"}, {"TOP", "TRAN"}, {"top", "Tran"}};
  OpenedProject project(writeProject(folder, GetParam(), plan), 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran active"}));
}

TEST_P(DesignFrontEnd, TakesSchematicsThatDifferInCaseOnlyAsOne) {
  writeFile(folder.path("P/amp.dsn"),
            "[Design]\nSchematics = ['TOP', 'top', 'Top', 'TOP']\nRoot = 'tOp'\n");
  OpenedProject project(written, 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran active"}));
}

TEST_P(DesignFrontEnd, PassesOverSchematicsWithoutAName) {
  writeFile(folder.path("P/amp.dsn"), "[Design]\nSchematics = ['', 'TOP', '']\nRoot = ''\n");
  OpenedProject project(written, 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP", "  tran TOP-tran active"}));
}

TEST_P(DesignFrontEnd, PassesOverListedFilesThatAreNone) {
  OpenedProject project(list("'', '.', '/', './', 'x.sim', '//', 'C:', '" + std::string(9000, 'x') +
                             "', '." + sim + "'"),
                        2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran active"}));
}

TEST_P(DesignFrontEnd, TakesAProfileWithAnAbsolutePath) {
  OpenedProject project(list("'" + folder.path("P") + sim + "'"), 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran active"}));
}

TEST_P(DesignFrontEnd, TakesAProfileInAFolderOfTwoLetters) {
  folder.file("P/ab/x.sim", simText("x", "x.sim", "amp.dsn", "amp.tvp", "TOP", "", ""));
  OpenedProject project(list("'ab/x.sim', 'ab\\x.sim'"), 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  x TOP-x"}));
}

TEST_P(DesignFrontEnd, TakesQuotesAndLineEndsInNames) {
  writeFile(folder.path("P/amp.dsn"), "[Design]\nSchematics = [\"say \\\"so\\\"\", \"two\\nlines\","
                                      " \"nul\"]\nRoot = \"two\\nlines\"\n");
  OpenedProject project(list(""), 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"say \"so\"", "two\nlines root", "nul"}));
}

TEST_P(DesignFrontEnd, SurvivesManySchematics) {
  std::string names;
  for (int i = 0; i < 500; ++i)
    names += "'S" + std::to_string(i) + "',";
  writeFile(folder.path("P/amp.dsn"), "[Design]\nSchematics = [" + names + "]\nRoot = 'S499'\n");
  OpenedProject project(list(""), 2);
  EXPECT_EQ(project->initialize(), 0u);
  const Lines tree = treeOf(*project);
  ASSERT_EQ(tree.size(), 500u);
  EXPECT_EQ(tree.back(), "S499 root");
}

TEST_P(DesignFrontEnd, SurvivesAFilesFolderThatLoops) {
  fs::create_symlink(folder.path("P"), folder.path("P/loop"));
  OpenedProject project(list("'./loop/loop" + sim + "'"), 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran active"}));
}

} // namespace
} // namespace tervix::testing
