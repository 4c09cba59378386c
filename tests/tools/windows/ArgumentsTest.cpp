#include "tests/tools/ChangedSample.h"

// What a person types on Windows: paths with either separator.

using namespace tervix::testing;

namespace {

class PathArgument : public ::testing::Test {
protected:
  SampleCopy copy_{allSamples().front()};
  const std::string expected_ = shown({copy_.project()});
};

std::string withBackslashes(std::string path) {
  for (char& c : path)
    c = c == '/' ? '\\' : c;
  return path;
}

TEST_F(PathArgument, MayHaveBackslashes) {
  EXPECT_EQ(shown({withBackslashes(copy_.project())}), expected_);
}

} // namespace
