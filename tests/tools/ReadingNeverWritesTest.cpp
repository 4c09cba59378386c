#include <filesystem>

#include <gtest/gtest.h>

#include "CTervixProject.h"
#include "tests/tools/EntriesOnDisk.h"
#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

std::vector<std::string> includeListsOf(const std::string& folder) {
  std::vector<std::string> lists;
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    if (entry.path().string().find("_profile.inc") != std::string::npos)
      lists.push_back(entry.path().string());
  return lists;
}

// A list that saving would write in another way: order, case, blanks, and a line that it drops.
constexpr const char* kUntidyList = "* made by hand\n.stmlib \"./pulse.stl\"\n.Lib\t\"./a.lib\"\n"
                                    ".INC \"./b.inc\"\n.inc \"UPPER.INC\"";
// A list that saving would remove.
constexpr const char* kEmptyList = "* no entries\n";

class ReadSample : public ::testing::TestWithParam<Sample> {
protected:
  void expectUntouchedByShowing() const {
    for (const std::string& file : copy_.openable())
      for (const Arguments& options : {Arguments{}, {"--json"}, {"--front-end", "1"}}) {
        Arguments arguments = {"show", file};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const EntriesOnDisk before = entriesOf(copy_.folder());
        runTool(arguments);
        expectUntouched(before, entriesOf(copy_.folder()), file);
      }
  }

  void writeLists(const char* content) const {
    for (const std::string& list : includeListsOf(copy_.folder()))
      writeFile(list, content);
  }

  SampleCopy copy_{GetParam()};
};

TEST_P(ReadSample, StaysAsItIs) {
  expectUntouchedByShowing();
}

TEST_P(ReadSample, KeepsIncludeListsThatSavingWouldRewrite) {
  writeLists(kUntidyList);
  expectUntouchedByShowing();
}

TEST_P(ReadSample, KeepsIncludeListsThatSavingWouldRemove) {
  writeLists(kEmptyList);
  expectUntouchedByShowing();
}

TEST_P(ReadSample, StaysAsItIsWhenItCannotBeOpened) {
  writeLists(kUntidyList);
  writeFile(copy_.project(), "[\"Design Resources\"\n");
  expectUntouchedByShowing();
}

TEST_P(ReadSample, StaysAsItIsWhenNothingCanBePrinted) {
  writeLists(kUntidyList);
  RunOptions options;
  options.output = Output::kFullDevice;
  const EntriesOnDisk before = entriesOf(copy_.folder());
  EXPECT_EQ(runTool({"show", copy_.project()}, options).status, 1);
  expectUntouched(before, entriesOf(copy_.folder()), "printing");
}

INSTANTIATE_TEST_SUITE_P(All, ReadSample, ::testing::ValuesIn(allSamples()),
                         [](const auto& sample) {
                           std::string name = sample.param.name;
                           name.replace(name.find('-'), 1, "_");
                           return name;
                         });

// What the tests above guard against: a program that lets go of a project's profiles saves them.
// (A project of front end 1, which this program can open without the design reader.)
TEST(DestroyedProfile, WritesItsIncludeList) {
  const SampleCopy copy(allSamples().at(2));
  for (const std::string& list : includeListsOf(copy.folder()))
    writeFile(list, kUntidyList);
  const EntriesOnDisk before = entriesOf(copy.folder());
  CTervixProject project(copy.project().c_str(), FRONTEND_ID_PROJECT_FILE, false, nullptr);
  ASSERT_EQ(project.initialize(), 0U);
  std::string schematic = "amp";
  ASSERT_EQ(project.deleteSchematic(schematic), 0U);
  EXPECT_FALSE(entriesOf(copy.folder()) == before);
}

} // namespace
