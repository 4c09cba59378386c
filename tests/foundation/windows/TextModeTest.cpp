#include <algorithm>

#include <gtest/gtest.h>

#include "foundation/LineReader.h"
#include "foundation/platform/Platform.h"
#include "foundation/platform/windows/TextMode.h"
#include "tests/support/TemporaryFolder.h"

// Text is "\n" in memory and "\r\n" on disk, and a file from a system where it is "\n" on disk too
// reads the same.

namespace tervix::testing {
namespace {

// A file that gives its bytes in blocks of one size.
struct PiecewiseFile {
  std::string bytes;
  std::size_t block;

  std::optional<std::size_t> read(char* buffer, std::size_t size) {
    const std::size_t count = std::min({size, block, bytes.size()});
    bytes.copy(buffer, count);
    bytes.erase(0, count);
    return count;
  }
};

std::string readAsText(const std::string& bytes, std::size_t block, std::size_t piece) {
  PiecewiseFile file{bytes, block};
  platform::TextReader<PiecewiseFile> reader(file);
  std::string text;
  std::string buffer(piece, '\0');
  for (;;) {
    const auto count = reader.read(buffer.data(), buffer.size());
    if (!count || *count == 0)
      return count ? text : "failed";
    text.append(buffer, 0, *count);
  }
}

TEST(TextMode, JoinsLineEndsWhereverAPieceEnds) {
  const std::string bytes = "a\r\nb\n\r\n\rc\r\r\n\x1A"
                            "d\r";
  for (std::size_t block = 1; block <= bytes.size(); ++block)
    for (std::size_t piece = 1; piece <= bytes.size(); ++piece)
      EXPECT_EQ(readAsText(bytes, block, piece), "a\nb\n\n\rc\r\n\x1A"
                                                 "d\r")
          << block << " " << piece;
}

TEST(TextMode, WritesTheSystemsLineEnds) {
  const TemporaryFolder folder;
  const std::string path = folder.path("x.sim");
  ASSERT_TRUE(platform::replaceFile(path, "one\ntwo"));
  EXPECT_EQ(contentOf(path), "one\r\ntwo");
}

TEST(TextMode, AFileOfEitherSystemReadsTheSame) {
  const TemporaryFolder folder;
  for (const char* bytes : {"one\n\ntwo\n", "one\r\n\r\ntwo\r\n"}) {
    LineReader reader;
    ASSERT_EQ(reader.open(folder.file("x.sim", bytes)), platform::FileReader::Opening::kOpened);
    std::string lines;
    while (const auto line = reader.next())
      lines += *line;
    EXPECT_EQ(lines, "one\n\ntwo\n");
  }
}

} // namespace
} // namespace tervix::testing
