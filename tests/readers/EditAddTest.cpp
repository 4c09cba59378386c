// Adding to a list, in every layout that a list may have.

#include "EditFixture.h"

namespace {

class EditAddTest : public EditFixture {
protected:
  static bool add(EditableFile& file) { return file.addToList("s", "f", "x"); }
};

TEST_F(EditAddTest, ListOnOneLineStaysOnOne) {
  expectEdits(
      {
          {"[s]\nf = [\"a\"]\n", "[s]\nf = [\"a\", \"x\"]\n"},
          {"[s]\nf = [\"a\", \"b\"]\n", "[s]\nf = [\"a\", \"b\", \"x\"]\n"},
          {"[s]\nf=[\"a\",\"b\"]\n", "[s]\nf=[\"a\",\"b\",\"x\"]\n"},
          {"[s]\nf = [ \"a\" ]\n", "[s]\nf = [ \"a\", \"x\" ]\n"},
          {"[s]\nf = [ \"a\",   \"b\" ]\n", "[s]\nf = [ \"a\",   \"b\",   \"x\" ]\n"},
          {"[s]\nf = [\"a\" , \"b\"]\n", "[s]\nf = [\"a\" , \"b\", \"x\"]\n"},
          {"[s]\nf = [\"a\"] # c\n", "[s]\nf = [\"a\", \"x\"] # c\n"},
          {"[s]\nf = ['a\\b', \"\"\"c\"\"\"]\n", "[s]\nf = ['a\\b', \"\"\"c\"\"\", \"x\"]\n"},
      },
      add);
}

TEST_F(EditAddTest, TrailingCommaStaysTrailing) {
  expectEdits(
      {
          {"[s]\nf = [\"a\",]\n", "[s]\nf = [\"a\", \"x\",]\n"},
          {"[s]\nf = [\"a\", \"b\", ]\n", "[s]\nf = [\"a\", \"b\", \"x\", ]\n"},
          {"[s]\nf = [\n  \"a\",\n]\n", "[s]\nf = [\n  \"a\",\n  \"x\",\n]\n"},
          {"[s]\nf = [\n  \"a\",]\n", "[s]\nf = [\n  \"a\",\n  \"x\",]\n"},
          {"[s]\nf = [\n  \"a\"\n  ,\n]\n", "[s]\nf = [\n  \"a\"\n  ,\n  \"x\",\n]\n"},
      },
      add);
}

TEST_F(EditAddTest, EmptyList) {
  expectEdits(
      {
          {"[s]\nf = []\n", "[s]\nf = [\"x\"]\n"},
          {"[s]\nf = [ ]\n", "[s]\nf = [ \"x\" ]\n"},
          {"[s]\nf = [\n]\n", "[s]\nf = [\n  \"x\",\n]\n"},
          {"[s]\n  f = [\n  ]\n", "[s]\n  f = [\n    \"x\",\n  ]\n"},
          {"[s]\n\tf = [\n\t]\n", "[s]\n\tf = [\n\t\t\"x\",\n\t]\n"},
          {"[s]\nf = [ # none\n]\n", "[s]\nf = [ # none\n  \"x\",\n]\n"},
          {"[s]\nf = [\n    # \"a\",\n]\n", "[s]\nf = [\n    # \"a\",\n    \"x\",\n]\n"},
          {"[s]\nf = [\n    # \"a\",\n\n]\n", "[s]\nf = [\n    # \"a\",\n\n    \"x\",\n]\n"},
      },
      add);
}

TEST_F(EditAddTest, ElementPerLineGetsALine) {
  expectEdits(
      {
          {"[s]\nf = [\n  \"a\",\n  \"b\"\n]\n", "[s]\nf = [\n  \"a\",\n  \"b\",\n  \"x\"\n]\n"},
          {"[s]\nf = [\n\t\"a\"\n]\n", "[s]\nf = [\n\t\"a\",\n\t\"x\"\n]\n"},
          {"[s]\nf = [\n  \"a\", \"b\",\n  \"c\"\n]\n",
           "[s]\nf = [\n  \"a\", \"b\",\n  \"c\",\n  \"x\"\n]\n"},
      },
      add);
}

TEST_F(EditAddTest, HandAlignedListStaysAligned) {
  expectEdits(
      {
          {"[s]\nf = [\"a\",\n     \"b\"]\n", "[s]\nf = [\"a\",\n     \"b\",\n     \"x\"]\n"},
          {"[s]\nf = [\"a\",\n     \"b\" ] # c\n",
           "[s]\nf = [\"a\",\n     \"b\",\n     \"x\" ] # c\n"},
          {"[s]\nf = [ \"a\", # first\n    ]\n",
           "[s]\nf = [ \"a\", # first\n      \"x\",\n    ]\n"},
          {"s = { \"é\" = 1, f = [ \"a\" # first\n] }\n",
           "s = { \"é\" = 1, f = [ \"a\", # first\n                     \"x\"\n] }\n"},
          {"s.f = [\"é\", \"b\" # é\n]\n", "s.f = [\"é\", \"b\", # é\n       \"x\"\n]\n"},
      },
      add);
}

TEST_F(EditAddTest, WrappedListGoesOnOnItsLastLine) {
  expectEdits(
      {
          {"[s]\nf = [\n  \"a\", \"b\",\n  \"c\", \"d\",\n]\n",
           "[s]\nf = [\n  \"a\", \"b\",\n  \"c\", \"d\", \"x\",\n]\n"},
          {"[s]\nf = [\n  \"a\"\n, \"b\"\n]\n", "[s]\nf = [\n  \"a\"\n, \"b\", \"x\"\n]\n"},
      },
      add);
}

TEST_F(EditAddTest, CommentsStayWithTheirElements) {
  expectEdits(
      {
          {"[s]\nf = [\n  \"a\", # about a, [not] \"x\"\n  \"b\"  # about b\n]\n",
           "[s]\nf = [\n  \"a\", # about a, [not] \"x\"\n  \"b\",  # about b\n  \"x\"\n]\n"},
          {"[s]\nf = [\n  \"a\",\n  # the end\n]\n",
           "[s]\nf = [\n  \"a\",\n  \"x\",\n  # the end\n]\n"},
          {"[s]\nf = [\n  # the start\n\n  \"a\" # ],\n\n  # the end\n]\n",
           "[s]\nf = [\n  # the start\n\n  \"a\", # ],\n  \"x\"\n\n  # the end\n]\n"},
          {"[s]\nf = [\n  \"a\" # 1\n  , # 2\n]\n",
           "[s]\nf = [\n  \"a\" # 1\n  , # 2\n  \"x\",\n]\n"},
      },
      add);
}

TEST_F(EditAddTest, LineEndsAreThoseOfTheNeighbours) {
  expectEdits(
      {
          {"[s]\r\nf = [\r\n  \"a\"\r\n]\r\n", "[s]\r\nf = [\r\n  \"a\",\r\n  \"x\"\r\n]\r\n"},
          {"[s]\r\nf = [\r\n]\r\n", "[s]\r\nf = [\r\n  \"x\",\r\n]\r\n"},
          {"[s]\r\nf = [\"a\",\r\n     \"b\"]", "[s]\r\nf = [\"a\",\r\n     \"b\",\r\n     \"x\"]"},
          {"[s]\r\n", "[s]\r\nf = [\"x\"]\r\n"},
          {"[o]\r\na = 1\r\n", "[o]\r\na = 1\r\n\r\n[s]\r\nf = [\"x\"]\r\n"},
          {"[o]\n# LF\n[s]\r\na = 1\r\n[t]\n", "[o]\n# LF\n[s]\r\na = 1\r\nf = [\"x\"]\r\n[t]\n"},
      },
      add);
}

TEST_F(EditAddTest, ByteOrderMarkStaysAndIsNoColumn) {
  expectEdits(
      {
          {"\xEF\xBB\xBF[s]\nf = [\"a\"]\n", "\xEF\xBB\xBF[s]\nf = [\"a\", \"x\"]\n"},
          {"\xEF\xBB\xBF[s]\n", "\xEF\xBB\xBF[s]\nf = [\"x\"]\n"},
          {"\xEF\xBB\xBF", "\xEF\xBB\xBF[s]\nf = [\"x\"]\n"},
          {"\xEF\xBB\xBFs.f = [ \"a\", # 1\n]",
           "\xEF\xBB\xBFs.f = [ \"a\", # 1\n        \"x\",\n]"},
          {"\xEF\xBB\xBFs.a = 1", "\xEF\xBB\xBFs.a = 1\ns.f = [\"x\"]"},
      },
      add);
}

TEST_F(EditAddTest, FileWithoutALastLineEndKeepsNone) {
  expectEdits(
      {
          {"[s]\nf = [\"a\"]", "[s]\nf = [\"a\", \"x\"]"},
          {"[s]", "[s]\nf = [\"x\"]"},
          {"[s]\na = 1 # c", "[s]\na = 1 # c\nf = [\"x\"]"},
          {"[o]\na = 1", "[o]\na = 1\n\n[s]\nf = [\"x\"]"},
      },
      add);
}

TEST_F(EditAddTest, MissingListIsMadeBelowTheOthersOfItsTable) {
  expectEdits(
      {
          {"[s]\n", "[s]\nf = [\"x\"]\n"},
          {"[s] # header\n\n[t]\n", "[s] # header\nf = [\"x\"]\n\n[t]\n"},
          {"[s]\na = 1 # one\n\n# about t\n[t]\nf = 2\n",
           "[s]\na = 1 # one\nf = [\"x\"]\n\n# about t\n[t]\nf = 2\n"},
          {"  [ \"s\" ]\n    a = [\n      1,\n    ] # c\n# end\n",
           "  [ \"s\" ]\n    a = [\n      1,\n    ] # c\n    f = [\"x\"]\n# end\n"},
          {"[s.t]\nf = 1\n[s]\na = '''\n[t]\n'''\n[u]\n",
           "[s.t]\nf = 1\n[s]\na = '''\n[t]\n'''\nf = [\"x\"]\n[u]\n"},
          {"['s']\na.b = 1979-05-27 07:32:00\n", "['s']\na.b = 1979-05-27 07:32:00\nf = [\"x\"]\n"},
      },
      add);
}

TEST_F(EditAddTest, MissingTableGoesToTheEnd) {
  expectEdits(
      {
          {"", "[s]\nf = [\"x\"]\n"},
          {"# only this\n", "# only this\n\n[s]\nf = [\"x\"]\n"},
          {"a = 1\n\n", "a = 1\n\n[s]\nf = [\"x\"]\n"},
          {"a = 1\n \t\n", "a = 1\n \t\n[s]\nf = [\"x\"]\n"},
          {"[s.t]\nf = 1\n", "[s.t]\nf = 1\n\n[s]\nf = [\"x\"]\n"},
          {"[[s.t]]\nf = 1\n", "[[s.t]]\nf = 1\n\n[s]\nf = [\"x\"]\n"},
          {"[t.s]\nf = 1\n", "[t.s]\nf = 1\n\n[s]\nf = [\"x\"]\n"},
          {"[[t]]\ns.f = 1\n", "[[t]]\ns.f = 1\n\n[s]\nf = [\"x\"]\n"},
      },
      add);
}

TEST_F(EditAddTest, DottedKeys) {
  expectEdits(
      {
          {"s.f = []\n", "s.f = [\"x\"]\n"},
          {"\"s\" . 'f' = []\n[t]\n", "\"s\" . 'f' = [\"x\"]\n[t]\n"},
          {"'s'.a = 1 # c\nt.f = 2\n[t.u]\n", "'s'.a = 1 # c\n's'.f = [\"x\"]\nt.f = 2\n[t.u]\n"},
          {"s.a = 1\ns.b.c = {}\n", "s.a = 1\ns.b.c = {}\ns.f = [\"x\"]\n"},
          {"\"\\u0073\".\"\\u0066\" = []\n", "\"\\u0073\".\"\\u0066\" = [\"x\"]\n"},
      },
      add);
}

TEST_F(EditAddTest, InlineTables) {
  expectEdits(
      {
          {"s = {}\n", "s = { f = [\"x\"] }\n"},
          {"s = {  } # c\n", "s = { f = [\"x\"] } # c\n"},
          {"s = {a = 1}\n", "s = {a = 1, f = [\"x\"]}\n"},
          {"s = { f = [], a.b = { f = [] } }\n", "s = { f = [\"x\"], a.b = { f = [] } }\n"},
          {"s = { a = \"}\", f = [\n  'b', # }\n] }\n",
           "s = { a = \"}\", f = [\n  'b', # }\n  \"x\",\n] }\n"},
      },
      add);
}

TEST_F(EditAddTest, NamesAreQuotedWhereTheyHaveToBe) {
  const EditRun add = [](EditableFile& file) {
    return file.addToList("Tervix Resources", "Model \"Libraries\"", "amp.lib");
  };
  expectEdits(
      {
          {"", "[\"Tervix Resources\"]\n\"Model \\\"Libraries\\\"\" = [\"amp.lib\"]\n"},
          {"\"Tervix Resources\".\"Model \\\"Libraries\\\"\" = []\n",
           "\"Tervix Resources\".\"Model \\\"Libraries\\\"\" = [\"amp.lib\"]\n"},
          {"'Tervix Resources'.'Model \"Libraries\"' = ['a']\n",
           "'Tervix Resources'.'Model \"Libraries\"' = ['a', \"amp.lib\"]\n"},
      },
      add);
  expectEdit(
      "", [](EditableFile& file) { return file.addToList("", "é", "x"); },
      "[\"\"]\n\"é\" = [\"x\"]\n");
}

TEST_F(EditAddTest, ListOfTheSameNameInAnotherTableIsAnotherList) {
  expectEdits(
      {
          {"f = [\"r\"]\n[a]\nf = [\"a\"]\n[s]\nf = [\"s\"]\n[s.f2]\nf = []\n",
           "f = [\"r\"]\n[a]\nf = [\"a\"]\n[s]\nf = [\"s\", \"x\"]\n[s.f2]\nf = []\n"},
          {"[[a]]\nf = []\n[[a]]\ns.f = []\n[s]\nf = []\n",
           "[[a]]\nf = []\n[[a]]\ns.f = []\n[s]\nf = [\"x\"]\n"},
      },
      add);
}

TEST_F(EditAddTest, WhatLooksLikeTomlInTextIsText) {
  expectEdits(
      {
          {"a = \"\"\"\n[s]\nf = [\"a\"]\n\"\"\"\"\"\n[s]\nf = [\"]\", '#\"', \"\\\"]\"]\n",
           "a = \"\"\"\n[s]\nf = [\"a\"]\n\"\"\"\"\"\n[s]\nf = [\"]\", '#\"', \"\\\"]\", \"x\"]\n"},
          {"# [s]\n# f = []\n[s]\nf = ['''\n]''', # ]\n  \"\"\"a\\\n  b\"\"\"\n]\n",
           "# [s]\n# f = []\n[s]\nf = ['''\n]''', # ]\n  \"\"\"a\\\n  b\"\"\",\n  \"x\"\n]\n"},
      },
      add);
}

TEST_F(EditAddTest, ValuesOfOtherKindsAreLeftAlone) {
  const std::string others = "n = nan\ni = 0xDEAD_BEEF\nd = 1979-05-27 07:32:00Z\n"
                             "t = {u = [[1, 2], [-0.0, inf]], v = {}}\n[[l]]\n[[l]]\na = 1\n";
  expectEdit(others + "[s]\nf = []\n", add, others + "[s]\nf = [\"x\"]\n");
}

} // namespace
