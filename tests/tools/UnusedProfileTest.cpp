#include <filesystem>

#include "tests/tools/ChangedSample.h"

// Profiles that are registered and that the library passes over, and files that stand in the way of
// a profile.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

class UnusedProfile : public ChangedSample {
protected:
  std::string simFile(const std::string& profile) const {
    return copy_.path(isSimulation() ? "amp-TervixFiles/TOP/" + profile + ".sim"
                                     : "amp-TOP-" + profile + ".sim");
  }
  std::size_t timesRegistered(const std::string& profile) const {
    const std::string file = fs::path(simFile(profile)).filename().string();
    const std::string text = contentOf(copy_.project());
    std::size_t times = 0;
    for (std::size_t at = 0; (at = text.find(file, at)) != std::string::npos; ++at)
      ++times;
    return times;
  }
  ToolRun profile(const std::string& action, const std::string& name) const {
    return runTool({"profile", action, copy_.project(), name});
  }
};

INSTANTIATE_TEST_SUITE_P(FrontEnd2, UnusedProfile, ::testing::Range(0, 2), layoutName);

TEST_P(UnusedProfile, IsDeletedWhenItsFileIsMissing) {
  fs::remove(simFile("ac"));
  expectDone(profile("delete", "AC"));
  EXPECT_EQ(timesRegistered("ac"), 0U);
  EXPECT_EQ(filesNamed("/ac.").size() + filesNamed("-ac.").size(), 0U);
}

TEST_P(UnusedProfile, IsDeletedWhenItsFileIsNotValid) {
  writeFile(simFile("ac"), "");
  expectDone(profile("delete", "ac"));
  EXPECT_EQ(timesRegistered("ac"), 0U);
  EXPECT_FALSE(fs::exists(simFile("ac")));
}

TEST_P(UnusedProfile, IsMadeAgainWithoutASecondEntry) {
  for (const std::string& file : filesNamed("ac"))
    if (!contains(file, "TOP.") && file.back() != '/')
      fs::remove(copy_.path(file));
  fs::remove_all(copy_.path("amp-TervixFiles/TOP/ac"));
  expectDone(profile("add", "ac"));
  EXPECT_EQ(timesRegistered("ac"), 1U);
  EXPECT_TRUE(contains(shown({copy_.project()}), "profile TOP-ac"));
}

TEST_P(UnusedProfile, IsNotChangedUnderANameThatItsFileDoesNotBear) {
  std::string text = contentOf(simFile("ac"));
  text.replace(text.find("\"ac\""), 4, "\"other\"");
  writeFile(simFile("ac"), text);
  const Files before = files();
  expectRefused(profile("delete", "other"), "has no file");
  for (const char* action : {"rename", "copy"})
    expectRefused(runTool({"profile", action, copy_.project(), "other", "x", "--dry-run"}),
                  "has no file");
  EXPECT_EQ(files(), before);
}

class FileInTheWay : public ChangedSample {};

INSTANTIATE_TEST_SUITE_P(All, FileInTheWay, ::testing::Range(0, 4), layoutName);

TEST_P(FileInTheWay, OfANewProfileIsNotTakenOver) {
  const std::string sim = copy_.path(filesNamed(name() + ".sim").front());
  const std::string stem = sim.substr(0, sim.size() - name().size() - 4) + "fresh";
  writeFile(isSimulation() ? stem + "/notes" : stem + ".dat", "somebody's");
  const Files before = files();
  expectRefused(runTool({"profile", "add", copy_.project(), "fresh"}), "is there already");
  EXPECT_EQ(files(), before);
}

TEST(ProfileName, CountsBeforeTheDisplayNameOfAnother) {
  const SampleCopy copy(allSamples().at(0));
  expectDone(runTool({"profile", "add", copy.project(), "TOP-ac"}));
  expectDone(runTool({"profile", "delete", copy.project(), "TOP-ac"}));
  EXPECT_TRUE(contains(shown({copy.project()}), "profile TOP-ac "));
  EXPECT_FALSE(contains(shown({copy.project()}), "profile TOP-TOP-ac"));
}

TEST(NewName, IsSpeltOutInTheRefusal) {
  const SampleCopy copy(allSamples().at(0));
  expectRefused(runTool({"profile", "add", copy.project(), "a\x1b[31mb"}), "\"a\\x1b[31mb\"");
  expectRefused(runTool({"profile", "add", copy.project(), "caf\xe9"}), "is no valid UTF-8");
}

} // namespace
