#ifndef TERVIX_TEST_READERS_READER_FIXTURE_H
#define TERVIX_TEST_READERS_READER_FIXTURE_H

#include "Mistake.h"
#include "TempFolder.h"
#include "tvx_wobj.h"

#include <gtest/gtest.h>

#include <list>
#include <string>
#include <string_view>

using Texts = std::list<std::string>;

// Reads project files into the fixture's outputs, which hold something before every test.
class ReaderFixture : public testing::Test {
protected:
  int readSection(const std::string& file, const char* section = "Design Resources") {
    return readProjectFiles(file, section, files, second, true);
  }
  int readItem(const std::string& file, const char* section, const std::string& item) {
    return readProjectFiles(file, section, item, files, second, true);
  }
  int readProfiles(const std::string& file) {
    return readSimProfiles(file, files, second, text, true);
  }
  int readOutputFile(const std::string& file) {
    return readItemFromProject(file, "Design Resources", "TERVIX_Output_File", text);
  }

  void expectUntouchedOutputs() const {
    EXPECT_EQ(files, Texts{"before"});
    EXPECT_EQ(second, Texts{"second"});
    EXPECT_EQ(text, "before");
  }

  static void expectMistake(std::string_view message, unsigned line, unsigned column) {
    const auto mistake = tervix::formats::lastMistake();
    ASSERT_TRUE(mistake);
    EXPECT_EQ(mistake->text, message);
    EXPECT_EQ(mistake->line, line);
    EXPECT_EQ(mistake->column, column);
  }

  // For messages that are the parser's own.
  static void expectMistakeAt(unsigned line, unsigned column) {
    const auto mistake = tervix::formats::lastMistake();
    ASSERT_TRUE(mistake);
    EXPECT_FALSE(mistake->text.empty());
    EXPECT_EQ(mistake->text.find('\n'), std::string::npos);
    EXPECT_EQ(mistake->line, line) << mistake->text;
    EXPECT_EQ(mistake->column, column) << mistake->text;
  }

  TempFolder folder;
  Texts files{"before"};
  Texts second{"second"};
  std::string text = "before";
};

#endif
