#include <algorithm>

#include <gtest/gtest.h>

#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

using namespace tervix::testing;

namespace {

constexpr const char* kBold = "\033[1m";
constexpr const char* kGreen = "\033[32m";

class ColouredTree : public ::testing::Test {
protected:
  std::string onTerminal(const std::map<std::string, std::string>& environment,
                         const Arguments& arguments = {}) const {
    RunOptions options;
    options.environment = environment;
    Arguments all = {"show", copy_.project()};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const ToolRun run = runToolOnTerminal(all, options);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    return run.output;
  }

  // The terminal ends lines in its own way.
  static std::string withoutReturns(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
  }

  SampleCopy copy_{allSamples().at(1)};
};

bool hasColour(const std::string& text) {
  return text.find('\033') != std::string::npos;
}

TEST_F(ColouredTree, IsForATerminal) {
  const std::string tree = onTerminal({{"TERM", "xterm"}});
  EXPECT_NE(tree.find(std::string("schematic ") + kBold + "TOP\033[0m"), std::string::npos) << tree;
  EXPECT_NE(tree.find(std::string(kGreen) + "active\033[0m"), std::string::npos) << tree;
}

TEST_F(ColouredTree, IsTheSameTextAsThePlainTree) {
  std::string tree = onTerminal({{"TERM", "xterm"}});
  for (std::size_t at = tree.find('\033'); at != std::string::npos; at = tree.find('\033'))
    tree.erase(at, tree.find('m', at) - at + 1);
  EXPECT_EQ(withoutReturns(tree), shown({copy_.project()}));
}

TEST_F(ColouredTree, IsNotForAPipe) {
  EXPECT_FALSE(hasColour(shown({copy_.project()})));
}

TEST_F(ColouredTree, IsNotForATerminalThatShowsNone) {
  const std::string plain = shown({copy_.project()});
  EXPECT_EQ(withoutReturns(onTerminal({{"TERM", "dumb"}})), plain);
  EXPECT_EQ(withoutReturns(onTerminal({{"TERM", ""}})), plain);
}

TEST_F(ColouredTree, IsNotForWhoRefusesIt) {
  EXPECT_EQ(withoutReturns(onTerminal({{"NO_COLOR", "1"}})), shown({copy_.project()}));
}

TEST_F(ColouredTree, IsNeverJson) {
  EXPECT_FALSE(hasColour(onTerminal({{"TERM", "xterm"}}, {"--json"})));
}

} // namespace
