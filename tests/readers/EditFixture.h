#ifndef TERVIX_TEST_READERS_EDIT_FIXTURE_H
#define TERVIX_TEST_READERS_EDIT_FIXTURE_H

#include "EditableFile.h"
#include "Mistake.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

using tervix::formats::EditableFile;
using Values = std::vector<std::string>;
using EditRun = std::function<bool(EditableFile&)>;

// A text before and after the one edit that a table of them is about.
struct Rewrite {
  std::string_view before;
  std::string_view after;
};

class EditFixture : public testing::Test {
protected:
  EditableFile opened(std::string_view content) {
    auto file = EditableFile::open(folder.write("p.tvp", content));
    if (!file) {
      ADD_FAILURE() << tervix::formats::lastMistake()->text << "\n" << content;
      return *EditableFile::open(folder.write("p.tvp", ""));
    }
    return *file;
  }

  void expectEdit(std::string_view before, const EditRun& edit, std::string_view after) {
    EditableFile file = opened(before);
    EXPECT_TRUE(edit(file)) << before;
    if (const auto mistake = tervix::formats::lastMistake()) {
      ADD_FAILURE() << mistake->text << "\n" << before;
    }
    EXPECT_EQ(file.text(), after);
  }

  void expectEdits(const std::vector<Rewrite>& rewrites, const EditRun& edit) {
    for (const Rewrite& rewrite : rewrites) {
      expectEdit(rewrite.before, edit, rewrite.after);
    }
  }

  void expectRefused(std::string_view before, const EditRun& edit, std::string_view message,
                     unsigned line = 0, unsigned column = 0) {
    EditableFile file = opened(before);
    EXPECT_FALSE(edit(file)) << before;
    EXPECT_EQ(file.text(), before);
    const auto mistake = tervix::formats::lastMistake();
    ASSERT_TRUE(mistake);
    EXPECT_EQ(mistake->file, folder.path("p.tvp"));
    EXPECT_EQ(mistake->text, message);
    EXPECT_EQ(mistake->line, line);
    EXPECT_EQ(mistake->column, column);
  }

  TempFolder folder;
};

#endif
