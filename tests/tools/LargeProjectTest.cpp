#include <gtest/gtest.h>

#include "tests/support/ProjectBuilder.h"
#include "tests/tools/ToolRun.h"

using namespace tervix::testing;

namespace {

constexpr std::size_t kProfiles = 1000;

std::string profileName(std::size_t number) {
  return "p" + std::to_string(number);
}

// A project of front end 2 that lists its profiles, and nothing on disk but their ".sim" files.
std::string writeListedProfiles(const TemporaryFolder& folder) {
  std::string files;
  for (std::size_t number = 0; number < kProfiles; ++number) {
    const std::string name = profileName(number);
    const std::string sim = "amp-TOP-" + name + ".sim";
    files += "\"./" + sim + "\", ";
    folder.file(sim, simText(name, sim, "amp.dsn", "amp.tvp", "TOP", "a.dat", "a.out"));
  }
  folder.file("amp.dsn", "[Design]\nSchematics = [\"TOP\"]\nRoot = \"TOP\"\n");
  return folder.file("amp.tvp", "[\"Design Resources\"]\nFiles = [\"amp.dsn\"]\n"
                                "[\"Simulation Profiles\"]\nActive = \"TOP-p999\"\nFiles = [" +
                                    files + "]\n");
}

TEST(LargeProject, IsShownCompletely) {
  const TemporaryFolder folder;
  const std::string project = writeListedProfiles(folder);
  const std::string tree = shown({project});
  for (std::size_t number = 0; number < kProfiles; ++number)
    EXPECT_NE(tree.find("-- profile TOP-" + profileName(number) + "  "), std::string::npos);
  EXPECT_EQ(tree.back(), '\n');
}

TEST(LargeProject, IsGivenCompletelyAsJson) {
  const TemporaryFolder folder;
  const auto json = shownAsJson({writeListedProfiles(folder)});
  const auto& profiles = json["schematics"][0]["profiles"];
  ASSERT_EQ(profiles.size(), kProfiles);
  for (std::size_t number = 0; number < kProfiles; ++number) {
    EXPECT_EQ(profiles[number]["name"], profileName(number));
    EXPECT_EQ(profiles[number]["active"], number == kProfiles - 1);
  }
}

TEST(LargeProject, IsShownCompletelyWhenItsProfilesAreFoundInAFolder) {
  const TemporaryFolder folder;
  for (std::size_t number = 0; number < kProfiles; ++number) {
    const std::string name = profileName(number);
    folder.file("amp/cfg_analog/" + name + ".sim",
                simText(name, name + ".sim", "amp", "amp.tvp", "amp", "a.dat", "a.out"));
  }
  const std::string tree = shown({folder.file("amp/cfg_analog/amp.tvp")});
  for (std::size_t number = 0; number < kProfiles; ++number)
    EXPECT_NE(tree.find("-- profile " + profileName(number) + "  "), std::string::npos);
}

} // namespace
