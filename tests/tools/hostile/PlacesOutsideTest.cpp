#include <filesystem>
#include <functional>

#include "tests/tools/ChangedSample.h"
#include "tests/tools/EntriesOnDisk.h"

// Projects that point out of themselves, by paths and by links. No command writes or removes what
// lies there.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

const std::string kTop = "amp-TervixFiles/TOP/";

// A copy of a sample, and beside it a folder of somebody else.
struct Neighbours {
  SampleCopy project;
  TemporaryFolder outside;

  explicit Neighbours(std::size_t sample) : project(allSamples().at(sample)) {
    const SampleCopy other(allSamples().at(0));
    fs::copy(other.path(kTop + "tran"), outside.path("x"));
    fs::copy_file(other.path(kTop + "tran.sim"), outside.path("x.sim"));
    fs::copy_file(other.path("amp.dsn"), outside.path("other.dsn"));
    outside.file("models.lib", "* somebody's\n");
  }

  void replace(const std::string& name, const std::string& from, const std::string& to) const {
    const fs::path file = fs::path(project.folder()) / name; // which may be full already
    std::string text = contentOf(file.string());
    const std::size_t at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    writeFile(file.string(), text.replace(at, from.size(), to));
  }
  // What bears the name moves outside, and a link leads there.
  void moveOut(const std::string& name) const {
    const std::string place = outside.path("moved");
    fs::rename(project.path(name), place);
    fs::create_symlink(place, project.path(name));
  }
  void link(const std::string& target, const std::string& name) const {
    fs::create_symlink(target, project.path(name));
  }
  std::string wayOut() const {
    return fs::path(outside.path()).lexically_relative(project.folder()).generic_string();
  }
};

struct Trap {
  const char* title;
  std::function<void(const Neighbours&)> set;
  Arguments meant = {};   // commands, by their first words, that are about what lies outside
  std::size_t sample = 0; // in which it is set
};

std::ostream& operator<<(std::ostream& stream, const Trap& trap) {
  return stream << trap.title;
}

const std::vector<Trap>& trapsWithFolders() {
  static const std::vector<Trap> all = {
      {"ProfilesByRelativeAndFullPath",
       [](const Neighbours& it) {
         it.replace("amp.tvp", "\"./amp-TervixFiles/TOP/tran.sim\"",
                    "\"" + it.wayOut() + "/x.sim\", \"" + it.outside.path("x.sim") +
                        "\", \"./amp-TervixFiles/TOP/tran.sim\"");
       }},
      {"ADesignByRelativePath",
       [](const Neighbours& it) {
         it.replace("amp.tvp", "\"amp.dsn\"", "\"" + it.wayOut() + "/other.dsn\"");
       },
       {"schematic", "design"}},
      {"ModelsByFullPath",
       [](const Neighbours& it) {
         it.replace("amp.tvp", "opamp.lib", it.outside.path("models.lib"));
       }},
      {"RunFilesOfAProfile",
       [](const Neighbours& it) {
         std::string text = "DataFile = \"../../" + it.wayOut() + "/x/tran.dat\"\nOutFile = \"" +
                            it.outside.path("x/tran.out") + "\"\n";
         writeFile(it.project.path(kTop + "tran.sim"),
                   text + contentOf(it.project.path(kTop + "tran.sim")));
       }},
      {"ALinkForAProfilesFile", [](const Neighbours& it) { it.moveOut(kTop + "tran.sim"); }},
      {"ALinkForAProfilesFolder", [](const Neighbours& it) { it.moveOut(kTop + "tran"); }},
      {"ALinkForASchematicsFolder",
       [](const Neighbours& it) { it.moveOut("amp-TervixFiles/TOP"); }},
      {"ALinkForTheFilesFolder", [](const Neighbours& it) { it.moveOut("amp-TervixFiles"); }},
      {"ALinkForAnIncludeList",
       [](const Neighbours& it) { it.moveOut(kTop + "tran/tran_profile.inc"); }},
      {"ALinkForTheProjectFile", [](const Neighbours& it) { it.moveOut("amp.tvp"); }},
      {"ALinkForTheDesignFile", [](const Neighbours& it) { it.moveOut("amp.dsn"); }},
      {"LinksForWhatIsToBeMade",
       [](const Neighbours& it) {
         for (const char* name : {"amp-TervixFiles/TOP/new", "amp-TervixFiles/NEW",
                                  "new-TervixFiles", "new.tvp", "new.dsn"})
           it.link(it.outside.path(), name);
         it.link(it.outside.path("nothing"), kTop + "new.sim");
       }},
      {"LinksInALoop",
       [](const Neighbours& it) {
         it.link(".", kTop + "tran/here");
         it.link("..", kTop + "tran/up");
       }},
  };
  return all;
}

