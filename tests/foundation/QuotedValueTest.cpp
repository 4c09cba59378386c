#include "foundation/QuotedValue.h"

#include <string>

#include <gtest/gtest.h>

namespace tervix {
namespace {

TEST(QuotedValue, IsTheTextBetweenTheFirstTwoQuotes) {
  EXPECT_EQ(quotedValue("ProfileName = \"tran\"\n"), "tran");
  EXPECT_EQ(quotedValue("Key=\"a\" \"b\""), "a");
  EXPECT_EQ(quotedValue("Key \"with blanks %s \xC3\xA4\" tail"), "with blanks %s \xC3\xA4");
}

TEST(QuotedValue, RunsToTheEndOfTheLineWithoutASecondQuote) {
  EXPECT_EQ(quotedValue("Key = \"open"), "open");
}

TEST(QuotedValue, NeedsSomethingBeforeTheFirstQuote) {
  EXPECT_EQ(quotedValue("\"tran\""), std::nullopt);
}

TEST(QuotedValue, IsMissingWithoutQuotesOrContent) {
  EXPECT_EQ(quotedValue("ProfileName = tran"), std::nullopt);
  EXPECT_EQ(quotedValue("ProfileName = \"\""), std::nullopt);
  EXPECT_EQ(quotedValue("ProfileName = \""), std::nullopt);
  EXPECT_EQ(quotedValue(""), std::nullopt);
}

TEST(QuotedValue, EndsAtAZeroByte) {
  EXPECT_EQ(quotedValue(std::string("Key=\"a\0b\"", 9)), "a");
  EXPECT_EQ(quotedValue(std::string("Key\0=\"a\"", 8)), std::nullopt);
}

} // namespace
} // namespace tervix
