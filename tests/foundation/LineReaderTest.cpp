#include "foundation/LineReader.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

using Opening = platform::FileReader::Opening;

class LineReading : public ::testing::Test {
protected:
  std::vector<std::string> linesOf(const std::string& content) const {
    LineReader reader;
    EXPECT_EQ(reader.open(folder_.file("file", content)), Opening::kOpened);
    std::vector<std::string> lines;
    while (const auto line = reader.next())
      lines.emplace_back(*line);
    EXPECT_FALSE(reader.failed());
    return lines;
  }

  const TemporaryFolder folder_;
};

using Lines = std::vector<std::string>;

TEST_F(LineReading, GivesLinesWithTheirEnds) {
  // The end of a line where the system has it so; else a character before it.
  const std::string two = inTextMode("\n") == "\n" ? "two\r\n" : "two\n";
  EXPECT_EQ(linesOf("one\ntwo\r\n\nfour"), (Lines{"one\n", two, "\n", "four"}));
  EXPECT_EQ(linesOf(inTextMode("one\ntwo\n")), (Lines{"one\n", "two\n"}));
}

TEST_F(LineReading, GivesNothingForAnEmptyFile) {
  EXPECT_EQ(linesOf(""), Lines{});
}

TEST_F(LineReading, DoesNotAddALineAfterTheLastLineEnd) {
  EXPECT_EQ(linesOf("one\n"), (Lines{"one\n"}));
}

TEST_F(LineReading, GivesALineOfTheLongestPieceWhole) {
  const std::string line = std::string(1022, 'a') + "\n";
  EXPECT_EQ(linesOf(line + "b"), (Lines{line, "b"}));
}

TEST_F(LineReading, CutsALongerLineIntoPieces) {
  const std::string piece(1023, 'a');
  EXPECT_EQ(linesOf(piece + "\nnext\n"), (Lines{piece, "\n", "next\n"}));
  EXPECT_EQ(linesOf(piece + "b\n"), (Lines{piece, "b\n"}));
}

TEST_F(LineReading, LosesNoByteOfFilesOfAnySize) {
  for (const std::size_t size : {1023U, 1024U, 4095U, 4096U, 4097U, 100000U}) {
    std::string content(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
      content[i] = static_cast<char>(i * i / 7);
    std::string read;
    for (const std::string& line : linesOf(content)) {
      EXPECT_LE(line.size(), 1023U);
      read += line;
    }
    EXPECT_EQ(read, content) << size;
  }
}

TEST_F(LineReading, KeepsZeroBytes) {
  const std::string line("a\0b\n", 4);
  EXPECT_EQ(linesOf(line), (Lines{line}));
}

TEST_F(LineReading, OpensNothingButAFile) {
  LineReader reader;
  EXPECT_EQ(reader.open(folder_.path("missing")), Opening::kNoReadableFile);
  EXPECT_EQ(reader.open(folder_.folder("sub")), Opening::kNoReadableFile);
  EXPECT_EQ(reader.open(""), Opening::kNoReadableFile);
  EXPECT_EQ(reader.open(folder_.file("file") + std::string("\0", 1)), Opening::kNoReadableFile);
}

} // namespace
} // namespace tervix::testing
