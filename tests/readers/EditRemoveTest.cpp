// Removing from a list, in every layout that a list may have.

#include "EditFixture.h"

namespace {

class EditRemoveTest : public EditFixture {
protected:
  static bool remove(EditableFile& file) { return file.removeFromList("s", "f", "x"); }
};

TEST_F(EditRemoveTest, FromAListOnOneLine) {
  expectEdits(
      {
          {"[s]\nf = [\"x\"]\n", "[s]\nf = []\n"},
          {"[s]\nf = [ \"x\" ]\n", "[s]\nf = [ ]\n"},
          {"[s]\nf = [\"x\", \"b\", \"c\"]\n", "[s]\nf = [\"b\", \"c\"]\n"},
          {"[s]\nf = [\"a\", \"x\", \"c\"]\n", "[s]\nf = [\"a\", \"c\"]\n"},
          {"[s]\nf = [\"a\", \"b\", \"x\"] # c\n", "[s]\nf = [\"a\", \"b\"] # c\n"},
          {"[s]\nf = [ \"x\",\"b\" ]\n", "[s]\nf = [ \"b\" ]\n"},
          {"[s]\nf = [ \"a\" , \"x\" ]\n", "[s]\nf = [ \"a\" ]\n"},
          {"[s]\nf = [\"x\" , \"b\"]\n", "[s]\nf = [\"b\"]\n"},
      },
      remove);
}

TEST_F(EditRemoveTest, TrailingCommaStaysWithTheOthers) {
  expectEdits(
      {
          {"[s]\nf = [\"x\",]\n", "[s]\nf = []\n"},
          {"[s]\nf = [\"a\", \"x\", ]\n", "[s]\nf = [\"a\", ]\n"},
          {"[s]\nf = [\n  \"a\",\n  \"x\",\n]\n", "[s]\nf = [\n  \"a\",\n]\n"},
          {"[s]\nf = [\"a\",\n     \"x\",]\n", "[s]\nf = [\"a\",]\n"},
      },
      remove);
}

TEST_F(EditRemoveTest, ItsOwnLineGoes) {
  expectEdits(
      {
          {"[s]\nf = [\n  \"x\",\n  \"b\",\n]\n", "[s]\nf = [\n  \"b\",\n]\n"},
          {"[s]\nf = [\n  \"a\",\n  \"x\" ,\n  \"c\"\n]\n", "[s]\nf = [\n  \"a\",\n  \"c\"\n]\n"},
          {"[s]\nf = [\n  \"a\",\n  \"x\"\n]\n", "[s]\nf = [\n  \"a\"\n]\n"},
          {"[s]\nf = [\n  \"x\",\n]\n", "[s]\nf = [\n]\n"},
          {"[s]\nf = [\n  \"a\",\n\n  \"x\",\n\n  \"c\",\n]\n",
           "[s]\nf = [\n  \"a\",\n\n\n  \"c\",\n]\n"},
          {"[s]\r\nf = [\r\n  \"a\",\r\n  \"x\"\r\n]\r\n", "[s]\r\nf = [\r\n  \"a\"\r\n]\r\n"},
      },
      remove);
}

TEST_F(EditRemoveTest, SharedLineStays) {
  expectEdits(
      {
          {"[s]\nf = [\n  \"x\", \"b\",\n  \"c\",\n]\n", "[s]\nf = [\n  \"b\",\n  \"c\",\n]\n"},
          {"[s]\nf = [\n  \"a\", \"x\",\n  \"c\",\n]\n", "[s]\nf = [\n  \"a\",\n  \"c\",\n]\n"},
          {"[s]\nf = [\n  \"a\",\n  \"x\", \"c\",\n]\n", "[s]\nf = [\n  \"a\",\n  \"c\",\n]\n"},
          {"[s]\nf = [\n  \"a\",\n  \"b\", \"x\" ]\n", "[s]\nf = [\n  \"a\",\n  \"b\" ]\n"},
      },
      remove);
}

TEST_F(EditRemoveTest, HandAlignedListStaysAligned) {
  expectEdits(
      {
          {"[s]\nf = [\"x\",\n     \"b\",\n     \"c\"]\n", "[s]\nf = [\"b\",\n     \"c\"]\n"},
          {"[s]\nf = [\"a\",\n     \"x\",\n     \"c\"]\n", "[s]\nf = [\"a\",\n     \"c\"]\n"},
          {"[s]\nf = [\"a\",\n     \"b\",\n     \"x\"]\n", "[s]\nf = [\"a\",\n     \"b\"]\n"},
      },
      remove);
}

TEST_F(EditRemoveTest, LinesThatBeginWithTheComma) {
  expectEdits(
      {
          {"[s]\nf = [ \"x\"\n    , \"b\"\n    , \"c\"\n    ]\n",
           "[s]\nf = [ \"b\"\n    , \"c\"\n    ]\n"},
          {"[s]\nf = [ \"a\"\n    , \"x\"\n    , \"c\"\n    ]\n",
           "[s]\nf = [ \"a\"\n    , \"c\"\n    ]\n"},
          {"[s]\nf = [ \"a\"\n    , \"b\"\n    , \"x\"\n    ]\n",
           "[s]\nf = [ \"a\"\n    , \"b\"\n    ]\n"},
          {"[s]\nf = [\n  \"x\"\n  , \"b\"\n]\n", "[s]\nf = [\n  \"b\"\n]\n"},
          {"[s]\nf = [ \"a\"\n    , \"x\" # x\n    , \"c\"\n    ]\n",
           "[s]\nf = [ \"a\"\n    ,  # x\n     \"c\"\n    ]\n"},
      },
      remove);
}

TEST_F(EditRemoveTest, OnlyTheCommentOnItsOwnLineGoes) {
  expectEdits(
      {
          {"[s]\nf = [ # all\n  # on a\n  \"a\", # a\n  # on x\n  \"x\", # x ]\n  # on c\n  \"c\" "
           "# c\n]\n",
           "[s]\nf = [ # all\n  # on a\n  \"a\", # a\n  # on x\n  # on c\n  \"c\" # c\n]\n"},
          {"[s]\nf = [\n  \"a\", # a\n  # on x\n  \"x\" # x\n  # end\n]\n",
           "[s]\nf = [\n  \"a\" # a\n  # on x\n  # end\n]\n"},
          {"[s]\nf = [\n  \"a\" # a\n  , # comma\n  \"x\"\n]\n",
           "[s]\nf = [\n  \"a\" # a\n   # comma\n]\n"},
          {"[s]\nf = [\n  \"x\" # x\n  # more\n]\n", "[s]\nf = [\n  # more\n]\n"},
      },
      remove);
}

TEST_F(EditRemoveTest, CommentOnASharedLineStays) {
  expectEdits(
      {
          {"[s]\nf = [ \"x\", # first\n  \"b\" ]\n", "[s]\nf = [ # first\n  \"b\" ]\n"},
          {"[s]\nf = [ \"x\" # only\n]\n", "[s]\nf = [ # only\n]\n"},
          {"[s]\nf = [\n  \"a\", \"x\", # both\n  \"c\",\n]\n",
           "[s]\nf = [\n  \"a\", # both\n  \"c\",\n]\n"},
          {"[s]\nf = [\"a\", # a\n     \"x\"]\n", "[s]\nf = [\"a\" # a\n     ]\n"},
          {"[s]\nf = [\"a\", # a\n     \"x\",]\n", "[s]\nf = [\"a\", # a\n     ]\n"},
          {"[s]\nf = [\n  \"x\" # x\n  ,\n  \"b\"\n]\n", "[s]\nf = [\n   # x\n  \n  \"b\"\n]\n"},
          {"[s]\nf = [\n  \"a\" # a\n  , \"x\"\n]\n", "[s]\nf = [\n  \"a\" # a\n   \n]\n"},
      },
      remove);
}

TEST_F(EditRemoveTest, TextOfEveryKindIsFoundByItsValue) {
  const EditRun remove = [](EditableFile& file) { return file.removeFromList("s", "f", "a\\é\n"); };
  expectEdits(
      {
          {"[s]\nf = [\"a\\\\\\u00E9\\n\", 'a\\é']\n", "[s]\nf = ['a\\é']\n"},
          {"[s]\nf = ['a\\é', '''\na\\é\n''']\n", "[s]\nf = ['a\\é']\n"},
          {"[s]\nf = [\n  'a',\n  \"\"\"a\\\\é\n\"\"\", # c\n  'b',\n]\n",
           "[s]\nf = [\n  'a',\n  'b',\n]\n"},
      },
      remove);
}

TEST_F(EditRemoveTest, TheFirstOfEqualElements) {
  expectEdit("[s]\nf = [\"a\", \"x\", 'x']\n", remove, "[s]\nf = [\"a\", 'x']\n");
}

TEST_F(EditRemoveTest, OnlyAnExactValue) {
  expectRefused("[s]\nf = [\"X\", \"./x\"]\n", remove, "the list for \"f\" does not hold \"x\"");
}

TEST_F(EditRemoveTest, ByIndex) {
  const EditRun second = [](EditableFile& file) { return file.removeElement("s", "f", 1); };
  expectEdits(
      {
          {"[s]\nf = ['x', \"x\", '''x''']\n", "[s]\nf = ['x', '''x''']\n"},
          {"s = { f = ['x', \"x\"] }\n", "s = { f = ['x'] }\n"},
          {"s.f = ['x', \"x\"]", "s.f = ['x']"},
      },
      second);
}

TEST_F(EditRemoveTest, AddedElementLeavesNoTrace) {
  for (const std::string_view list :
       {"[\"a\"]", "[ ]", "[\"a\",]", "[\n  \"a\",\n]", "[\n  \"a\" # c\n]", "['a',\n  'b' ]",
        "[ # c\n]", "[ 'a', # c\n  # d\n ]", "[\n  'a', 'b',\n  'c', 'd',\n]"}) {
    const std::string text = "[s]\nf = " + std::string(list) + "\n";
    EditableFile file = opened(text);
    EXPECT_TRUE(file.addToList("s", "f", "x"));
    EXPECT_NE(file.text(), text);
    EXPECT_TRUE(file.removeFromList("s", "f", "x"));
    EXPECT_EQ(file.text(), text);
  }
}

// The example of the file formats' description.
TEST_F(EditRemoveTest, LibraryIsExchanged) {
  const std::string begin = "[\"Tervix Resources\"]\n\"Model Libraries\" = [\n"
                            "  # from the vendor\n  'models\\opamp.lib', # version 2\n";
  expectEdit(
      begin + "  \"old.lib\", # to be replaced\n]\n",
      [](EditableFile& file) {
        return file.addToList("Tervix Resources", "Model Libraries", "filter.lib") &&
               file.removeFromList("Tervix Resources", "Model Libraries", "old.lib");
      },
      begin + "  \"filter.lib\",\n]\n");
}

} // namespace
