#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "foundation/ErrorTable.h"

// The page on errors has every code with its text, and no other.

namespace {

std::string document() {
  std::ifstream stream(TERVIX_ERROR_DOCUMENT);
  std::ostringstream text;
  text << stream.rdbuf();
  return text.str();
}

TEST(ErrorDocument, HasEveryCodeWithItsTextAndNoOther) {
  std::string rows;
  for (unsigned long code = 10101; code <= 10124; ++code) {
    std::string text;
    long category = 0;
    ASSERT_EQ(tervix::getErrorTemplate(text, category, code), 0U);
    rows += "| " + std::to_string(code) + " | " + text + " |\n";
  }
  const std::string head = "| Code | Text |\n|---|---|\n";
  const std::string page = document();
  const std::size_t table = page.find(head);
  ASSERT_NE(table, std::string::npos);
  EXPECT_EQ(page.substr(table + head.size()), rows);
}

} // namespace
