// Setting texts, replacing elements, and what both write.

#include "EditFixture.h"

namespace {

class EditTextTest : public EditFixture {
protected:
  static bool set(EditableFile& file) { return file.setText("s", "t", "new"); }
};

TEST_F(EditTextTest, TextOfEveryKindIsReplacedWhole) {
  expectEdits(
      {
          {"[s]\nt = \"old\" # c\n", "[s]\nt = \"new\" # c\n"},
          {"[s]\nt='o\\d'\n", "[s]\nt=\"new\"\n"},
          {"[s]\nt   =   \"o\\\"#d\\\\\"   # c\n", "[s]\nt   =   \"new\"   # c\n"},
          {"[s]\nt = \"\"\"\nold \\\"\"\" # no\n\"\"\"\"\" # c\nu = 1\n",
           "[s]\nt = \"new\" # c\nu = 1\n"},
          {"[s]\nt = '''\nold ''\\'''''\nu = 1\n", "[s]\nt = \"new\"\nu = 1\n"},
          {"[s]\nt = \"\"", "[s]\nt = \"new\""},
          {"[s]\r\nt = 'é'\r\n", "[s]\r\nt = \"new\"\r\n"},
      },
      set);
}

TEST_F(EditTextTest, InWhicheverWayTheFileWritesTheTable) {
  expectEdits(
      {
          {"s.t = 'old'\n[t]\n", "s.t = \"new\"\n[t]\n"},
          {"s = {t='old',u='t'}\n", "s = {t=\"new\",u='t'}\n"},
          {"[u]\nt = 'u'\n[s.t2]\nt = 's'\n[ 's' ]\n't' = 'old'\n",
           "[u]\nt = 'u'\n[s.t2]\nt = 's'\n[ 's' ]\n't' = \"new\"\n"},
      },
      set);
}

TEST_F(EditTextTest, MissingTextIsMade) {
  expectEdits(
      {
          {"", "[s]\nt = \"new\"\n"},
          {"[s]\nu = 1\n\n\n[v]\n", "[s]\nu = 1\nt = \"new\"\n\n\n[v]\n"},
          {"s.u = 1\n", "s.u = 1\ns.t = \"new\"\n"},
          {"s = { u = 1 }\n", "s = { u = 1, t = \"new\" }\n"},
      },
      set);
  expectEdit(
      "", [](EditableFile& file) { return file.setText("s", "t", ""); }, "[s]\nt = \"\"\n");
}

TEST_F(EditTextTest, TextThatIsThereAlreadyKeepsItsQuotes) {
  expectEdit("[s]\nt = 'new'\n", set, "[s]\nt = 'new'\n");
  expectEdit(
      "[s]\nf = ['x']\n", [](EditableFile& file) { return file.replaceInList("s", "f", "x", "x"); },
      "[s]\nf = ['x']\n");
}

TEST_F(EditTextTest, ElementIsReplacedWhereItStands) {
  const EditRun replace = [](EditableFile& file) {
    return file.replaceInList("s", "f", "x", "new");
  };
  expectEdits(
      {
          {"[s]\nf = [\"x\"]\n", "[s]\nf = [\"new\"]\n"},
          {"[s]\nf = ['a', 'x', 'x']\n", "[s]\nf = ['a', \"new\", 'x']\n"},
          {"[s]\r\nf = [ # all\r\n  '''x'''  ,  # x\r\n]",
           "[s]\r\nf = [ # all\r\n  \"new\"  ,  # x\r\n]"},
          {"s = { f = ['x'] }", "s = { f = [\"new\"] }"},
      },
      replace);
  expectEdit(
      "[s]\nf = ['x', 'X', 'x']\n",
      [](EditableFile& file) { return file.replaceElement("s", "f", 2, "y"); },
      "[s]\nf = ['x', 'X', \"y\"]\n");
}

TEST_F(EditTextTest, AllElementsAreReplacedWhereTheyStand) {
  expectEdit(
      "[s]\nf = [ 'x', # one\n  'same',\n  'y' ]\n",
      [](EditableFile& file) {
        return file.replaceElements("s", "f", {"a", "same", "b"});
      },
      "[s]\nf = [ \"a\", # one\n  'same',\n  \"b\" ]\n");
  expectEdit(
      "[s]\n", [](EditableFile& file) { return file.replaceElements("s", "f", {}); }, "[s]\n");
}

TEST_F(EditTextTest, WhatNeedsEscapingIsEscaped) {
  expectEdit(
      "",
      [](EditableFile& file) {
        return file.setText("s", "t", "a\\b\"c\"\t\n\r\b\f\x01\x1F\x7F é € 𝄞 'd' #");
      },
      "[s]\nt = \"a\\\\b\\\"c\\\"\\t\\n\\r\\b\\f\\u0001\\u001F\\u007F é € 𝄞 'd' #\"\n");
}

TEST_F(EditTextTest, EveryCharacterReadsBackAsItWasSet) {
  const auto utf8 = [](char32_t code) {
    std::string text;
    if (code < 0x80) {
      return text += static_cast<char>(code);
    }
    const int rest = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    const unsigned lead[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(lead[rest] | (code >> (6 * rest)));
    for (int i = rest - 1; i >= 0; --i) {
      text += static_cast<char>(0x80 | ((code >> (6 * i)) & 0x3F));
    }
    return text;
  };
  EditableFile file = opened("");
  for (char32_t code = 1; code < 0x10000; code += code < 0x3000 ? 64 : 1024) {
    std::string text;
    for (char32_t i = code; i < code + 64; ++i) {
      text += i >= 0xD800 && i < 0xE000 ? "" : utf8(i);
    }
    ASSERT_TRUE(file.setText("s", "t", text)) << std::hex << static_cast<unsigned>(code);
    ASSERT_EQ(file.textOf("s", "t"), text);
  }
  for (const char32_t code : {0xFFFEU, 0xFFFFU, 0x10000U, 0x10FFFFU}) {
    ASSERT_TRUE(file.setText("s", "t", utf8(code))) << std::hex << static_cast<unsigned>(code);
    ASSERT_EQ(file.textOf("s", "t"), utf8(code));
  }
}

TEST_F(EditTextTest, ElementsComeInOrderWithTheirValues) {
  const EditableFile file = opened("[s]\nf = ['a\\b', \"é\", '''c''']\ne = []\nt = 'u'\n");
  EXPECT_EQ(file.elementsOf("s", "f"), (Values{"a\\b", "é", "c"}));
  EXPECT_EQ(file.elementsOf("s", "e"), Values{});
  EXPECT_EQ(file.elementsOf("s", "missing"), Values{});
  EXPECT_EQ(file.textOf("s", "t"), "u");
  EXPECT_EQ(file.textOf("missing", "t"), "");
}

} // namespace
