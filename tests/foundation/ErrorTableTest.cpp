#include "foundation/ErrorTable.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace tervix {
namespace {

struct Row {
  unsigned long code;
  const char* text;
};

const Row kRows[] = {
    {10101, "Invalid error code"},
    {10102, R"(Failed to create directory "%s". Check write permissions on the parent directory.)"},
    {10103, R"(Failed to open directory "%s". Check its existence on the disk.)"},
    {10104, R"(File "%s" does not exist.)"},
    {10105, R"(Failed to open file "%s" for reading. )"
            R"(Check its access permissions and existence on the disk.)"},
    {10106, R"(Failed to open file "%s" for writing. )"
            R"(Check disk space and write permissions on the parent directory.)"},
    {10107, R"(Failed to delete file "%s".)"},
    {10108, R"(Failed to copy file "%s" to file "%s". Check disk space and access permissions.)"},
    {10109, R"(Failed to read file "%s". Check the file syntax.)"},
    {10110, R"(Failed to read the design file "%s".)"},
    {10111, "Node not initialized properly."},
    {10112, "Invalid profile level variant type."},
    {10113, "Invalid profile based file type."},
    {10114, R"(Invalid profile based file type "%s".)"},
    {10115, R"(Failed to add profile "%s".)"},
    {10116, R"(Active profile is not associated with schematic "%s".)"},
    {10117, R"("%s" is not the root schematic. )"
            R"(Active profile can only be associated with the root.)"},
    {10118, "Invalid schematic based file type."},
    {10119, R"(Failed to add schematic "%s".)"},
    {10120, "Invalid design level variant type."},
    {10121, R"(Invalid simulation profile "%s".)"},
    {10122, "Profiles directory does not exist."},
    {10123, R"(Failed to copy contents of directory "%s" to directory "%s". )"
            R"(Check disk space and access permissions.)"},
    {10124, R"(Project file "%s" does not contain any valid design.)"},
};

class EveryErrorCode : public ::testing::TestWithParam<Row> {};

TEST_P(EveryErrorCode, HasItsTemplate) {
  std::string text = "before";
  long category = 0;
  EXPECT_EQ(getErrorTemplate(text, category, GetParam().code), 0U);
  EXPECT_EQ(text, GetParam().text);
  EXPECT_EQ(category, 1);
}

TEST_P(EveryErrorCode, IsFoundAtItsPlaceInTheTable) {
  long category = 0;
  long index = 0;
  EXPECT_EQ(lookupErrorTemplate(GetParam().code, category, index), 0U);
  EXPECT_EQ(category, 1);
  EXPECT_EQ(index, static_cast<long>(GetParam().code - 10101));
}

INSTANTIATE_TEST_SUITE_P(ErrorTable, EveryErrorCode, ::testing::ValuesIn(kRows),
                         [](const auto& row) { return std::to_string(row.param.code); });

class CodeOutsideTheCategory : public ::testing::TestWithParam<unsigned long> {};

TEST_P(CodeOutsideTheCategory, IsLookedUpAsTheFirstRowWithStatusOne) {
  long category = 0;
  long index = 0;
  EXPECT_EQ(lookupErrorTemplate(GetParam(), category, index), 1U);
  EXPECT_EQ(category, 1);
  EXPECT_EQ(index, 0);
}

TEST_P(CodeOutsideTheCategory, HasNoText) {
  std::string text = "before";
  long category = 0;
  EXPECT_EQ(getErrorTemplate(text, category, GetParam()), 1U);
  EXPECT_EQ(text, "");
}

INSTANTIATE_TEST_SUITE_P(ErrorTable, CodeOutsideTheCategory,
                         ::testing::Values(0, 1, 9999, 10000, 10100, 10200, 20101,
                                           std::numeric_limits<unsigned long>::max()));

TEST(ErrorTable, CodesOfTheCategoryWithoutARowHaveNoText) {
  for (const unsigned long code : {10125UL, 10150UL, 10199UL}) {
    std::string text = "before";
    long category = 0;
    EXPECT_EQ(getErrorTemplate(text, category, code), 1U) << code;
    EXPECT_EQ(text, "") << code;
  }
}

} // namespace
} // namespace tervix
