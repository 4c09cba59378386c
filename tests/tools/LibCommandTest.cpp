#include <array>
#include <filesystem>

#include <gtest/gtest.h>

#include "CTervixProfile.h"
#include "tests/support/System.h"
#include "tests/tools/ChangedSample.h"
#include "tests/tools/JsonKeys.h"

// Libraries, stimulus and include files of designs and profiles, from the command line.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

struct Kind {
  VARIANTFILE_TYPE type;
  std::string name;
  std::string item; // its list in a project file
  std::string file; // one to add
};

const std::array<Kind, 3> kKinds = {
    {{VARIANTFILE_TYPE_LIBRARY, "library", "\"Model Libraries\" = [", "./extra/bjt.lib"},
     {VARIANTFILE_TYPE_STIMULUS, "stimulus", "\"Stimulus Files\" = [", "./extra/step.stl"},
     {VARIANTFILE_TYPE_INCLUDE, "include", "\"Include Files\" = [", "./extra/rails.inc"}}};

ToolRun lib(const std::string& action, Arguments arguments) {
  arguments.insert(arguments.begin(), {"lib", action});
  return runTool(arguments);
}

// Done, with a warning for a file that is not there.
void expectDoneWithWarning(const ToolRun& run, const std::string& place) {
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "tervix: warning: \"" + place + "\" does not exist\n");
}

Json listed(Arguments arguments) {
  arguments.emplace_back("--json");
  const ToolRun run = lib("list", arguments);
  EXPECT_EQ(run.status, 0) << run.errors;
  return Json::parse(run.output, nullptr, false);
}

// A project file's text with one more element at the end of a list that stands on one line.
std::string withElement(std::string text, const std::string& list, const std::string& element) {
  const std::size_t begin = text.find(list) + list.size();
  const std::size_t end = text.find(']', begin);
  return text.insert(end, (end == begin ? "\"" : ", \"") + element + "\"");
}

class VariantsOfSample : public ChangedSample {
protected:
  // All profiles of the sample, with what is to be found of each.
  Json profiles() const { return listed({copy_.project()})["profiles"]; }
  std::string inSample(const std::string& path) const {
    return path.substr(copy_.folder().size() + 1);
  }
};

INSTANTIATE_TEST_SUITE_P(All, VariantsOfSample, ::testing::Range(0, 4), layoutName);

TEST_P(VariantsOfSample, AreListedAsShowKnowsThem) {
  const Json project = shownAsJson({copy_.project()});
  const Json list = listed({copy_.project()});
  EXPECT_EQ(list["version"], 1);
  EXPECT_EQ(list["project"], project["path"]);
  EXPECT_EQ(list["designLevelFiles"], project["designLevelFiles"]);
  std::size_t number = 0;
  for (const Json& schematic : project["schematics"])
    for (const Json& profile : schematic["profiles"]) {
      const Json& found = list["profiles"].at(number++);
      EXPECT_EQ(found["name"], profile["name"]);
      EXPECT_EQ(found["displayName"], profile["displayName"]);
      EXPECT_EQ(found["schematic"], schematic["name"]);
      EXPECT_EQ(found["profileLevelFiles"], profile["profileLevelFiles"]);
      const std::string name = profile["name"];
      EXPECT_EQ(found["includeList"], isSimulation() ? Json(profile["folder"].get<std::string>() +
                                                            "/" + name + "_profile.inc")
                                                     : Json());
    }
  EXPECT_EQ(list["profiles"].size(), number);
  expectKeysDocumented(list, "lib-command.md");
}

TEST_P(VariantsOfSample, AreListedByOwnerAndKind) {
  const Json all = listed({copy_.project()});
  const Json ofDesign = listed({copy_.project(), "--design"});
  EXPECT_EQ(ofDesign["designLevelFiles"], all["designLevelFiles"]);
  EXPECT_EQ(ofDesign["profiles"], Json::array());
  const Json ofProfile = listed({copy_.project(), name()});
  EXPECT_TRUE(ofProfile["designLevelFiles"].is_null());
  ASSERT_EQ(ofProfile["profiles"].size(), 1U);
  EXPECT_EQ(ofProfile["profiles"][0]["name"], name());
  EXPECT_EQ(listed({copy_.project(), "--schematic", schematic()})["profiles"].size(), 2U);
  for (const Kind& kind : kKinds) {
    Json expected = Json::array();
    for (const Json& file : all["designLevelFiles"])
      if (file["kind"] == kind.name)
        expected.push_back(file);
    EXPECT_EQ(listed({copy_.project(), "--kind", kind.name})["designLevelFiles"], expected);
  }
}

