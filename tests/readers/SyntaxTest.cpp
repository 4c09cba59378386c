// Text that is no TOML, whatever it is instead.

#include "ReaderFixture.h"

#include <random>

namespace {

class SyntaxTest : public ReaderFixture {
protected:
  void expectRefused(std::string_view content) {
    EXPECT_NE(readSection(folder.write("p.tvp", content)), 0);
    expectUntouchedOutputs();
  }
  void expectRefusedAt(unsigned line, unsigned column, std::string_view content) {
    expectRefused(content);
    expectMistakeAt(line, column);
  }

  static std::string repeated(std::string_view part, int times) {
    std::string whole;
    for (int i = 0; i < times; ++i) {
      whole += part;
    }
    return whole;
  }
};

TEST_F(SyntaxTest, UnclosedText) {
  expectRefused("[a]\nb = \"cd\n");
  expectMistake("text in quotes must end on its line and hold no control character", 2, 8);
}

TEST_F(SyntaxTest, BackslashOfAPathInDoubleQuotes) {
  expectRefused("[\"Design Resources\"]\nFiles = [\"old\\amp.dsn\"]\n");
  expectMistake(
      "between double quotes a backslash must be doubled; between single quotes it stands alone", 2,
      15);
}

TEST_F(SyntaxTest, MissingValue) {
  expectRefusedAt(2, 4, "[a]\nb =\n");
}

TEST_F(SyntaxTest, SectionNameWithABlankNeedsQuotes) {
  expectRefusedAt(1, 9, "[Design Resources]\n");
}

TEST_F(SyntaxTest, DuplicateKey) {
  expectRefused("[a]\nb = 1\nb = 2\n");
  expectMistake("this name has already been given a value or a table", 3, 5);
}

TEST_F(SyntaxTest, DuplicateSection) {
  expectRefused("[a]\nb = 1\n[a]\n");
  expectMistake("this name has already been given a value or a table", 3, 1);
}

TEST_F(SyntaxTest, InvalidUtf8) {
  expectRefused("[a]\nb = \"c\xFF\"\n");
  const auto mistake = tervix::formats::lastMistake();
  ASSERT_TRUE(mistake);
  EXPECT_EQ(mistake->line, 2U);
  EXPECT_GE(mistake->column, 1U);
}

TEST_F(SyntaxTest, Utf8CutOffAtTheEnd) {
  expectRefused("[a]\nb = \"c\xC3");
  EXPECT_EQ(tervix::formats::lastMistake()->line, 2U);
}

TEST_F(SyntaxTest, ControlCharacters) {
  using namespace std::string_view_literals;
  constexpr std::string_view message =
      "found a control character, which has no place in a text file";
  expectRefused("[a]\nb = \"é\0\"\n"sv);
  expectMistake(message, 2, 7);
  expectRefused("\0"sv);
  expectMistake(message, 1, 1);
  expectRefused("a = 1 # \0\n"sv);
  expectMistake(message, 1, 9);
  expectRefused("[\x1E]\n"sv);
  expectMistake(message, 1, 2);
  expectRefused("a = \x1B[31m\n"sv);
  expectMistake(message, 1, 5);
  expectRefused("a = 1\x7F\n"sv);
  expectMistake(message, 1, 6);
}

TEST_F(SyntaxTest, HeaderThatBeginsWithNoName) {
  for (const std::string_view start : {"+", "é", "=", ".", "$", "あ", "\t\r"}) {
    expectRefused("[" + std::string(start) + "\n");
    EXPECT_EQ(tervix::formats::lastMistake()->line, 1U) << start;
  }
}

TEST_F(SyntaxTest, KeyThatIsNotAsciiNeedsQuotes) {
  expectRefusedAt(1, 1, "é = 1\n");
  expectRefusedAt(1, 1, "あ = 1\n");
  EXPECT_EQ(readSection(folder.write("p.tvp", "\"é\" = \"\"\"\\\n  é\"\"\"\n")), 0);
}

TEST_F(SyntaxTest, Utf16IsNoTextEither) {
  using namespace std::string_view_literals;
  expectRefused("\xFF\xFE[\0a\0]\0\n\0"sv);
  EXPECT_EQ(tervix::formats::lastMistake()->line, 1U);
}

TEST_F(SyntaxTest, BinaryJunk) {
  std::mt19937 random(20240601);
  for (int round = 0; round < 200; ++round) {
    std::string junk(300, '\0');
    for (char& byte : junk) {
      byte = static_cast<char>(random() & 0xFFU);
    }
    expectRefused(junk);
    EXPECT_GE(tervix::formats::lastMistake()->line, 1U);
    EXPECT_GE(tervix::formats::lastMistake()->column, 1U);
  }
}

TEST_F(SyntaxTest, EveryWayToCutAFileShortIsSurvived) {
  const std::string whole =
      "\xEF\xBB\xBF[\"Design Resources\"]\r\nFiles = [\"é\", 'b', \"\"\"c\"\"\"]\r\n"
      "x.y = {z = 1979-05-27T07:32:00Z, w = [0x1F, 1e3, nan]} # ü\r\n";
  for (std::size_t size = 0; size < whole.size(); ++size) {
    files.clear();
    const int status = readSection(folder.write("p.tvp", whole.substr(0, size)));
    EXPECT_EQ(status != 0, tervix::formats::lastMistake().has_value()) << size;
  }
}

TEST_F(SyntaxTest, ListsNestedTooDeep) {
  expectRefused("[a]\nb = " + repeated("[", 100000) + "\n");
  const auto mistake = tervix::formats::lastMistake();
  EXPECT_EQ(mistake->line, 2U);
  EXPECT_GT(mistake->column, 5U);
  EXPECT_EQ(mistake->text.find("TOML"), std::string::npos) << mistake->text;
}

TEST_F(SyntaxTest, TablesNestedTooDeep) {
  expectRefused("b = " + repeated("{a=", 100000) + "1" + repeated("}", 100000) + "\n");
  EXPECT_EQ(tervix::formats::lastMistake()->line, 1U);
}

TEST_F(SyntaxTest, KeyOfTooManyParts) {
  constexpr std::string_view message = "found a key of too many dotted parts";
  const std::string parts = repeated("a.", 1000000);
  expectRefused("x = 1.5\n" + parts + "b = 1\n");
  expectMistake(message, 2, 66);
  expectRefused("[" + parts + "b]\n");
  expectMistake(message, 1, 67);
  expectRefused("x = {" + parts + "b = 1}\n");
  expectMistake(message, 1, 71);
}

TEST_F(SyntaxTest, KeyOfTooManyPartsDoesNotHideBehindQuotes) {
  const std::string parts = repeated("a.", 100000);
  expectRefused("x = {y = \"\"\"it's \\\" \"\"\"\"\", " + parts + "b = 1}\n");
  expectRefused("x = {y = '''a\nb\"''', " + parts + "b = 1}\n");
  expectRefused("x = {y = \"\", z = '\\', " + parts + "b = 1}\n");
  expectRefused("# it's\n" + parts + "b = 1\n");
  expectRefused(repeated("'='.\"#\".", 100000) + "b = 1\n");
  expectMistake("found a key of too many dotted parts", 1, 132);
}

TEST_F(SyntaxTest, DotsInNamesAreNotCounted) {
  const std::string dotted = repeated("../", 500) + "a.dsn";
  const std::string file =
      folder.write("p.tvp", "[\"Design Resources\"] # " + dotted + "\nFiles = [\"" + dotted +
                                "\", '" + dotted + "', \"\"\"" + dotted + "\"\"\"]\n");
  EXPECT_EQ(readSection(file), 0);
  EXPECT_EQ(files, (Texts{"before", dotted, dotted, dotted}));
}

} // namespace
