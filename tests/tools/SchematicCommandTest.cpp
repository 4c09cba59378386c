#include <filesystem>

#include "tests/support/System.h"
#include "tests/tools/ChangedSample.h"

// Adding, renaming and deleting schematics from the command line, beyond what every rename keeps.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

ToolRun schematicCommand(const std::string& action, Arguments arguments) {
  arguments.insert(arguments.begin(), {"schematic", action});
  return runTool(arguments);
}

class ChangedSchematic : public ChangedSample {};

INSTANTIATE_TEST_SUITE_P(All, ChangedSchematic, ::testing::Range(0, 4), layoutName);

TEST_P(ChangedSchematic, IsAddedAndDeletedWhereADesignFileListsIt) {
  const Files before = files();
  const ToolRun added = schematicCommand("add", {copy_.project(), "Filter"});
  if (!isFrontEnd2()) {
    expectRefused(added, "has one schematic, its design");
    EXPECT_EQ(files(), before);
    return;
  }
  expectDone(added);
  EXPECT_TRUE(contains(shown({copy_.project()}), "Filter"));
  expectDone(runTool({"profile", "add", copy_.project(), "dc", "--schematic", "Filter"}));
  expectDone(schematicCommand("delete", {copy_.project(), "filter"}));
  EXPECT_EQ(files(), before);
}

TEST_P(ChangedSchematic, IsNotDeletedWhileTheDesignNeedsIt) {
  const Files before = files();
  expectRefused(schematicCommand("delete", {copy_.project(), schematic()}),
                isFrontEnd2() ? "is the root schematic" : "has one schematic, its design");
  EXPECT_EQ(files(), before);
}

TEST_P(ChangedSchematic, IsRefusedNamesThatAreTakenAndSchematicsThatAreNotThere) {
  const Files before = files();
  expectRefused(schematicCommand("rename", {copy_.project(), "absent", "x"}),
                "there is no schematic");
  if (isFrontEnd2()) {
    expectRefused(schematicCommand("add", {copy_.project(), "top"}),
                  "has a schematic \"TOP\" already");
    expectRefused(schematicCommand("delete", {copy_.project(), "absent"}), "there is no schematic");
    for (const std::string bad : {"", "..", "a/b", "a.b", "lpt1", "x ", "a\x01"})
      expectRefused(schematicCommand("add", {copy_.project(), bad}), "cannot be named");
  }
  EXPECT_EQ(files(), before);
}

TEST_P(ChangedSchematic, TakesEverythingBackWhenAFileCannotBeCopied) {
  const std::string sim = copy_.path(filesNamed(name() + ".sim").front());
  const std::string stem = sim.substr(0, sim.size() - 4);
  fs::create_directory_symlink("nowhere", isSimulation() ? stem + "/link.dat" : stem + ".csd");
  // A FIFO cannot be copied; a link can, as a link.
  ASSERT_TRUE(makePipe(isSimulation() ? stem + "/pipe.dat" : stem + ".prb"));
  const Files before = files();
  const ToolRun run = schematicCommand("rename", {copy_.project(), schematic(), "renamed"});
  expectRefused(run, "The project is as it was.");
  EXPECT_EQ(files(), before);
  shown({copy_.project()});
}

class SimulationSample : public ::testing::Test {
protected:
  Files files() const { return snapshotOf(copy_.folder()); }

  SampleCopy copy_{allSamples().at(0)};
};

TEST_F(SimulationSample, LosesAllOfADeletedSchematicAndNothingElse) {
  const Files before = files();
  expectDone(schematicCommand("delete", {copy_.project(), "bias"}));
  for (const auto& [file, content] : before)
    EXPECT_EQ(fs::exists(copy_.path(file)), !contains(file, "/BIAS/")) << file;
  EXPECT_FALSE(fs::exists(copy_.path("amp-TervixFiles/BIAS")));
  EXPECT_FALSE(contains(contentOf(copy_.project()), "BIAS/"));
  EXPECT_FALSE(contains(contentOf(copy_.path("amp.dsn")), "\"BIAS\""));
}

TEST_F(SimulationSample, KeepsAModelThatLiesWithTheDeletedSchematic) {
  const std::string model = "amp-TervixFiles/BIAS/dc/diode.lib";
  writeFile(copy_.path(model), "a model");
  std::string text = contentOf(copy_.project());
  text.replace(text.find("\"opamp.lib\""), 11, "\"opamp.lib\", \"./" + model + "\"");
  writeFile(copy_.project(), text);
  expectDone(schematicCommand("delete", {copy_.project(), "BIAS"}));
  EXPECT_EQ(contentOf(copy_.path(model)), "a model");
  EXPECT_FALSE(fs::exists(copy_.path("amp-TervixFiles/BIAS/dc.sim")));
  EXPECT_FALSE(contains(shown({copy_.project()}), "missing"));
}

TEST_F(SimulationSample, CarriesProfilesThatAreNotRegisteredAndUnregistersThoseThatAreNotThere) {
  writeFile(copy_.path("amp-TervixFiles/BIAS/old.sim"), "ProfileName = \"old\"\n");
  fs::remove(copy_.path("amp-TervixFiles/BIAS/dc.sim"));
  expectDone(schematicCommand("rename", {copy_.project(), "BIAS", "Supply"}));
  EXPECT_EQ(contentOf(copy_.path("amp-TervixFiles/Supply/old.sim")), "ProfileName = \"old\"\n");
  EXPECT_TRUE(contains(contentOf(copy_.project()), "./amp-TervixFiles/Supply/dc.sim"));
  EXPECT_FALSE(fs::exists(copy_.path("amp-TervixFiles/BIAS")));
  expectDone(schematicCommand("delete", {copy_.project(), "Supply"}));
  EXPECT_FALSE(contains(contentOf(copy_.project()), "Supply"));
}

TEST(SchematicCommand, RenamesARootThatIsNamedInAnotherCase) {
  const SampleCopy copy(allSamples().at(0));
  const std::string design = copy.path("amp.dsn");
  std::string text = contentOf(design);
  const std::size_t place = text.find("Root = \"TOP\"");
  ASSERT_NE(place, std::string::npos);
  writeFile(design, text.replace(place, 12, "Root = \"top\""));
  EXPECT_EQ(runTool({"schematic", "rename", copy.project(), "TOP", "MAIN"}).status, 0);
  EXPECT_TRUE(contains(contentOf(design), "Root = \"MAIN\""));
}

} // namespace
