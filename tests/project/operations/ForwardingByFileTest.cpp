#include <functional>

#include "tests/project/operations/SampleProject.h"

// Operations on the profile of a ".sim" file.

namespace tervix::testing {
namespace {

constexpr VARIANTFILE_TYPE kLibrary = VARIANTFILE_TYPE_LIBRARY;
constexpr VARIANTFILE_TYPE kInclude = VARIANTFILE_TYPE_INCLUDE;

Answer topFile(CTervixProject& project, std::string sim, VARIANTFILE_TYPE type) {
  return answerOf(
      [&](std::string& file) { return project.getTopProfileLevelFile(file, sim, type); });
}
Answer nextFile(CTervixProject& project, std::string sim, VARIANTFILE_TYPE type) {
  return answerOf(
      [&](std::string& file) { return project.getNextProfileLevelFile(file, sim, type); });
}
Answer netFile(CTervixProject& project, std::string& sim) {
  return answerOf([&](std::string& file) { return project.getNetFileForProfile(file, sim); });
}

Lines variantFiles(CTervixProfile& profile, VARIANTFILE_TYPE type) {
  Lines files;
  std::string file;
  for (profile.getTopProfileLevelFile(file, type); !file.empty();
       profile.getNextProfileLevelFile(file, type))
    files.push_back(file);
  return files;
}
bool areUpdated(const CTervixProfile& profile) {
  bool updated = false;
  profile.areVariantsUpdated(updated);
  return updated;
}

class ForwardingByFile : public InEachLayout {
protected:
  // The status of an operation that only a simulation project has.
  static unsigned long ifSimulation(unsigned long status) {
    return isSimulation(GetParam()) ? status : 1;
  }
};
TERVIX_IN_EACH_LAYOUT(ForwardingByFile);

TEST_P(ForwardingByFile, SetsDataAndOutputFile) {
  SampleProject amp(GetParam());
  std::string data = fullPath("\\runs\\one.dat");
  std::string output = "one.out";
  EXPECT_EQ(amp->setDatFileForProfile(data, arg(amp.simPath())), 0u);
  EXPECT_EQ(amp->setOutFileForProfile(output, arg(amp.simPath())), 0u);
  EXPECT_EQ(data, fullPath("/runs/one.dat"));
  EXPECT_EQ(textOf(amp.profile(), &CTervixProfile::getDatFilePath), fullPath("/runs/one.dat"));
  EXPECT_EQ(textOf(amp.profile(), &CTervixProfile::getOutFilePath), amp.folderOf() + "/one.out");
  std::string none;
  EXPECT_EQ(amp->setDatFileForProfile(none, arg(amp.simPath())), 0u);
  EXPECT_EQ(textOf(amp.profile(), &CTervixProfile::getDatFilePath), "");
}

TEST_P(ForwardingByFile, WalksTheVariantFiles) {
  SampleProject amp(GetParam());
  amp->addProfileLevelFile(arg(amp.simPath()), arg("b.inc"), kInclude, false, false);
  const Answer end{ifSimulation(0), ""};
  EXPECT_EQ(topFile(*amp, amp.simPath(), kInclude),
            amp.isSimulationProject() ? (Answer{0, ".\\load.inc"}) : end);
  EXPECT_EQ(nextFile(*amp, amp.simPath(), kInclude),
            amp.isSimulationProject() ? (Answer{0, "b.inc"}) : end);
  EXPECT_EQ(nextFile(*amp, amp.simPath(), kInclude), end);
  EXPECT_EQ(topFile(*amp, amp.simPath(), kLibrary), end);
  EXPECT_EQ(nextFile(*amp, amp.simPath(), kLibrary), end);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ForwardingByFile, PassesBothFlagsOfAnAddition) {
  SampleProject amp(GetParam());
  const unsigned long status = ifSimulation(0);
  EXPECT_EQ(amp->addProfileLevelFile(arg(amp.simPath()), arg("a.inc"), kInclude, false, true),
            status);
  EXPECT_FALSE(areUpdated(amp.profile()) && amp.isSimulationProject());
  EXPECT_EQ(amp->addProfileLevelFile(arg(amp.simPath()), arg("z.inc"), kInclude, true, false),
            status);
  EXPECT_EQ(areUpdated(amp.profile()), amp.isSimulationProject());
  EXPECT_EQ(variantFiles(amp.profile(), kInclude),
            amp.isSimulationProject() ? (Lines{"a.inc", ".\\load.inc", "z.inc"}) : Lines());
}

TEST_P(ForwardingByFile, EmptiesOneListWhateverTheProjectType) {
  SampleProject amp(GetParam());
  amp->addProfileLevelFile(arg(amp.simPath()), arg("a.lib"), kLibrary, true, false);
  EXPECT_EQ(amp->deleteAllProfileLevelFiles(arg(amp.simPath()), kInclude, false), 0u);
  EXPECT_FALSE(areUpdated(amp.profile()));
  EXPECT_EQ(variantFiles(amp.profile(), kInclude), Lines());
  EXPECT_EQ(variantFiles(amp.profile(), kLibrary),
            amp.isSimulationProject() ? Lines{"a.lib"} : Lines());
  EXPECT_EQ(amp->deleteAllProfileLevelFiles(arg(amp.simPath()), kLibrary, true), 0u);
  EXPECT_TRUE(areUpdated(amp.profile()));
  EXPECT_EQ(variantFiles(amp.profile(), kLibrary), Lines());
}

TEST_P(ForwardingByFile, WritesTheIncludeListAndNothingElse) {
  SampleProject amp(GetParam());
  auto expected = amp.snapshot();
  if (amp.isSimulationProject()) {
    const std::string list = amp.folderOf() + "/tran_profile.inc";
    expected[list.substr(amp.disk().path().size() + 1)] =
        ".INC\t\".\\load.inc\" \n.LIB\t\"..\\lib\\a.lib\" \n";
  }
  amp->addProfileLevelFile(arg(amp.simPath()), arg("../lib/a.lib"), kLibrary, true, false);
  EXPECT_EQ(amp->writeProfileLevelVariants(arg(amp.simPath())), 0u);
  EXPECT_EQ(amp.snapshot(), expected);
  EXPECT_FALSE(areUpdated(amp.profile()));
}

TEST(ForwardingToAFolder, TellsThatTheIncludeListCannotBeWritten) {
  SampleProject amp(Layout::kDesignSimulation);
  const std::string list = amp.folderOf() + "/tran_profile.inc";
  std::filesystem::remove(list);
  std::filesystem::create_directory(list);
  EXPECT_EQ(amp->writeProfileLevelVariants(arg(amp.simPath())), 10106u);
  EXPECT_EQ(lastError(), "10106 Failed to open file \"" + list +
                             "\" for writing. Check disk space and write permissions on the "
                             "parent directory.");
  EXPECT_TRUE(areUpdated(amp.profile()));
  std::filesystem::remove(list);
}

TEST_P(ForwardingByFile, RefusesATypeOutsideTheTable) {
  SampleProject amp(GetParam());
  const std::string refused =
      amp.isSimulationProject() ? "10112 Invalid profile level variant type." : kOtherError;
  const unsigned long status = ifSimulation(10112);
  const std::string sim = amp.simPath();
  for (const int value : {-1, 3}) {
    const auto type = static_cast<VARIANTFILE_TYPE>(value);
    const auto expectRefused = [&](unsigned long answered) {
      EXPECT_EQ(answered, status);
      EXPECT_EQ(lastError(), refused);
      recordOtherError();
    };
    expectRefused(topFile(*amp, sim, type).status);
    expectRefused(nextFile(*amp, sim, type).status);
    expectRefused(amp->addProfileLevelFile(arg(amp.simPath()), arg("a.inc"), type, true, true));
    EXPECT_EQ(amp->deleteAllProfileLevelFiles(arg(amp.simPath()), type, true), 10112u);
    EXPECT_EQ(lastError(), "10112 Invalid profile level variant type.");
    recordOtherError();
  }
}

TEST_P(ForwardingByFile, GivesTheNetlistOfTheSchematic) {
  SampleProject amp(GetParam());
  std::string sim = amp.simPath();
  const std::string name = amp.schematicOf();
  EXPECT_EQ(netFile(*amp, sim),
            (Answer{0, amp.schematicFolder() + "/" + (amp.isSimulationProject() ? "" : "amp-") +
                           name + ".net"}));
  EXPECT_EQ(sim, amp.simPath());
}

// ---- How the profile is found ----

TEST_P(ForwardingByFile, RewritesThePathOnlyWhenItIsFoundByPath) {
  SampleProject amp(GetParam());
  std::string sim = withBackslashes(amp.simPath());
  const std::string given = sim;
  EXPECT_EQ(netFile(*amp, sim).status, 0u);
  EXPECT_EQ(sim, given);
  sim = withBackslashes(amp.simPath()) + ".bak";
  EXPECT_EQ(netFile(*amp, sim).status, 0u);
  EXPECT_EQ(sim, amp.simPath());
}

TEST_P(ForwardingByFile, FollowsARecordedRename) {
  SampleProject amp(GetParam());
  amp.setChangedName("tran", "pulse", RENAME_TYPE_PROFILE);
  const std::string old = amp.simPath();
  const std::string sim = old.substr(0, old.size() - 8) + "pulse.sim";
  EXPECT_EQ(amp->setDatFileForProfile(arg("/d/x.dat"), arg(std::string(sim))), 0u);
  EXPECT_EQ(textOf(amp.profile(), &CTervixProfile::getDatFilePath), "/d/x.dat");
}

TEST_P(ForwardingByFile, CanAnswerInTheStringThatAsks) {
  SampleProject amp(GetParam());
  std::string text = amp.simPath();
  EXPECT_EQ(amp->getTopProfileLevelFile(text, text, kInclude), ifSimulation(0));
  EXPECT_EQ(text, amp.isSimulationProject() ? ".\\load.inc" : "");
  text = amp.simPath();
  EXPECT_EQ(amp->getNextProfileLevelFile(text, text, kInclude), ifSimulation(0));
  EXPECT_EQ(text, "");
  text = amp.simPath();
  std::string sim = amp.simPath();
  EXPECT_EQ(amp->getNetFileForProfile(text, text), 0u);
  EXPECT_EQ(text, netFile(*amp, sim).text);
  text = amp.simPath();
  EXPECT_EQ(amp->setDatFileForProfile(text, text), 0u);
  EXPECT_EQ(textOf(amp.profile(), &CTervixProfile::getDatFilePath), amp.simPath());
}

// Calls every operation with the same path and expects the same miss of each.
void expectMiss(SampleProject& amp, const std::string& sim, unsigned long status,
                const std::string& error) {
  using Call = std::function<unsigned long(std::string&, std::string&)>;
  CTervixProject& project = *amp;
  const Call silent[] = {
      [&](std::string& text, std::string& path) {
        return project.setDatFileForProfile(text, path);
      },
      [&](std::string& text, std::string& path) {
        return project.setOutFileForProfile(text, path);
      },
      [&](std::string& text, std::string& path) {
        return project.addProfileLevelFile(path, text, kInclude, true, true);
      },
      [&](std::string&, std::string& path) {
        return project.deleteAllProfileLevelFiles(path, kInclude, true);
      },
      [&](std::string&, std::string& path) { return project.writeProfileLevelVariants(path); }};
  const Call answering[] = {[&](std::string& text, std::string& path) {
                              return project.getTopProfileLevelFile(text, path, kInclude);
                            },
                            [&](std::string& text, std::string& path) {
                              return project.getNextProfileLevelFile(text, path, kInclude);
                            },
                            [&](std::string& text, std::string& path) {
                              return project.getNetFileForProfile(text, path);
                            }};
  const auto expectMissOf = [&](const Call& call, const std::string& left) {
    recordOtherError();
    std::string text = kBefore;
    std::string path = sim;
    EXPECT_EQ(call(text, path), status) << sim;
    EXPECT_EQ(text, left) << sim;
    EXPECT_EQ(path, sim);
    EXPECT_EQ(lastError(), error) << sim;
  };
  for (const Call& call : silent)
    expectMissOf(call, kBefore);
  for (const Call& call : answering)
    expectMissOf(call, "");
}

TEST_P(ForwardingByFile, PassesOnThatTheFileDoesNotExist) {
  SampleProject amp(GetParam());
  const auto before = amp.snapshot();
  for (const std::string& sim :
       {std::string(), amp.path("none.sim"), amp.disk().path(), amp.file() + "/tran.sim",
        std::string("%s%n"), amp.path("\xc3\xa4\xff.sim"), amp.path("a\nb\"c.sim")})
    expectMiss(amp, sim, 10104, "10104 File \"" + sim + "\" does not exist.");
  EXPECT_EQ(amp.snapshot(), before);
}

TEST_P(ForwardingByFile, PassesOnThatTheFileIsNoProfile) {
  SampleProject amp(GetParam());
  const std::string junk = amp.disk().file("junk.sim", std::string("\0\xff\x01=\"\n", 6));
  expectMiss(amp, junk, 10121, "10121 Invalid simulation profile \"" + junk + "\".");
}

TEST_P(ForwardingByFile, RecordsNothingForAProfileThatTheProjectDoesNotKnow) {
  SampleProject amp(GetParam());
  const std::string sim = amp.disk().file(
      "other/new.sim", simText("new", "new.sim", "x.dsn", "x.tvp", "OTHER", "new.dat", "new.out"));
  expectMiss(amp, sim, 1, kOtherError);
}

TEST_P(ForwardingByFile, TakesAPathOfAnyLength) {
  SampleProject amp(GetParam());
  const std::string sim = "/" + std::string(100000, 'x') + ".sim";
  std::string path = sim;
  EXPECT_EQ(netFile(*amp, path), (Answer{10104, ""}));
  EXPECT_EQ(lastError().size(), 6 + 1023u);
}

} // namespace
} // namespace tervix::testing
