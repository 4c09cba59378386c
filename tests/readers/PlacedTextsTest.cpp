#include "Mistake.h"
#include "TempFolder.h"
#include "Texts.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace {

using tervix::formats::readPlacedTexts;

using Text = std::tuple<std::string, std::string, std::string, std::size_t>;

std::vector<Text> textsOf(const std::string& file) {
  std::vector<Text> texts;
  const auto placed = readPlacedTexts(file);
  EXPECT_TRUE(placed);
  for (const auto& text : placed.value_or(std::vector<tervix::formats::PlacedText>()))
    texts.emplace_back(text.section, text.item, text.text, text.line);
  return texts;
}

TEST(PlacedTexts, AreThoseOfItemsAndLists) {
  const TempFolder folder;
  const std::string file =
      folder.write("amp.tvp", "# a comment\n[A]\nFiles = [\"x\",\n  'y\\z'\n]\n"
                              "Active = \"tran\"\n");
  EXPECT_EQ(textsOf(file),
            (std::vector<Text>{
                {"A", "Active", "tran", 6}, {"A", "Files", "x", 3}, {"A", "Files", "y\\z", 4}}));
}

TEST(PlacedTexts, LeaveOutWhatIsNoText) {
  const TempFolder folder;
  const std::string file = folder.write(
      "amp.tvp", "top = \"x\"\n[A]\na = 3\nb = [1, \"t\", [\"deep\"]]\nc = {d = \"e\"}\n");
  EXPECT_EQ(textsOf(file), (std::vector<Text>{{"A", "b", "t", 4}}));
}

TEST(PlacedTexts, AreNoneOfAFileThatCannotBeRead) {
  const TempFolder folder;
  EXPECT_FALSE(readPlacedTexts(folder.write("amp.tvp", "[A]\nFiles = [\n")));
  ASSERT_TRUE(tervix::formats::lastMistake());
  EXPECT_NE(tervix::formats::lastMistake()->line, 0U);
}

} // namespace
