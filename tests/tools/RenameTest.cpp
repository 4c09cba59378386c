#include <filesystem>
#include <regex>
#include <sstream>

#include "tests/tools/ChangedSample.h"

// Renames of profiles, schematics, designs and projects, each against what the whole project should
// be afterwards: the names, bytes and the tree of the one before, with the new name in the old
// one's place.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

struct Replacement {
  std::string pattern;
  std::string text;
};

struct Rename {
  std::string title;
  int sample;
  Arguments command; // without the project file
  Arguments names;   // after it
  Arguments back;    // the names that undo it
  std::vector<Replacement> replaced;
  std::string newProject; // where the project file is then
};

std::ostream& operator<<(std::ostream& stream, const Rename& rename) {
  return stream << rename.title;
}

// A word between what is neither letter nor digit.
Replacement word(const std::string& from, const std::string& to) {
  return {"([^A-Za-z0-9]|^)" + from + "(?![A-Za-z0-9])", "$1" + to};
}

const std::vector<Rename>& renames() {
  static const std::vector<Rename> all = {
      {"DesignSimulationProfile",
       0,
       {"profile", "rename"},
       {"tran", "long_run"},
       {"long_run", "tran"},
       {word("tran", "long_run")},
       "amp.tvp"},
      {"DesignSimulationSchematic",
       0,
       {"schematic", "rename"},
       {"TOP", "Stage 1"},
       {"Stage 1", "TOP"},
       {word("TOP", "Stage 1")},
       "amp.tvp"},
      {"DesignSimulationOtherSchematic",
       0,
       {"schematic", "rename"},
       {"bias", "Bias"},
       {"BIAS", "BIAS"},
       {word("BIAS", "Bias")},
       "amp.tvp"},
      {"DesignSimulationDesign",
       0,
       {"design", "rename"},
       {"preamp"},
       {"amp"},
       {{"amp\\.dsn", "preamp.dsn"},
        {"amp-(TOP|BIAS)-", "preamp-$1-"},
        {"(\"design\": \\{\\s*\"name\": \")amp", "$1preamp"}},
       "amp.tvp"},
      {"DesignSimulationProject",
       0,
       {"project", "rename"},
       {"preamp"},
       {"amp"},
       {{"amp\\.tvp", "preamp.tvp"},
        {"amp-TervixFiles", "preamp-TervixFiles"},
        {"^(\\{\\s*\"version\": 1,\\s*\"name\": \")amp", "$1preamp"}},
       "preamp.tvp"},
      {"DesignOtherProfile",
       1,
       {"profile", "rename"},
       {"tran", "long_run"},
       {"long_run", "tran"},
       {word("tran", "long_run")},
       "amp.tvp"},
      {"DesignOtherSchematic",
       1,
       {"schematic", "rename"},
       {"top", "Stage 1"},
       {"Stage 1", "TOP"},
       {word("TOP", "Stage 1")},
       "amp.tvp"},
      {"DesignOtherDesign",
       1,
       {"design", "rename"},
       {"preamp"},
       {"amp"},
       {{"amp\\.dsn", "preamp.dsn"},
        {"amp-TOP", "preamp-TOP"},
        {"(\"design\": \\{\\s*\"name\": \")amp", "$1preamp"}},
       "amp.tvp"},
      {"DesignOtherProject",
       1,
       {"project", "rename"},
       {"preamp"},
       {"amp"},
       {{"amp\\.tvp", "preamp.tvp"}, {"^(\\{\\s*\"version\": 1,\\s*\"name\": \")amp", "$1preamp"}},
       "preamp.tvp"},
      {"ProjectSimulationProfile",
       2,
       {"profile", "rename"},
       {"tran", "long_run"},
       {"long_run", "tran"},
       {word("tran", "long_run")},
       "amp/tvx_sim_1/amp.tvp"},
      {"ProjectSimulationSchematic",
       2,
       {"schematic", "rename"},
       {"amp", "preamp"},
       {"preamp", "amp"},
       {word("amp", "preamp")},
       "preamp/tvx_sim_1/preamp.tvp"},
      {"ProjectSimulationDesign",
       2,
       {"design", "rename"},
       {"preamp"},
       {"amp"},
       {word("amp", "preamp")},
       "preamp/tvx_sim_1/preamp.tvp"},
      {"ProjectSimulationProject",
       2,
       {"project", "rename"},
       {"AMP"},
       {"amp"},
       {word("amp", "AMP")},
       "AMP/tvx_sim_1/AMP.tvp"},
      {"ProjectOtherProfile",
       3,
       {"profile", "rename"},
       {"step", "Pulse 2"},
       {"Pulse 2", "step"},
       {word("step", "Pulse 2")},
       "flt/cfg_analog/flt.tvp"},
      {"ProjectOtherSchematic",
       3,
       {"schematic", "rename"},
       {"flt", "filter"},
       {"filter", "flt"},
       {word("flt", "filter")},
       "filter/cfg_analog/filter.tvp"},
      {"ProjectOtherDesign",
       3,
       {"design", "rename"},
       {"filter"},
       {"flt"},
       {word("flt", "filter")},
       "filter/cfg_analog/filter.tvp"},
      {"ProjectOtherProject",
       3,
       {"project", "rename"},
       {"filter"},
       {"flt"},
       {word("flt", "filter")},
       "filter/cfg_analog/filter.tvp"},
  };
  return all;
}

