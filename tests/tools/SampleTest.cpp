#include <cstdlib>

#include <gtest/gtest.h>

#include "tests/tools/JsonKeys.h"
#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

// The samples as a whole. After a deliberate change of what is shown, TERVIX_RECORD=1 in the
// environment of these tests writes the files anew; read every line of the difference.

using namespace tervix::testing;

namespace {

class ShownSample : public ::testing::TestWithParam<Sample> {};

std::string expectedFile(const Sample& sample, const std::string& ending) {
  return std::string(TERVIX_TOOL_EXPECTED) + "/" + sample.name + ending;
}

bool isRecording() {
  return std::getenv("TERVIX_RECORD") != nullptr;
}

TEST_P(ShownSample, IsTheExpectedTree) {
  const SampleCopy copy(GetParam());
  const std::string tree = shown({copy.project()});
  if (isRecording()) {
    writeFile(expectedFile(GetParam(), ".txt"), tree);
    GTEST_SKIP() << "recorded";
  }
  EXPECT_EQ(comparable(tree), comparable(contentOf(expectedFile(GetParam(), ".txt"))));
}

TEST_P(ShownSample, IsTheExpectedJson) {
  const SampleCopy copy(GetParam());
  const auto json = comparable(shownAsJson({copy.project()}), copy.folder());
  if (isRecording()) {
    writeFile(expectedFile(GetParam(), ".json"), json.dump(2) + "\n");
    GTEST_SKIP() << "recorded";
  }
  const auto expected = nlohmann::ordered_json::parse(contentOf(expectedFile(GetParam(), ".json")));
  EXPECT_EQ(json, expected) << json.dump(2);
}

// The order of keys is for people; a program does not see it, but this test does.
TEST_P(ShownSample, HasItsJsonKeysInTheExpectedOrder) {
  const SampleCopy copy(GetParam());
  const auto json = comparable(shownAsJson({copy.project()}), copy.folder());
  const auto expected = nlohmann::ordered_json::parse(contentOf(expectedFile(GetParam(), ".json")));
  EXPECT_EQ(json.dump(), expected.dump());
}

TEST_P(ShownSample, HasNoJsonKeyThatIsNotDocumented) {
  const SampleCopy copy(GetParam());
  expectKeysDocumented(shownAsJson({copy.project()}), "show-json.md");
}

TEST_P(ShownSample, IsTheSameFromEveryFileOfTheProject) {
  const SampleCopy copy(GetParam());
  const std::string tree = comparable(shown({copy.project()}));
  const auto json = comparable(shownAsJson({copy.project()}), copy.folder());
  for (const std::string& file : copy.openable()) {
    EXPECT_EQ(comparable(shown({file})), tree) << file;
    EXPECT_EQ(comparable(shownAsJson({file}), copy.folder()), json) << file;
  }
}

INSTANTIATE_TEST_SUITE_P(All, ShownSample, ::testing::ValuesIn(allSamples()),
                         [](const auto& sample) {
                           std::string name = sample.param.name;
                           name.replace(name.find('-'), 1, "_");
                           return name;
                         });

} // namespace