TEST_P(VariantsOfSample, OfTheDesignComeAndGoWithoutATrace) {
  const Files before = files();
  const std::string folder = fs::path(copy_.project()).parent_path().string();
  for (const Kind& kind : kKinds) {
    expectDoneWithWarning(lib("add", {copy_.project(), "--design", "--kind", kind.name, kind.file}),
                          folder + kind.file.substr(1));
    Files expected = before;
    std::string& text = expected[inSample(copy_.project())];
    text = withElement(text, kind.item, kind.file);
    EXPECT_EQ(files(), expected) << kind.name;
    const Json added = listed({copy_.project(), "--kind", kind.name})["designLevelFiles"].back();
    EXPECT_EQ(added, (Json{{"kind", kind.name},
                           {"name", kind.file},
                           {"path", folder + kind.file.substr(1)},
                           {"exists", false}}));
    expectDone(lib("remove", {copy_.project(), "--design", "--kind", kind.name, kind.file}));
    EXPECT_EQ(files(), before) << kind.name;
  }
}

TEST_P(VariantsOfSample, OfAProfileComeAndGoWithoutATrace) {
  if (!isSimulation())
    return;
  const Files before = files();
  for (const Json& profile : profiles())
    for (const Kind& kind : kKinds) {
      const std::string owner = profile["displayName"];
      const std::string folder =
          fs::path(profile["includeList"].get<std::string>()).parent_path().string();
      writeFile(folder + kind.file.substr(1), "there: no warning");
      const Files withFile = files();
      expectDone(lib("add", {copy_.project(), owner, "--kind", kind.name, kind.file}));
      EXPECT_EQ(
          listed({copy_.project(), owner, "--kind", kind.name})["profiles"][0]["profileLevelFiles"]
              .back()["path"],
          folder + kind.file.substr(1));
      expectDone(lib("remove", {copy_.project(), owner, "--kind", kind.name, kind.file}));
      EXPECT_EQ(files(), withFile) << owner << kind.name;
      fs::remove_all(folder + "/extra");
    }
  EXPECT_EQ(files(), before);
}

// What the library itself would have written; that ends lines as the system has it.
TEST_P(VariantsOfSample, OfAProfileAreWrittenAsTheLibraryWritesThem) {
  if (!isSimulation())
    return;
  const SampleCopy other(sample());
  for (const Json& profile : profiles()) {
    const std::string list = inSample(profile["includeList"]);
    const std::string folder = fs::path(list).parent_path().string();
    const std::string sim = other.path(folder + ".sim");
    const std::string own = profile["name"];
    CTervixProfile written(sim.c_str(), own.c_str(), nullptr, FRONTEND_ID_PROJECT_FILE,
                           PROJECT_TYPE_SIMULATION, nullptr);
    for (const Kind& kind : kKinds) {
      lib("add", {copy_.project(), profile["displayName"], "--kind", kind.name, kind.file});
      std::string file = kind.file;
      ASSERT_EQ(written.addProfileLevelFile(file, kind.type, true, false), 0U);
      ASSERT_EQ(written.writeProfileLevelVariants(), 0U);
      EXPECT_EQ(contentOf(copy_.path(list)), asText(contentOf(other.path(list)))) << kind.name;
    }
  }
}