std::string replacedIn(std::string text, const Rename& rename) {
  for (const Replacement& replacement : rename.replaced)
    text = std::regex_replace(text, std::regex(replacement.pattern), replacement.text);
  return text;
}

// Comments and the simulator's own settings name nothing of the project.
std::string rewritten(const std::string& file, const std::string& content, const Rename& rename) {
  const std::string extension = fs::path(file).extension().string();
  if (extension != ".sim" && extension != ".tvp" && extension != ".dsn")
    return content;
  std::istringstream lines(content);
  std::string text;
  for (std::string line; std::getline(lines, line);)
    text += (line.front() == '#' || contains(line, "Analysis") ? line : replacedIn(line, rename)) +
            "\n";
  return text;
}

class Renamed : public ::testing::TestWithParam<Rename> {
protected:
  const Rename& rename() const { return GetParam(); }

  ToolRun run(const std::string& project, const Arguments& names, const Arguments& options = {}) {
    Arguments arguments = rename().command;
    arguments.push_back(copy_.path(project));
    arguments.insert(arguments.end(), names.begin(), names.end());
    arguments.insert(arguments.end(), options.begin(), options.end());
    return runTool(arguments);
  }

  // What lies in the project's folder is compared with paths from there.
  nlohmann::ordered_json tree(const std::string& project) const {
    return comparable(shownAsJson({copy_.path(project)}), copy_.folder());
  }

  Files expectedFiles() const {
    Files expected;
    for (const auto& [file, content] : snapshotOf(copy_.folder()))
      expected[replacedIn(file, rename())] = rewritten(file, content, rename());
    return expected;
  }

  SampleCopy copy_{allSamples().at(static_cast<std::size_t>(GetParam().sample))};
  const std::string project_ = allSamples().at(static_cast<std::size_t>(GetParam().sample)).project;
};

std::string titleOf(const ::testing::TestParamInfo<Rename>& tested) {
  return tested.param.title;
}

INSTANTIATE_TEST_SUITE_P(All, Renamed, ::testing::ValuesIn(renames()), titleOf);

TEST_P(Renamed, HasEveryFileUnderTheNewNameAndNoByteLost) {
  const Files expected = expectedFiles();
  expectDone(run(project_, rename().names));
  EXPECT_EQ(snapshotOf(copy_.folder()), expected);
}

TEST_P(Renamed, ShowsTheSameTreeUnderTheNewName) {
  const std::string before = tree(project_).dump(2);
  expectDone(run(project_, rename().names));
  // Front end 1 has its profiles in the order of their names.
  EXPECT_EQ(tree(rename().newProject),
            comparable(nlohmann::ordered_json::parse(replacedIn(before, rename())), "nowhere"));
}

TEST_P(Renamed, IsAsBeforeWhenRenamedBack) {
  const Files before = snapshotOf(copy_.folder());
  expectDone(run(project_, rename().names));
  expectDone(run(rename().newProject, rename().back));
  EXPECT_EQ(snapshotOf(copy_.folder()), before);
}

TEST_P(Renamed, KeepsOldFilesWhenAskedTo) {
  const Files before = snapshotOf(copy_.folder());
  expectDone(run(project_, rename().names, {"--keep-old"}));
  const Files after = snapshotOf(copy_.folder());
  for (const auto& [file, content] : before)
    EXPECT_EQ(after.count(file), 1U) << file;
  tree(rename().newProject);
}

TEST_P(Renamed, IsNotTouchedByADryRunThatTellsEveryFile) {
  const Files before = snapshotOf(copy_.folder());
  const ToolRun dry = run(project_, rename().names, {"--dry-run", "--json"});
  expectDone(dry);
  EXPECT_EQ(snapshotOf(copy_.folder()), before);
  const auto plan = nlohmann::json::parse(dry.output);
  EXPECT_FALSE(plan["done"].get<bool>());
  Files told;
  for (const auto& step : plan["steps"])
    told[step["path"].get<std::string>()] = step["action"].get<std::string>();
  // Its steps name every file that comes to be or is rewritten.
  for (const auto& [file, content] : expectedFiles()) {
    const auto former = before.find(file);
    if (former == before.end() || former->second != content) {
      EXPECT_EQ(told.count(copy_.path(file)), 1U) << file;
    }
  }
}

TEST_P(Renamed, IsRefusedWhenTheNameIsNoneOrTheSame) {
  const Files before = snapshotOf(copy_.folder());
  for (const std::string bad : {"", ".", "..", "a/b", "a\\b", "a.b", "con", "a:b", " a", "a\nb"}) {
    Arguments names = rename().names;
    names.back() = bad;
    EXPECT_EQ(run(project_, names).status, 1) << bad;
  }
  Arguments same = rename().back;
  if (same.size() > 1)
    same.front() = same.back();
  expectRefused(run(project_, same), "already");
  EXPECT_EQ(snapshotOf(copy_.folder()), before);
}

TEST_P(Renamed, IsRefusedWhenAFileOfTheNewNameIsThere) {
  const Files before = snapshotOf(copy_.folder());
  const Files expected = expectedFiles();
  for (const auto& [file, content] : expected)
    if (before.count(file) == 0) {
      writeFile(copy_.path(file), "somebody's");
      break;
    }
  const Files withIt = snapshotOf(copy_.folder());
  expectRefused(run(project_, rename().names), "nothing was changed");
  EXPECT_EQ(snapshotOf(copy_.folder()), withIt);
}

} // namespace
