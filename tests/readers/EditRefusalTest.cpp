// Edits that cannot be made, which leave the text as it is.

#include "EditFixture.h"

namespace {

class EditRefusalTest : public EditFixture {
protected:
  static bool add(EditableFile& file) { return file.addToList("s", "f", "x"); }
  static bool set(EditableFile& file) { return file.setText("s", "f", "x"); }
};

TEST_F(EditRefusalTest, FileThatIsNoToml) {
  EXPECT_FALSE(EditableFile::open(folder.write("p.tvp", "[s]\nf = \n")));
  EXPECT_EQ(tervix::formats::lastMistake()->line, 2U);
  EXPECT_FALSE(EditableFile::open(folder.path("absent.tvp")));
  EXPECT_EQ(tervix::formats::lastMistake()->text, "the file does not exist");
  EXPECT_FALSE(EditableFile::open(folder.path()));
  EXPECT_EQ(tervix::formats::lastMistake()->text, "this is a folder, not a file");
  EXPECT_FALSE(EditableFile::open(folder.write("p.tvp", "a\x01")));
}

TEST_F(EditRefusalTest, ValueOfAnotherKind) {
  const std::string_view noList = "expected a list of names for \"f\", found text";
  expectRefused("[s]\nf = 'x'\n", add, noList, 2, 5);
  expectRefused(
      "\xEF\xBB\xBF[s]\nf = 'x'\n",
      [](EditableFile& file) { return file.removeFromList("s", "f", "x"); }, noList, 2, 5);
  expectRefused(
      "[s]\nf = 'x'\n", [](EditableFile& file) { return file.replaceInList("s", "f", "x", "y"); },
      noList, 2, 5);
  expectRefused("[s]\nf = ['x', 1]\n", add,
                "expected only names in the list for \"f\", found an integer", 2, 11);
  expectRefused("[s]\nf = ['x']\n", set, "expected text in quotes for \"f\", found a list", 2, 5);
  expectRefused("s = 1\n", set, "expected a table for \"s\", found an integer", 1, 5);
  expectRefused("[[s]]\n", add, "expected a table for \"s\", found a list of tables", 1, 1);
}

TEST_F(EditRefusalTest, ListMadeOfTables) {
  EditableFile file = opened("[[s.f]]\n[[s.f]]\n");
  EXPECT_FALSE(add(file));
  EXPECT_FALSE(set(file));
  file = opened("[s]\nf.x = 1\n");
  EXPECT_FALSE(add(file));
  EXPECT_EQ(file.text(), "[s]\nf.x = 1\n");
}

TEST_F(EditRefusalTest, ReadsTellTheReasonToo) {
  const EditableFile file = opened("[s]\nf = 1\n");
  EXPECT_FALSE(file.elementsOf("s", "f"));
  EXPECT_EQ(tervix::formats::lastMistake()->text,
            "expected a list of names for \"f\", found an integer");
  EXPECT_FALSE(file.textOf("s", "f"));
  EXPECT_TRUE(file.textOf("s", "g"));
  EXPECT_FALSE(tervix::formats::lastMistake());
}

TEST_F(EditRefusalTest, TextThatIsNoUtf8) {
  for (const std::string_view wrong :
       {"\xFF", "a\x80", "\xC3", "\xC3(", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
        "\xF4\x90\x80\x80", "\xF0\x9D\x84", "\xF8\x88\x80\x80\x80", "caf\xE9.lib"}) {
    const std::string_view reason = "the text is not valid UTF-8";
    expectRefused(
        "[s]\n", [&](EditableFile& file) { return file.setText("s", "f", wrong); }, reason);
    expectRefused(
        "[s]\n", [&](EditableFile& file) { return file.addToList("s", "f", wrong); }, reason);
    expectRefused(
        "[s]\nf = ['x']\n",
        [&](EditableFile& file) { return file.replaceInList("s", "f", "x", wrong); }, reason);
    expectRefused(
        "[s]\nf = ['x']\n",
        [&](EditableFile& file) { return file.removeFromList("s", "f", wrong); }, reason);
    expectRefused(
        "[s]\n", [&](EditableFile& file) { return file.setText(wrong, "f", "x"); }, reason);
    expectRefused(
        "[s]\n", [&](EditableFile& file) { return file.addToList("s", wrong, "x"); }, reason);
  }
}

TEST_F(EditRefusalTest, TextWithANul) {
  using namespace std::string_view_literals;
  expectRefused(
      "[s]\n", [](EditableFile& file) { return file.setText("s", "f", "a\0b"sv); },
      "the text has a NUL in it");
  expectRefused(
      "[s]\n", [](EditableFile& file) { return file.addToList("s", "f", "\0"sv); },
      "the text has a NUL in it");
}

TEST_F(EditRefusalTest, MissingNames) {
  expectRefused(
      "[s]\n", [](EditableFile& file) { return file.addToList({}, "f", "x"); },
      "asked for a section without a name");
  expectRefused(
      "[s]\n", [](EditableFile& file) { return file.setText("s", {}, "x"); },
      "asked for an item without a name");
}

TEST_F(EditRefusalTest, ElementThatIsNotThere) {
  expectRefused(
      "[s]\nf = ['a']\n",
      [](EditableFile& file) { return file.replaceInList("s", "f", "A\n", "b"); },
      "the list for \"f\" does not hold \"A\\n\"");
  expectRefused(
      "[s]\n", [](EditableFile& file) { return file.removeFromList("s", "f", "a"); },
      "the list for \"f\" does not hold \"a\"");
  expectRefused(
      "[s]\nf = ['a']\n", [](EditableFile& file) { return file.removeElement("s", "f", 1); },
      "the list for \"f\" has 1 entries and none at place 1");
  expectRefused(
      "[s]\n", [](EditableFile& file) { return file.replaceElement("s", "f", 0, "b"); },
      "the list for \"f\" has 0 entries and none at place 0");
}

TEST_F(EditRefusalTest, MoreOrFewerElementsThanThereAre) {
  expectRefused(
      "[s]\nf = ['a']\n",
      [](EditableFile& file) {
        return file.replaceElements("s", "f", {"b", "c"});
      },
      "the list for \"f\" has 1 entries, and not 2");
}

// The parser takes the second mark for nothing, so what follows is not what it looks like.
TEST_F(EditRefusalTest, EditThatWouldNotHoldWhatItShould) {
  expectRefused("\xEF\xBB\xBF\xEF\xBB\xBF[s]\na = 1\n", add,
                "this edit would change something else in the file");
  expectRefused(
      "\xEF\xBB\xBF\xEF\xBB\xBF[s]\nf = ['x']\n",
      [](EditableFile& file) { return file.removeElement("s", "f", 0); },
      "no way is known to change \"f\" where it stands");
}

TEST_F(EditRefusalTest, LaterEditsGoOn) {
  EditableFile file = opened("[s]\n");
  EXPECT_FALSE(file.removeFromList("s", "f", "x"));
  EXPECT_TRUE(file.addToList("s", "f", "x"));
  EXPECT_FALSE(tervix::formats::lastMistake());
  EXPECT_EQ(file.text(), "[s]\nf = [\"x\"]\n");
}

} // namespace