TEST_P(VariantsOfSample, OfANewProfileMakeItsFolder) {
  if (!isSimulation())
    return;
  expectDone(runTool({"profile", "add", copy_.project(), "fresh"}));
  const Files before = files();
  const std::string path = listed({copy_.project(), "fresh"})["profiles"][0]["includeList"];
  const ToolRun planned =
      lib("add", {copy_.project(), "fresh", "--kind", "include", "a.inc", "--dry-run"});
  EXPECT_EQ(planned.output, "add include a.inc to profile " +
                                std::string(isFrontEnd2() ? "TOP-fresh" : "fresh") +
                                " (nothing is done)\n  make folder  " +
                                fs::path(path).parent_path().string() + "\n  make  " + path + "\n");
  EXPECT_EQ(files(), before);
  EXPECT_EQ(lib("add", {copy_.project(), "fresh", "--kind", "include", "a.inc"}).status, 0);
  EXPECT_EQ(contentOf(path), ".INC\t\"a.inc\" \n");
  EXPECT_EQ(lib("add", {copy_.project(), "fresh", "--kind", "library", "b.lib"}).status, 0);
  expectDone(lib("remove", {copy_.project(), "fresh", "--kind", "include", "a.inc"}));
  EXPECT_EQ(contentOf(path), ".LIB\t\"b.lib\" \n");
  expectDone(lib("remove", {copy_.project(), "fresh", "--kind", "library", "b.lib"}));
  EXPECT_EQ(files(), before);
}

TEST_P(VariantsOfSample, LeaveAFolderInWhichSomethingElseLies) {
  if (!isSimulation())
    return;
  expectDone(runTool({"profile", "add", copy_.project(), "fresh"}));
  const std::string path = listed({copy_.project(), "fresh"})["profiles"][0]["includeList"];
  const std::string result = fs::path(path).parent_path().string() + "/fresh.dat";
  writeFile(result, "a result");
  EXPECT_EQ(lib("add", {copy_.project(), "fresh", "--kind", "include", "a.inc"}).status, 0);
  expectDone(lib("remove", {copy_.project(), "fresh", "--kind", "include", "a.inc"}));
  EXPECT_FALSE(fs::exists(path));
  EXPECT_EQ(contentOf(result), "a result");
}

TEST_P(VariantsOfSample, AreNotTouchedByADryRun) {
  const Files before = files();
  std::vector<std::string> owners = {"--design"};
  if (isSimulation())
    owners.push_back(name());
  for (const std::string& owner : owners) {
    Arguments add = {copy_.project(), owner,       "--kind", "include",
                     "./new.inc",     "--dry-run", "--json"};
    const ToolRun run = lib("add", add);
    EXPECT_EQ(run.status, 0);
    const Json plan = Json::parse(run.output, nullptr, false);
    EXPECT_EQ(plan["done"], false);
    ASSERT_EQ(plan["steps"].size(), 1U) << run.output;
    EXPECT_EQ(plan["steps"][0]["action"], "rewrite");
    EXPECT_EQ(files(), before);
    const Json list = listed({copy_.project(), owner, "--kind", "include"});
    const Json present = owner == "--design" ? list["designLevelFiles"][0]["name"]
                                             : list["profiles"][0]["profileLevelFiles"][0]["name"];
    expectDone(lib("remove", {copy_.project(), owner, "--kind", "include", present, "--dry-run"}));
    EXPECT_EQ(files(), before);
  }
}

TEST(LibCommand, PrintsATable) {
  const SampleCopy copy(allSamples().at(2));
  const std::string folder = copy.path("amp/tvx_sim_1/");
  fs::remove(folder + "npn.lib");
  EXPECT_EQ(lib("list", {copy.project(), "--design"}).output, "design  in amp.tvp\n"
                                                              "  library  npn.lib     " +
                                                                  folder +
                                                                  "npn.lib     (missing)\n"
                                                                  "  include  supply.inc  " +
                                                                  folder + "supply.inc\n");
  EXPECT_EQ(lib("list", {copy.project(), "NOISE"}).output,
            "profile noise  in profiles/noise/noise_profile.inc\n"
            "  library   .\\band.lib           " +
                folder +
                "profiles/noise/band.lib\n"
                "  stimulus  .\\silence.stl        " +
                folder +
                "profiles/noise/silence.stl\n"
                "  include   ..\\..\\generator.inc  " +
                folder + "generator.inc\n");
  EXPECT_EQ(lib("list", {copy.project(), "--design", "--kind", "stimulus"}).output,
            "design  in amp.tvp\n  none\n");
}

