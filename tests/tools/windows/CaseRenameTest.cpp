#include <algorithm>

#include "tests/tools/ChangedSample.h"

// On a disk that takes names in any case for one, a profile that is renamed in case only is moved
// onto itself.

using namespace tervix::testing;

namespace {

std::string inLowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) {
    return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  });
  return text;
}

std::string inUpperCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) {
    return static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  });
  return text;
}

bool namesTheProfile(const std::string& file) {
  return contains(file, ".sim") || contains(file, ".tvp");
}

class CaseRename : public ChangedSample {};
INSTANTIATE_TEST_SUITE_P(EachLayout, CaseRename, ::testing::Range(0, 4), layoutName);

TEST_P(CaseRename, OfAProfileKeepsEveryByteOfEveryFile) {
  const Files before = files();
  const std::string upper = inUpperCase(name());
  expectDone(runTool({"profile", "rename", copy_.project(), name(), upper}));
  Files after;
  for (const auto& [file, content] : files())
    after[inLowerCase(file)] = content;
  EXPECT_EQ(after.size(), before.size());
  for (const auto& [file, content] : before) {
    const auto found = after.find(inLowerCase(file));
    ASSERT_NE(found, after.end()) << file;
    if (namesTheProfile(file))
      EXPECT_EQ(inLowerCase(found->second), inLowerCase(content)) << file;
    else
      EXPECT_EQ(found->second, content) << file;
  }
  EXPECT_FALSE(filesNamed(upper + ".dat").empty());
  EXPECT_TRUE(filesNamed(name() + ".dat").empty());
  EXPECT_TRUE(contains(shown({copy_.project()}), upper));
}

} // namespace
