#include "tests/tools/ChangedSample.h"

#include <array>

namespace tervix::testing {

std::vector<std::string> ChangedSample::filesNamed(const std::string& word) const {
  std::vector<std::string> named;
  for (const auto& [file, content] : files())
    if (contains(file, word))
      named.push_back(file);
  return named;
}

std::string layoutName(const ::testing::TestParamInfo<int>& layout) {
  constexpr std::array<const char*, 4> kLayouts = {"DesignSimulation", "DesignOther",
                                                   "ProjectSimulation", "ProjectOther"};
  return kLayouts.at(static_cast<std::size_t>(layout.param));
}

bool contains(const std::string& text, const std::string& piece) {
  return text.find(piece) != std::string::npos;
}

void expectDone(const ToolRun& run) {
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(run.errors, "");
}

void expectRefused(const ToolRun& run, const std::string& message) {
  EXPECT_EQ(run.status, 1) << run.output;
  EXPECT_TRUE(contains(run.errors, message)) << run.errors;
}

} // namespace tervix::testing
