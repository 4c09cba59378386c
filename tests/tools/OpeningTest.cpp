#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

// The ways in which a person may name the file of a project.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

const Sample& flat() {
  return allSamples().at(1);
}

class OpenedFile : public ::testing::Test {
protected:
  OpenedFile() : expected_(shownAsJson({copy_.project()})) {}

  RunOptions in(const std::string& folder) const {
    RunOptions options;
    options.folder = folder;
    return options;
  }

  void expectSame(const std::string& file, const RunOptions& options) const {
    EXPECT_EQ(shownAsJson({file}, options), expected_) << file;
  }

  SampleCopy copy_{flat(), "a folder/sample"};
  nlohmann::ordered_json expected_;
};

TEST_F(OpenedFile, MayBeNamedFromWithinItsFolder) {
  expectSame("amp.tvp", in(copy_.folder()));
  expectSame("./amp.tvp", in(copy_.folder()));
  expectSame("amp-TOP-ac.sim", in(copy_.folder()));
  expectSame("amp-TOP.aap", in(copy_.folder()));
}

TEST_F(OpenedFile, MayBeNamedByARelativePath) {
  expectSame("sample/amp.tvp", in(fs::path(copy_.folder()).parent_path().string()));
  const std::string below = copy_.path("below");
  fs::create_directory(below);
  expectSame("../amp.tvp", in(below));
}

TEST_F(OpenedFile, MayBeNamedWithBackslashes) {
  expectSame(R"(..\sample\amp.tvp)", in(copy_.folder()));
  expectSame(R"(.\amp-TOP-ac.sim)", in(copy_.folder()));
}

TEST_F(OpenedFile, MayLieAboveALinkedFolder) {
  const TemporaryFolder elsewhere;
  const std::string link = elsewhere.path("link");
  const std::string below = copy_.path("below");
  fs::create_directory(below);
  fs::create_directory_symlink(below, link);
  expectSame(link + "/../amp.tvp", {});
}

TEST_F(OpenedFile, MayHaveAnEndingInUpperCaseIfItIsAProjectFile) {
  fs::rename(copy_.project(), copy_.path("AMP.TVP"));
  EXPECT_EQ(shownAsJson({copy_.path("AMP.TVP")})["name"], "AMP");
}

TEST_F(OpenedFile, IsShownWithItsFullPathWhereverTheToolRuns) {
  const auto json = shownAsJson({"amp.tvp"}, in(copy_.folder()));
  EXPECT_EQ(json["path"], copy_.path("amp.tvp"));
  EXPECT_EQ(json["folder"], copy_.folder());
}

TEST(OpenedFolder, MayHaveBlanksAndLettersOfAnyAlphabet) {
  for (const char* place :
       {"a  folder", "Verstärker", "усилитель", "増幅器", "quote ' and \"", "50%s"}) {
    if (!canBeAFileName(place))
      continue;
    const SampleCopy copy(flat(), place);
    const auto json = shownAsJson({copy.project()});
    EXPECT_EQ(json["folder"], copy.folder());
    EXPECT_EQ(json["schematics"][0]["profiles"].size(), 2U) << place;
    EXPECT_EQ(shown({copy.path("amp-TOP-ac.sim")}), shown({copy.project()})) << place;
  }
}

TEST(FrontEnd, FollowsFromTheFolderOfTheProjectFile) {
  for (const Sample& sample : allSamples()) {
    const int expected = sample.folder == "workspace" ? 1 : 2;
    const SampleCopy copy(sample);
    EXPECT_EQ(shownAsJson({copy.project()})["frontEnd"], expected) << sample;
  }
}

TEST(FrontEnd, FollowsFromAFolderInAnyCase) {
  const SampleCopy copy(allSamples().at(3));
  fs::rename(copy.path("flt/cfg_analog"), copy.path("flt/CFG_Analog"));
  EXPECT_EQ(shownAsJson({copy.path("flt/CFG_Analog/flt.tvp")})["frontEnd"], 1);
}

TEST(FrontEnd, MayBeTheOneThatWouldBeChosen) {
  for (const Sample& sample : allSamples()) {
    const SampleCopy copy(sample);
    const std::string chosen = sample.folder == "workspace" ? "1" : "2";
    EXPECT_EQ(shown({copy.project(), "--front-end", chosen}), shown({copy.project()})) << sample;
    EXPECT_EQ(shown({"--front-end=0", copy.openable().back()}), shown({copy.project()})) << sample;
  }
}

TEST(FrontEnd, MayBeChosenAgainstTheFolder) {
  const SampleCopy copy(allSamples().at(3));
  const auto json = shownAsJson({copy.project(), "--front-end", "2"});
  EXPECT_EQ(json["frontEnd"], 2);
  EXPECT_EQ(json["design"], nullptr); // the project file lists none, as front end 1 needs none
}

} // namespace