TEST(LibCommand, SpellsStrangeNamesOut) {
  const SampleCopy copy(allSamples().at(1));
  writeFile(copy.project(),
            "[\"Tervix Resources\"]\n\"Model Libraries\" = [\"m\\u001b[2J.lib\"]\n");
  const std::string text = lib("list", {copy.project()}).output;
  EXPECT_EQ(text.find('\x1b'), std::string::npos);
  EXPECT_TRUE(contains(text, "  library  m\\x1b[2J.lib  ")) << text;
  EXPECT_EQ(listed({copy.project()})["designLevelFiles"][0]["name"], "m\x1b[2J.lib");
}

TEST(LibCommand, TellsOfAFileThatIsThereWhereItIsRun) {
  const SampleCopy copy(allSamples().at(0));
  const ToolRun run = runTool({"lib", "add", "amp.tvp", "dc", "--kind", "include", "supply.inc"},
                              {copy.folder(), {}});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors,
            "tervix: warning: \"" + copy.path("amp-TervixFiles/BIAS/dc/supply.inc") +
                "\" does not exist; from the folder of profile BIAS-dc the file here is "
                "\"../../../supply.inc\"\n");
}

TEST(LibCommand, WritesARelativePathSoThatItCountsAsOne) {
  const SampleCopy copy(allSamples().at(0));
  const std::string before = contentOf(copy.project());
  lib("add", {copy.project(), "--design", "--kind", "library", "ab/x.lib"});
  EXPECT_EQ(contentOf(copy.project()), withElement(before, kKinds[0].item, "./ab/x.lib"));
  EXPECT_EQ(listed({copy.project()})["designLevelFiles"][1]["path"], copy.path("ab/x.lib"));
  expectDone(lib("remove", {copy.project(), "--design", "--kind", "library", "ab/x.lib"}));
  EXPECT_EQ(contentOf(copy.project()), before);
  lib("add", {copy.project(), "dc", "--kind", "library", "ab/x.lib"});
  EXPECT_EQ(contentOf(copy.path("amp-TervixFiles/BIAS/dc/dc_profile.inc")),
            ".LIB\t\".\\ab\\x.lib\" \n");
}

TEST(LibCommand, TakesAFullPath) {
  const SampleCopy copy(allSamples().at(0));
  const std::string full = copy.path("supply.inc");
  expectDone(lib("add", {copy.project(), "dc", "--kind", "include", full}));
  const Json file = listed({copy.project(), "dc"})["profiles"][0]["profileLevelFiles"][0];
  EXPECT_EQ(file["path"], full);
  EXPECT_EQ(file["exists"], true);
  expectDone(lib("remove", {copy.project(), "dc", "--kind", "include", "../../../supply.inc"}));
}

TEST(LibCommand, TakesAPathThatBeginsWithADash) {
  const SampleCopy copy(allSamples().at(0));
  EXPECT_EQ(lib("add", {copy.project(), "dc", "--kind", "include", "--", "-x.inc"}).status, 0);
  EXPECT_EQ(contentOf(copy.path("amp-TervixFiles/BIAS/dc/dc_profile.inc")), ".INC\t\"-x.inc\" \n");
}

