#include <algorithm>
#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/tools/ChangedSample.h"

// Changing the profiles of a project from the command line, in each layout.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

ToolRun profile(const std::string& action, Arguments arguments) {
  arguments.insert(arguments.begin(), {"profile", action});
  return runTool(arguments);
}

std::multiset<std::string> contentsOf(const Files& files, const std::set<std::string>& except) {
  std::multiset<std::string> contents;
  for (const auto& [name, content] : files)
    if (except.count(fs::path(name).extension().string()) == 0)
      contents.insert(content);
  return contents;
}

class ChangedProfile : public ChangedSample {
protected:
  std::set<std::string> profileNames() const {
    std::set<std::string> names;
    const auto tree = shownAsJson({copy_.project()});
    for (const auto& schematic : tree["schematics"])
      for (const auto& profile : schematic["profiles"])
        names.insert(profile["name"].get<std::string>());
    return names;
  }
};

INSTANTIATE_TEST_SUITE_P(All, ChangedProfile, ::testing::Range(0, 4), layoutName);

TEST_P(ChangedProfile, HasItsFilesUnderTheNewNameOfAProfile) {
  const Files before = files();
  const std::size_t count = filesNamed(name()).size();
  expectDone(profile("rename", {copy_.project(), name(), "renamed"}));
  EXPECT_EQ(filesNamed(name()), std::vector<std::string>());
  EXPECT_EQ(filesNamed("renamed").size(), count);
  // Nothing is lost: every file but those with names in them is there byte for byte.
  const std::set<std::string> rewritten = {".sim", ".tvp"};
  EXPECT_EQ(contentsOf(files(), rewritten), contentsOf(before, rewritten));
  const std::set<std::string> names = profileNames();
  EXPECT_EQ(names.count("renamed"), 1U);
  EXPECT_EQ(names.count(name()), 0U);
}

TEST_P(ChangedProfile, KeepsEveryOtherLineOfARenamedProfile) {
  const std::string oldSim = filesNamed(name() + ".sim").front();
  std::string expected = contentOf(copy_.path(oldSim));
  expectDone(profile("rename", {copy_.project(), name(), "renamed"}));
  const std::string text = contentOf(copy_.path(filesNamed("renamed.sim").front()));
  // The sample's text names the profile between quotes, slashes, dashes and dots only.
  for (const std::string before : {"\"", "/", "-"})
    for (const std::string after : {"\"", "/", "."})
      for (std::size_t place = 0;
           (place = expected.find(before + name() + after, place)) != std::string::npos;)
        expected.replace(place + 1, name().size(), "renamed");
  EXPECT_EQ(text, expected);
}

TEST_P(ChangedProfile, IsRenamedInCaseOnly) {
  const std::string upper = name() == "ac" ? "AC" : "TRAN";
  const std::size_t count = filesNamed(name()).size();
  expectDone(profile("rename", {copy_.project(), name(), upper}));
  EXPECT_EQ(filesNamed(name()), std::vector<std::string>());
  EXPECT_EQ(filesNamed(upper).size(), count);
  EXPECT_EQ(profileNames().count(upper), 1U);
}

TEST_P(ChangedProfile, KeepsOldFilesWhenAskedTo) {
  const Files before = files();
  expectDone(profile("rename", {copy_.project(), name(), "renamed", "--keep-old"}));
  const Files after = files();
  for (const auto& [file, content] : before)
    if (fs::path(file).extension() != ".tvp") {
      EXPECT_EQ(after.count(file) != 0 ? after.at(file) : "gone", content) << file;
    }
}

TEST_P(ChangedProfile, IsAsBeforeWhenACopyIsDeleted) {
  const Files before = files();
  const std::size_t count = filesNamed(name()).size();
  expectDone(profile("copy", {copy_.project(), name(), "duplicate"}));
  EXPECT_EQ(filesNamed("duplicate").size(), count);
  EXPECT_EQ(profileNames().count("duplicate"), 1U);
  EXPECT_EQ(profileNames().count(name()), 1U);
  expectDone(profile("delete", {copy_.project(), "duplicate"}));
  EXPECT_EQ(files(), before);
}

