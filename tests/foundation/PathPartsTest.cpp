#include <string>

#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "foundation/PathNames.h"
#include "tests/support/LastErrorCheck.h"

namespace tervix::testing {
namespace {

using Split = unsigned long (*)(std::string&, std::string&);

struct Part {
  const char* input;
  unsigned long status;
  const char* output;
};

void expectPart(Split split, const Part& part) {
  std::string input = part.input;
  std::string output = "before";
  EXPECT_EQ(split(input, output), part.status);
  EXPECT_EQ(output, part.output);
  EXPECT_EQ(input, part.input);
}

// Input and output may be one string.
void expectPartInPlace(Split split, const Part& part) {
  std::string both = part.input;
  EXPECT_EQ(split(both, both), part.status);
  EXPECT_EQ(both, part.output);
}

class FileName : public ::testing::TestWithParam<Part> {};
TEST_P(FileName, IsWhatFollowsTheLastSeparator) {
  expectPart(&getFileNameFromFileNamePath, GetParam());
  expectPartInPlace(&getFileNameFromFileNamePath, GetParam());
}
INSTANTIATE_TEST_SUITE_P(PathParts, FileName,
                         ::testing::Values(Part{"file.sim", 1, "file.sim"},
                                           Part{"C:/a/file.sim", 0, "file.sim"},
                                           Part{"C:\\a\\file.sim", 0, "file.sim"},
                                           Part{"C:\\a/b\\c", 0, "c"}, Part{"C:/a/", 0, ""},
                                           Part{"/x", 0, "x"}, Part{"", 1, ""}));

class FolderPart : public ::testing::TestWithParam<Part> {};
TEST_P(FolderPart, IsWhatStandsBeforeTheLastSeparator) {
  expectPart(&getFilePathFromFileNamePath, GetParam());
  expectPartInPlace(&getFilePathFromFileNamePath, GetParam());
}
INSTANTIATE_TEST_SUITE_P(PathParts, FolderPart,
                         ::testing::Values(Part{"file.sim", 1, ""},
                                           Part{"C:/a/file.sim", 0, "C:/a"},
                                           Part{"C:\\a\\file.sim", 0, "C:\\a"},
                                           Part{"C:/a/", 0, "C:/a"}, Part{"/x", 0, ""},
                                           Part{"", 1, ""}));

class Extension : public ::testing::TestWithParam<Part> {};
TEST_P(Extension, BeginsAfterTheFirstDot) {
  expectPart(&getExtensionFromFileName, GetParam());
  expectPartInPlace(&getExtensionFromFileName, GetParam());
}
INSTANTIATE_TEST_SUITE_P(PathParts, Extension,
                         ::testing::Values(Part{"run.opt.out", 0, "opt.out"},
                                           Part{"run.sim", 0, "sim"}, Part{"README", 1, ""},
                                           Part{".", 0, ""}, Part{"..", 0, ""}, Part{"", 1, ""},
                                           Part{".hidden", 0, "hidden"}, Part{"a.", 0, ""},
                                           Part{"...", 0, ".."}));
INSTANTIATE_TEST_SUITE_P(MarkerFiles, Extension,
                         ::testing::Values(Part{"design-default.mrk", 0, "default.mrk"},
                                           Part{"design.mrk", 0, "mrk"},
                                           Part{"amp-TOP-Default.MRK", 0, "Default.MRK"},
                                           Part{"amp-TOP-tran.mrk", 0, "mrk"},
                                           Part{"default.mrk", 0, "mrk"},
                                           Part{"amp-default.mrk.bak", 0, "mrk.bak"},
                                           Part{"a.b-default.mrk", 0, "b-default.mrk"}));

class Stem : public ::testing::TestWithParam<Part> {};
TEST_P(Stem, EndsBeforeTheFirstDot) {
  expectPart(&removeExtensionFromFileName, GetParam());
  expectPartInPlace(&removeExtensionFromFileName, GetParam());
}
INSTANTIATE_TEST_SUITE_P(PathParts, Stem,
                         ::testing::Values(Part{"run.opt.out", 0, "run"},
                                           Part{"README", 1, "README"}, Part{"", 1, ""},
                                           Part{".hidden", 0, ""}, Part{"a.", 0, "a"}));
INSTANTIATE_TEST_SUITE_P(MarkerFiles, Stem,
                         ::testing::Values(Part{"design-default.mrk", 0, "design"},
                                           Part{"a.b-default.mrk", 0, "a.b"},
                                           Part{"amp-TOP-DEFAULT.mrk", 0, "amp-TOP"},
                                           Part{"amp-TOP-tran.mrk", 0, "amp-TOP-tran"},
                                           Part{"default.mrk", 0, "default"}));

TEST(VariantFileType, EachKindHasItsSuffix) {
  std::string suffix = "before";
  EXPECT_EQ(getVariantFileType(suffix, VARIANTFILE_TYPE_LIBRARY), 0U);
  EXPECT_EQ(suffix, "lib");
  EXPECT_EQ(getVariantFileType(suffix, VARIANTFILE_TYPE_STIMULUS), 0U);
  EXPECT_EQ(suffix, "stl");
  EXPECT_EQ(getVariantFileType(suffix, VARIANTFILE_TYPE_INCLUDE), 0U);
  EXPECT_EQ(suffix, "inc");
}

TEST(VariantFileType, AnyOtherValueHasNone) {
  for (const int value : {-1, 3, 1000}) {
    std::string suffix = "before";
    EXPECT_EQ(getVariantFileType(suffix, static_cast<VARIANTFILE_TYPE>(value)), 1U) << value;
    EXPECT_EQ(suffix, "") << value;
  }
}

TEST(PathParts, NamesOfAnyContentAndLengthPass) {
  const std::string odd = std::string("a%s\"\n\0\xFF", 7) + std::string(100000, 'x');
  std::string path = "C:/f\\" + odd + ".opt.out";
  std::string name;
  std::string stem;
  EXPECT_EQ(getFileNameFromFileNamePath(path, name), 0U);
  EXPECT_EQ(removeExtensionFromFileName(name, stem), 0U);
  EXPECT_EQ(stem, odd);
}

TEST(PathParts, RecordNoError) {
  forgetLastError();
  std::string out;
  getFileNameFromFileNamePath(text("x"), out);
  getFilePathFromFileNamePath(text("x"), out);
  getExtensionFromFileName(text("x"), out);
  removeExtensionFromFileName(text("x"), out);
  getVariantFileType(out, static_cast<VARIANTFILE_TYPE>(9));
  expectNoLastError();
}

TEST(PathParts, AsValues) {
  EXPECT_EQ(folderOf("C:\\a\\b.sim"), "C:\\a");
  EXPECT_EQ(folderOf("b.sim"), std::nullopt);
  EXPECT_EQ(fileNameOf("C:\\a\\b.sim"), "b.sim");
  EXPECT_EQ(fileNameOf("b.sim"), "b.sim");
  EXPECT_EQ(stemOf("C:/a.b/c.opt.out"), "c");
  EXPECT_EQ(stemOf("C:/a.b/c"), "c");
}

} // namespace
} // namespace tervix::testing