// The same where a profile has no folder, and where the project is in a folder of its own.
std::vector<Trap> trapsInOtherLayouts() {
  const auto out = [](std::string name) {
    return [name = std::move(name)](const Neighbours& it) { it.moveOut(name); };
  };
  const auto linksForWhatIsToBeMade = [](const std::string& folder, const Arguments& names) {
    return [folder, names](const Neighbours& it) {
      for (const std::string& name : names)
        it.link(it.outside.path(), folder + name);
      it.link(it.outside.path("nothing"), folder + "new.sim");
    };
  };
  return {
      {"FlatALinkForAProfilesFile", out("amp-TOP-tran.sim"), {}, 1},
      {"FlatALinkForAFileOfARun", out("amp-TOP-tran.dat"), {}, 1},
      {"FlatLinksForWhatIsToBeMade",
       linksForWhatIsToBeMade("", {"amp-TOP-new.sim", "amp-TOP-new.dat", "amp-NEW-tran.sim",
                                   "new-TOP-tran.sim", "new.tvp", "new.dsn"}),
       {},
       1},
      {"WorkspaceALinkForTheProfilesFolder", out("amp/tvx_sim_1/profiles"), {}, 2},
      {"WorkspaceALinkForAProfilesFolder", out("amp/tvx_sim_1/profiles/tran"), {}, 2},
      {"WorkspaceALinkForAnIncludeList",
       out("amp/tvx_sim_1/profiles/tran/tran_profile.inc"),
       {},
       2},
      {"WorkspaceLinksForWhatIsToBeMade",
       linksForWhatIsToBeMade("amp/tvx_sim_1/profiles/", {"new"}),
       {},
       2},
      {"AnalogALinkForAFileOfARun", out("flt/cfg_analog/ac.dat"), {}, 3},
      {"AnalogLinksForWhatIsToBeMade",
       linksForWhatIsToBeMade("flt/cfg_analog/", {"new.dat", "new.sim.cir", "new.tvp"}),
       {},
       3},
  };
}

std::vector<Trap> traps() {
  std::vector<Trap> all = trapsWithFolders();
  for (Trap& trap : trapsInOtherLayouts())
    all.push_back(std::move(trap));
  return all;
}

class Trapped : public ::testing::TestWithParam<Trap> {};

std::vector<Arguments> changes(const SampleCopy& project, const std::string& profile,
                               const std::string& archive) {
  const std::string file = project.project();
  return {{"profile", "add", file, "new"},
          {"profile", "copy", file, profile, "new"},
          {"profile", "rename", file, profile, "new"},
          {"profile", "delete", file, profile},
          {"profile", "activate", file, "ac"},
          {"schematic", "add", file, "new"},
          {"schematic", "rename", file, "TOP", "NEW"},
          {"schematic", "delete", file, "BIAS"},
          {"design", "rename", file, "new"},
          {"project", "rename", file, "new"},
          {"archive", file, archive},
          {"check", "--fix", file},
          {"lib", "add", file, profile, "--kind", "library", "added.lib"},
          {"lib", "remove", file, profile, "--kind", "library", "cable.lib"}};
}

bool isMeant(const Trap& trap, const Arguments& command) {
  for (const std::string& word : trap.meant)
    if (command.front() == word)
      return true;
  return false;
}

TEST_P(Trapped, LeavesWhatLiesOutside) {
  const std::size_t count = changes(SampleCopy(allSamples().at(0)), "", "").size();
  const std::string profile = GetParam().sample == 3 ? "ac" : "tran";
  for (std::size_t number = 0; number < count; ++number) {
    const Neighbours neighbours(GetParam().sample);
    GetParam().set(neighbours);
    const TemporaryFolder archive;
    const Arguments command = changes(neighbours.project, profile, archive.path("archive"))[number];
    if (isMeant(GetParam(), command))
      continue;
    const EntriesOnDisk before = entriesOf(neighbours.outside.path());
    const Files project = snapshotOf(neighbours.project.folder());
    const ToolRun run = runTool(command);
    const std::string what = command[0] + " " + command[1];
    expectUntouched(before, entriesOf(neighbours.outside.path()), what);
    // It is done, or refused before anything is touched.
    if (run.status != 0 && command.front() != "check") {
      EXPECT_NE(run.errors, "") << what;
      EXPECT_EQ(snapshotOf(neighbours.project.folder()), project) << what;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(By, Trapped, ::testing::ValuesIn(traps()),
                         [](const auto& tested) { return std::string(tested.param.title); });

} // namespace