TEST(LibCommand, KeepsWhatAPersonWroteIntoAnIncludeList) {
  const SampleCopy copy(allSamples().at(0));
  const std::string list = copy.path("amp-TervixFiles/TOP/ac/ac_profile.inc");
  struct Case {
    const char* before;
    const char* after;
  };
  const std::vector<Case> cases = {
      {"* by hand\n\n.stmlib \"p.stl\" * late\n.Lib\t\"./a.lib\"\n\n* end\n",
       "* by hand\n\n.stmlib \"p.stl\" * late\n.Lib\t\"./a.lib\"\n.LIB\t\"new.lib\" \n\n* end\n"},
      {".inc \"a.inc\"\r\n.stmlib \"p.stl\"\r\n",
       ".inc \"a.inc\"\r\n.LIB\t\"new.lib\" \r\n.stmlib \"p.stl\"\r\n"},
      {".stmlib \"p.stl\"", ".LIB\t\"new.lib\" \n.stmlib \"p.stl\""},
      {".inc \"a.inc\"", ".inc \"a.inc\"\n.LIB\t\"new.lib\" "},
      {"* dropped by the library: \n.LIB \"UPPER.LIB\"\n",
       "* dropped by the library: \n.LIB \"UPPER.LIB\"\n.LIB\t\"new.lib\" \n"},
      {"* only a comment", "* only a comment\n.LIB\t\"new.lib\" "}};
  for (const Case& one : cases) {
    writeFile(list, one.before);
    EXPECT_EQ(lib("add", {copy.project(), "ac", "--kind", "library", "new.lib"}).status, 0);
    EXPECT_EQ(contentOf(list), one.after);
    expectDone(lib("remove", {copy.project(), "ac", "--kind", "library", "new.lib"}));
    EXPECT_EQ(contentOf(list), one.before);
  }
}

TEST(LibCommand, KeepsWhatAPersonWroteIntoAProjectFile) {
  const SampleCopy copy(allSamples().at(1));
  const std::string before = "# mine\r\n[\"Tervix Resources\"] # here\r\n"
                             "\"Model Libraries\" = [\r\n  # the vendor's\r\n"
                             "  'models\\a.lib', # version 2\r\n]\r\n\r\n# end";
  writeFile(copy.project(), before);
  EXPECT_EQ(listed({copy.project()})["designLevelFiles"][0]["name"], "models\\a.lib");
  EXPECT_EQ(lib("add", {copy.project(), "--design", "--kind", "library", "new.lib"}).status, 0);
  std::string expected = before;
  expected.insert(expected.find("]\r\n\r\n"), "  \"new.lib\",\r\n");
  EXPECT_EQ(contentOf(copy.project()), expected);
  expectDone(lib("remove", {copy.project(), "--design", "--kind", "library", "./NEW.lib"}));
  EXPECT_EQ(contentOf(copy.project()), before);
}

TEST(LibCommand, RemovesTheEntryInTheCaseThatIsGiven) {
  const SampleCopy copy(allSamples().at(1));
  const std::string head = "[\"Tervix Resources\"]\n\"Model Libraries\" = ";
  writeFile(copy.project(), head + "[\"A.lib\", \"a.lib\", \"./a.lib\"]\n");
  expectDone(lib("remove", {copy.project(), "--design", "--kind", "library", "a.lib"}));
  EXPECT_EQ(contentOf(copy.project()), head + "[\"A.lib\"]\n");
  expectDone(lib("remove", {copy.project(), "--design", "--kind", "library", "a.lib"}));
  EXPECT_EQ(contentOf(copy.project()), head + "[]\n");
}

TEST(LibCommand, MakesTheListThatAProjectFileLacks) {
  const SampleCopy copy(allSamples().at(1));
  writeFile(copy.project(), "# nothing yet\n");
  EXPECT_EQ(lib("add", {copy.project(), "--design", "--kind", "stimulus", "s.stl"}).status, 0);
  EXPECT_TRUE(contains(contentOf(copy.project()), "# nothing yet\n"));
  EXPECT_EQ(listed({copy.project()})["designLevelFiles"][0]["name"], "s.stl");
}

TEST(LibCommand, AsksWhichSchematicIsMeant) {
  const SampleCopy copy(allSamples().at(0));
  expectDone(runTool({"profile", "add", copy.project(), "tran", "--schematic", "BIAS"}));
  const Arguments add = {copy.project(), "tran", "--kind", "include", "../../../supply.inc"};
  expectRefused(lib("add", add), "name one with --schematic");
  Arguments chosen = add;
  chosen.insert(chosen.end(), {"--schematic", "bias"});
  expectDone(lib("add", chosen));
  EXPECT_TRUE(fs::exists(copy.path("amp-TervixFiles/BIAS/tran/tran_profile.inc")));
}

} // namespace