TEST_P(ChangedProfile, TellsOfACopiedNetlistThatWritesToTheOriginalsResults) {
  const ToolRun run = profile("copy", {copy_.project(), name(), "duplicate"});
  expectDone(run);
  EXPECT_TRUE(contains(run.output, "it still names \"")) << run.output;
  EXPECT_TRUE(contains(run.output, "have it written anew")) << run.output;
}

TEST_P(ChangedProfile, IsAsBeforeWhenANewProfileIsDeleted) {
  const Files before = files();
  expectDone(profile("add", {copy_.project(), "fresh"}));
  EXPECT_EQ(filesNamed("fresh").size(), 1U);
  EXPECT_EQ(profileNames().count("fresh"), 1U);
  expectDone(profile("delete", {copy_.project(), "fresh"}));
  EXPECT_EQ(files(), before);
}

TEST_P(ChangedProfile, HasAnActiveProfileForFrontEnd2) {
  expectDone(profile("add", {copy_.project(), "fresh"}));
  const ToolRun run = profile("activate", {copy_.project(), "fresh"});
  if (isFrontEnd2()) {
    expectDone(run);
    EXPECT_TRUE(contains(shown({copy_.project()}), "TOP-fresh  active"));
  } else {
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(contains(run.errors, "keeps no active profile")) << run.errors;
  }
}

TEST_P(ChangedProfile, IsNotTouchedByADryRun) {
  const Files before = files();
  const ToolRun run =
      profile("rename", {copy_.project(), name(), "renamed", "--dry-run", "--json"});
  expectDone(run);
  EXPECT_EQ(files(), before);
  const auto plan = nlohmann::json::parse(run.output);
  EXPECT_FALSE(plan["done"].get<bool>());
  // Every file that bears the name is told.
  std::size_t told = 0;
  for (const auto& step : plan["steps"])
    if (step.contains("from") &&
        contains(fs::path(step["from"].get<std::string>()).filename().string(), name()))
      ++told;
  EXPECT_EQ(told, static_cast<std::size_t>(
                      std::count_if(before.begin(), before.end(), [this](const auto& file) {
                        return contains(fs::path(file.first).filename().string(), name());
                      })));
  for (const char* action : {"copy", "delete"})
    expectDone(profile(action, action == std::string("copy")
                                   ? Arguments{copy_.project(), name(), "x", "--dry-run"}
                                   : Arguments{copy_.project(), name(), "--dry-run"}));
  EXPECT_EQ(files(), before);
}

TEST_P(ChangedProfile, RefusesNamesBeforeItTouchesAnything) {
  const Files before = files();
  for (const std::string bad :
       {"", ".", "..", "a/b", "a\\b", "a.b", "con", "NUL", "a:b", " a", "a\nb", "a\x7f"}) {
    for (const char* action : {"rename", "copy"})
      EXPECT_EQ(profile(action, {copy_.project(), name(), bad}).status, 1) << action << " " << bad;
    EXPECT_EQ(profile("add", {copy_.project(), bad}).status, 1) << bad;
  }
  EXPECT_EQ(profile("rename", {copy_.project(), name(), std::string(300, 'x')}).status, 1);
  // Its own name, one that is taken in another case, and a profile that is not there.
  EXPECT_EQ(profile("rename", {copy_.project(), name(), name()}).status, 1);
  expectDone(profile("add", {copy_.project(), "Other"}));
  EXPECT_EQ(profile("rename", {copy_.project(), name(), "oTHER"}).status, 1);
  EXPECT_EQ(profile("delete", {copy_.project(), "absent"}).status, 1);
  expectDone(profile("delete", {copy_.project(), "other"}));
  EXPECT_EQ(files(), before);
}

