#include "tests/tools/ChangedSample.h"

// Folders and profiles with names in the letters of any language.

using namespace tervix::testing;

namespace {

const std::string kFolder = "z\xC3\xA9 \xE6\x97\xA5\xF0\x9F\x98\x80"; // of one to four bytes
const std::string kProfile = "\xC3\xA9t\xC3\xA9";

class Utf8Names : public ChangedSample {
protected:
  SampleCopy there_{sample(), kFolder};
};
INSTANTIATE_TEST_SUITE_P(EachLayout, Utf8Names, ::testing::Range(0, 4), layoutName);

TEST_P(Utf8Names, OfAFolderChangeNothingOfWhatIsShown) {
  EXPECT_EQ(comparable(shown({there_.project()})), comparable(shown({copy_.project()})));
  EXPECT_EQ(comparable(shownAsJson({there_.project()}), there_.folder()),
            comparable(shownAsJson({copy_.project()}), copy_.folder()));
  EXPECT_TRUE(contains(shown({there_.project(), "--json"}), kFolder));
}

TEST_P(Utf8Names, AreGivenToAProfile) {
  const std::size_t count = filesNamed(name()).size();
  expectDone(runTool({"profile", "rename", copy_.project(), name(), kProfile}));
  EXPECT_EQ(filesNamed(kProfile).size(), count);
  EXPECT_TRUE(filesNamed(name()).empty());
  EXPECT_TRUE(contains(shown({copy_.project()}), kProfile));
}

TEST_P(Utf8Names, AreThoseOfAnArchive) {
  const std::string archive = there_.folder() + "-" + kProfile;
  const ToolRun run = runTool({"archive", there_.project(), archive});
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_TRUE(isFolder(archive));
}

} // namespace
