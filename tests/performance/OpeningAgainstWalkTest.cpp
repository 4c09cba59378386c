#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "tests/performance/PlainWalk.h"
#include "tests/support/System.h"

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

// What a random project of front end 2 should look like when it is opened.
class OpeningAgainstWalk : public ::testing::TestWithParam<unsigned int> {
protected:
  struct Schematic {
    std::string name;
    Lines profiles;
  };

  Schematic& schematic(const std::string& name) {
    for (Schematic& present : expected_)
      if (plainlyEqual(present.name, name))
        return present;
    return expected_.emplace_back(Schematic{name, {}});
  }

  // Registers a file, mostly with names that follow from where it lies.
  void addFile(int number) {
    const std::string in = std::string(1, "TUVt"[texts_.below(4)]);
    const std::string name = "n" + std::to_string(texts_.below(30));
    const std::string sim = "P/amp-TervixFiles/" + in + "/" +
                            (texts_.oneIn(3) ? "x" + std::to_string(number) : name) + ".sim";
    registered_ += "'./" + sim.substr(2) + "',\n";
    if (known_.count(sim) != 0)
      return;
    known_.insert(sim);
    switch (texts_.below(8)) {
    case 0:
      return; // missing
    case 1:
      folder_.folder(sim);
      return;
    case 2:
      fs::create_directories(fs::path(folder_.path(sim)).parent_path());
      ASSERT_TRUE(makePipe(folder_.path(sim)));
      return;
    case 3:
      folder_.file(sim);
      return;
    default:
      folder_.file(sim, simText(name, "x.sim", "", "", in, "", ""));
    }
    Lines& profiles = schematic(in).profiles;
    for (const std::string& present : profiles)
      if (plainlyEqual(present, name))
        return;
    profiles.push_back(name);
  }

  RandomTexts texts_{GetParam()};
  const TemporaryFolder folder_;
  std::set<std::string> known_;
  std::string registered_;
  std::vector<Schematic> expected_ = {{"T", {}}, {"U", {}}};
};

TEST_P(OpeningAgainstWalk, GivesTheSameTree) {
  folder_.file("P/amp.dsn", "[Design]\nSchematics = ['T', 'U']\nRoot = 'T'\n");
  for (int number = 0; number < 120; ++number)
    ASSERT_NO_FATAL_FAILURE(addFile(number));
  folder_.folder("P/amp-TervixFiles");
  OpenedProject project(folder_.file("P/amp.tvp", "[\"Design Resources\"]\nFiles = ['amp.dsn']\n"
                                                  "[\"Simulation Profiles\"]\nFiles = [\n" +
                                                      registered_ + "]\n"),
                        2);
  ASSERT_EQ(project->initialize(), 0U);
  Lines lines;
  for (const Schematic& schematic : expected_) {
    lines.push_back(schematic.name + (schematic.name == "T" ? " root" : ""));
    for (const std::string& name : schematic.profiles)
      lines.push_back("  " + name);
  }
  Lines tree = treeOf(*project);
  for (std::string& line : tree)
    if (line.front() == ' ')
      line.erase(line.find(' ', 2)); // the display name spells the schematic as the file does
  EXPECT_EQ(tree, lines);
}

INSTANTIATE_TEST_SUITE_P(Seeds, OpeningAgainstWalk, ::testing::Range(0U, 10U));

} // namespace
} // namespace tervix::testing