TEST_P(ChangedProfile, TakesEverythingBackWhenAFileCannotBeCopied) {
  // A FIFO among the profile's files: no copy of it can be made.
  const std::string sim = copy_.path(filesNamed(name() + ".sim").front());
  const std::string stem = sim.substr(0, sim.size() - 4);
  const std::string fifo = isSimulation() ? stem + "/pipe.dat" : stem + ".csd";
  ASSERT_TRUE(makePipe(fifo));
  const Files before = files();
  const ToolRun run = profile("rename", {copy_.project(), name(), "renamed"});
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(contains(run.errors, "could not be copied")) << run.errors;
  EXPECT_TRUE(contains(run.errors, "The project is as it was.")) << run.errors;
  EXPECT_EQ(files(), before);
  EXPECT_EQ(profileNames().count(name()), 1U);
}

TEST_P(ChangedProfile, CarriesWhatTheLibrarysTreeCopyStopsAt) {
  if (!isSimulation())
    return;
  const std::string sim = copy_.path(filesNamed(name() + ".sim").front());
  const std::string folder = sim.substr(0, sim.size() - 4);
  // Of several, as which of them the system lists first decides where the copy stops.
  for (const char* name : {"/README", "/zzz", "/AAA"})
    writeFile(folder + name, "no dot");
  writeFile(folder + "/v1.0/notes", "a folder with a dot");
  fs::create_directory(folder + "/empty");
  expectDone(profile("rename", {copy_.project(), name(), "renamed"}));
  const std::string renamed = fs::path(folder).parent_path().string() + "/renamed";
  for (const char* name : {"/README", "/zzz", "/AAA"})
    EXPECT_EQ(contentOf(renamed + name), "no dot");
  EXPECT_EQ(contentOf(renamed + "/v1.0/notes"), "a folder with a dot");
  EXPECT_TRUE(isFolder(renamed + "/empty"));
  EXPECT_FALSE(fs::exists(folder));
}

TEST_P(ChangedProfile, RenamesAProfileThatWasNeverRun) {
  expectDone(profile("add", {copy_.project(), "fresh"}));
  const Files before = files();
  expectDone(profile("rename", {copy_.project(), "fresh", "later"}));
  EXPECT_EQ(files().size(), before.size());
  EXPECT_EQ(filesNamed("fresh"), std::vector<std::string>());
  EXPECT_EQ(profileNames().count("later"), 1U);
}

TEST(ProfileCommand, AsksWhichSchematicIsMeant) {
  const SampleCopy copy(allSamples().at(0));
  expectDone(profile("add", {copy.project(), "tran", "--schematic", "BIAS"}));
  const ToolRun run = profile("rename", {copy.project(), "tran", "renamed"});
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(contains(run.errors, "--schematic")) << run.errors;
  expectDone(profile("rename", {copy.project(), "tran", "renamed", "--schematic", "bias"}));
  expectDone(profile("delete", {copy.project(), "TOP-tran"}));
}

// Such as a marker file of the schematic, which a profile of that name would have.
TEST_P(ChangedProfile, DoesNotTakeOverWhatHasANewNameAlready) {
  const std::string sim = copy_.path(filesNamed(name() + ".sim").front());
  const std::string stem = sim.substr(0, sim.size() - 4 - name().size());
  writeFile(stem + (isSimulation() ? "taken/mine.txt" : "taken.csd"), "mine");
  const Files before = files();
  for (const char* action : {"rename", "copy"})
    expectRefused(profile(action, {copy_.project(), name(), "taken"}),
                  "is there already and would become part of the new profile");
  EXPECT_EQ(files(), before);
}

TEST_P(ChangedProfile, OfFrontEnd1GoesWithItsFilesOnly) {
  if (isFrontEnd2())
    return;
  const Files before = files();
  expectRefused(profile("delete", {copy_.project(), name(), "--keep-old"}), "nothing would change");
  EXPECT_EQ(files(), before);
}

TEST(ProfileCommand, KeepsCommentsOfTheProjectFile) {
  const SampleCopy copy(allSamples().at(0));
  std::string expected = contentOf(copy.project());
  expectDone(profile("rename", {copy.project(), "ac", "sweep"}));
  const std::size_t place = expected.find("TOP/ac.sim");
  ASSERT_NE(place, std::string::npos);
  expected.replace(place, 10, "TOP/sweep.sim");
  EXPECT_EQ(contentOf(copy.project()), expected);
}

} // namespace
