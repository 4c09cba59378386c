#include <future>

#include "tests/tools/ChangedSample.h"

// Changes of one project by several processes at a time: each waits for its turn.

using namespace tervix::testing;

namespace {

TEST(ConcurrentChanges, AreAllMade) {
  const SampleCopy copy(allSamples().at(1));
  std::vector<std::future<ToolRun>> runs;
  for (int i = 0; i < 8; ++i)
    runs.push_back(std::async(std::launch::async, [&copy, i] {
      return runTool({"profile", "add", copy.project(), "p" + std::to_string(i)});
    }));
  for (std::future<ToolRun>& pending : runs) {
    const ToolRun run = pending.get();
    EXPECT_EQ(run.status, 0) << run.errors;
  }
  const std::string text = contentOf(copy.project());
  const std::string tree = shown({copy.project()});
  for (int i = 0; i < 8; ++i) {
    EXPECT_TRUE(contains(text, "amp-TOP-p" + std::to_string(i) + ".sim")) << i;
    EXPECT_TRUE(contains(tree, "profile TOP-p" + std::to_string(i))) << i;
  }
}

} // namespace
