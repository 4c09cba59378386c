#pragma once

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

namespace tervix::testing {

using Files = std::map<std::string, std::string>;

// A copy of one of the samples, in the order of allSamples(), that commands change.
class ChangedSample : public ::testing::TestWithParam<int> {
protected:
  const Sample& sample() const { return allSamples().at(static_cast<std::size_t>(GetParam())); }
  bool isFrontEnd2() const { return GetParam() < 2; }
  bool isSimulation() const { return GetParam() == 0 || GetParam() == 2; }
  // The sample's first profile and its first schematic.
  std::string name() const { return GetParam() == 3 ? "ac" : "tran"; }
  std::string schematic() const { return isFrontEnd2() ? "TOP" : isSimulation() ? "amp" : "flt"; }

  Files files() const { return snapshotOf(copy_.folder()); }
  // The files whose names hold a word.
  std::vector<std::string> filesNamed(const std::string& word) const;

  SampleCopy copy_{sample()};
};

// For INSTANTIATE_TEST_SUITE_P over Range(0, 4).
std::string layoutName(const ::testing::TestParamInfo<int>& layout);

bool contains(const std::string& text, const std::string& piece);

// The command ended well and without a word.
void expectDone(const ToolRun& run);
// It ended with 1 and said this.
void expectRefused(const ToolRun& run, const std::string& message);

} // namespace tervix::testing
