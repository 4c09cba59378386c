#include <cmath>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/tools/report/RawText.h"
#include "tools/tervix/report/RawFile.h"

using namespace tervix::testing;
using tervix::tool::isRawOutput;
using tervix::tool::RawFile;

namespace {

using Rows = std::vector<std::vector<double>>;

Rows rowsOf(RawFile& file) {
  Rows rows;
  for (std::vector<double> row; file.nextRow(row);)
    rows.push_back(row);
  return rows;
}

class RawFileTest : public ::testing::Test {
protected:
  std::string written(const std::string& content) const { return folder_.file("x.raw", content); }

  // The mistake that is found in a file when it is read to its end.
  std::string mistakeIn(const std::string& content) const {
    RawFile file(written(content));
    while (file.nextPlot())
      rowsOf(file);
    return file.mistake();
  }

  TemporaryFolder folder_;
};

const Rows kRows = {{0, 1.5}, {1e-6, -2.25}, {2e-6, 1e-30}};

// Both ways of writing the same numbers.
class RawForm : public RawFileTest, public ::testing::WithParamInterface<bool> {
protected:
  static std::string textOf(const RawText& raw) { return GetParam() ? raw.binary() : raw.ascii(); }
};

TEST_P(RawForm, GivesRealValues) {
  RawText raw;
  raw.rows = kRows;
  raw.points = "3";
  RawFile file(written(textOf(raw)));
  ASSERT_TRUE(file.nextPlot());
  EXPECT_EQ(file.plot().title, "a test");
  EXPECT_EQ(file.plot().name, "Transient Analysis");
  EXPECT_FALSE(file.plot().isComplex);
  EXPECT_EQ(file.plot().isBinary, GetParam());
  EXPECT_EQ(file.plot().variables[1].name, "v(out)");
  EXPECT_EQ(file.plot().variables[1].type, "voltage");
  EXPECT_EQ(rowsOf(file), kRows);
  EXPECT_FALSE(file.nextPlot());
  EXPECT_EQ(file.mistake(), "");
}

TEST_P(RawForm, GivesComplexValues) {
  RawText raw;
  raw.flags = "complex";
  raw.variables = {"frequency\tfrequency grid=3", "v(out)\tvoltage"};
  raw.rows = {{1, 0, 0.5, -0.5}, {10, 0, 0.1, -0.2}};
  raw.points = "2";
  RawFile file(written(textOf(raw)));
  ASSERT_TRUE(file.nextPlot());
  EXPECT_TRUE(file.plot().isComplex);
  EXPECT_TRUE(file.plot().variables[0].isLogScaled);
  EXPECT_FALSE(file.plot().variables[1].isLogScaled);
  EXPECT_EQ(rowsOf(file), raw.rows);
  EXPECT_EQ(file.mistake(), "");
}

TEST_P(RawForm, GivesSeveralPlotsOneAfterTheOther) {
  RawText first;
  first.rows = kRows;
  first.points = "3";
  RawText second;
  second.plotName = "DC transfer characteristic";
  second.rows = {{1, 2}};
  second.points = "1";
  // A value whose last byte reads as the end of a line.
  first.rows.back().back() = std::nextafter(-2.0, -3.0);
  RawFile file(written(textOf(first) + textOf(second) + textOf(first)));
  for (const RawText& raw : {first, second, first}) {
    ASSERT_TRUE(file.nextPlot()) << file.mistake();
    EXPECT_EQ(file.plot().name, raw.plotName);
    EXPECT_EQ(rowsOf(file), raw.rows);
  }
  EXPECT_FALSE(file.nextPlot());
  EXPECT_EQ(file.mistake(), "");
}

TEST_P(RawForm, CanBeReadTwice) {
  RawText raw;
  raw.rows = kRows;
  raw.points = "3";
  RawFile file(written(textOf(raw) + textOf(raw)));
  for (int plot = 0; plot < 2; ++plot) {
    ASSERT_TRUE(file.nextPlot());
    EXPECT_EQ(rowsOf(file), kRows);
    file.rewind();
    EXPECT_EQ(rowsOf(file), kRows);
  }
}

TEST_P(RawForm, GivesWhatIsThereOfAFileThatEndsEarly) {
  RawText raw;
  raw.rows = kRows;
  raw.points = "3";
  const std::string text = textOf(raw);
  RawFile file(written(text.substr(0, text.size() - (GetParam() ? 1 : 24))));
  ASSERT_TRUE(file.nextPlot());
  EXPECT_EQ(rowsOf(file), Rows(kRows.begin(), kRows.begin() + 2));
  EXPECT_EQ(file.mistake(), "it ends after 2 of the 3 points that its header tells of");
  EXPECT_FALSE(file.nextPlot());
}

TEST_P(RawForm, BelievesNoNumberOfPoints) {
  RawText raw;
  raw.rows = kRows;
  raw.points = "18446744073709551615";
  RawFile file(written(textOf(raw)));
  ASSERT_TRUE(file.nextPlot());
  EXPECT_EQ(rowsOf(file).size(), 3U);
  EXPECT_EQ(file.mistake(),
            "it ends after 3 of the 18446744073709551615 points that its header tells of");
}

TEST_P(RawForm, ReadsToTheEndAfterAnInterruptedRun) {
  RawText raw;
  raw.rows = kRows;
  raw.points = "0";
  RawFile file(written(textOf(raw)));
  ASSERT_TRUE(file.nextPlot());
  EXPECT_EQ(rowsOf(file), kRows);
  EXPECT_EQ(file.mistake(), "");
}

TEST_P(RawForm, TellsWhereAnInterruptedRunEndsWithinAPoint) {
  RawText raw;
  raw.rows = kRows;
  raw.points = "0";
  const std::string text = textOf(raw);
  EXPECT_EQ(mistakeIn(text.substr(0, text.size() - (GetParam() ? 1 : 24))),
            "it ends within point 2");
}

TEST_P(RawForm, HasNoPointsOfAPlotWithoutAny) {
  RawText none;
  none.points = "0";
  RawText some;
  some.rows = kRows;
  some.points = "3";
  RawFile file(written(textOf(none) + textOf(some) + textOf(none)));
  for (const Rows& rows : {Rows(), kRows, Rows()}) {
    ASSERT_TRUE(file.nextPlot()) << file.mistake();
    EXPECT_EQ(rowsOf(file), rows);
    file.rewind();
    EXPECT_EQ(rowsOf(file), rows);
  }
  EXPECT_FALSE(file.nextPlot());
  EXPECT_EQ(file.mistake(), "");
}

TEST_P(RawForm, TellsWhatFollowsThePointsAndIsNoPlot) {
  RawText raw;
  raw.rows = kRows;
  raw.points = "2";
  EXPECT_NE(mistakeIn(textOf(raw)), "");
}

TEST_P(RawForm, KeepsValuesThatAreNotFinite) {
  RawText raw;
  raw.rows = {{0, std::nan("")}, {1, HUGE_VAL}, {2, -HUGE_VAL}};
  raw.points = "3";
  RawFile file(written(textOf(raw)));
  ASSERT_TRUE(file.nextPlot());
  const Rows rows = rowsOf(file);
  ASSERT_EQ(rows.size(), 3U) << file.mistake();
  EXPECT_TRUE(std::isnan(rows[0][1]));
  EXPECT_EQ(rows[1][1], HUGE_VAL);
  EXPECT_EQ(rows[2][1], -HUGE_VAL);
}

// Cut off anywhere it gives rows or a mistake, and comes to an end.
TEST_P(RawForm, SurvivesEveryCut) {
  RawText raw;
  raw.rows = kRows;
  raw.points = "3";
  const std::string text = textOf(raw);
  for (std::size_t size = 1; size < text.size() - 3; ++size)
    EXPECT_NE(mistakeIn(text.substr(0, size)), "") << "after " << size << " bytes";
}

INSTANTIATE_TEST_SUITE_P(As, RawForm, ::testing::Bool(), [](const auto& form) {
  return std::string(form.param ? "Binary" : "Ascii");
});

TEST_F(RawFileTest, TakesTheWaysInWhichSystemsWriteNumbers) {
  RawFile file(written("Title: x\nFlags: real\nNo. Variables: 2\nNo. Points: 3\nVariables:\n"
                       "\t0\ttime\ttime\n\t1\ta\tvoltage\nValues:\n"
                       "0\t+1e0\n\t-1.#IND\n1\t1e-999\n\t1e999\n2 -nan -inf\n"));
  ASSERT_TRUE(file.nextPlot());
  const Rows rows = rowsOf(file);
  ASSERT_EQ(rows.size(), 3U) << file.mistake();
  EXPECT_EQ(rows[0][0], 1);
  EXPECT_TRUE(std::isnan(rows[0][1]));
  EXPECT_EQ(rows[1][0], 0);
  EXPECT_EQ(rows[1][1], HUGE_VAL);
  EXPECT_TRUE(std::isnan(rows[2][0]));
  EXPECT_EQ(rows[2][1], -HUGE_VAL);
}

TEST_F(RawFileTest, TakesLineEndsOfBothKindsAndTheFirstVariableBesideItsField) {
  RawFile file(written("title: x\r\nPLOTNAME: p\r\nFlags: real\r\nNo. Variables: 2\r\n"
                       "No. Points: 1\r\nVariables: 0 time time\r\n 1 a voltage\r\nValues:\r\n"
                       "0\t1\r\n\t2\r\n"));
  ASSERT_TRUE(file.nextPlot()) << file.mistake();
  EXPECT_EQ(file.plot().name, "p");
  EXPECT_EQ(rowsOf(file), Rows({{1, 2}}));
  EXPECT_FALSE(file.nextPlot());
  EXPECT_EQ(file.mistake(), "");
}

TEST_F(RawFileTest, TellsWhatIsWrongWithAHeader) {
  const std::string begin = "Title: x\nFlags: real\n";
  EXPECT_EQ(mistakeIn("no raw file\n"), "what follows is no plot");
  EXPECT_EQ(mistakeIn(begin), "it ends within a header");
  EXPECT_EQ(mistakeIn(begin + "nonsense\n"), "a line of a header is none");
  EXPECT_EQ(mistakeIn(begin + "Values:\n"), "a header has no variables");
  for (const char* count : {"0", "-1", "many", "99999999999", "1e3", ""})
    EXPECT_EQ(mistakeIn(begin + "No. Variables: " + count + "\n"),
              "its number of variables is \"" + std::string(count) + "\"");
  EXPECT_EQ(mistakeIn(begin + "No. Points: -4\n"), "its number of points is \"-4\"");
  EXPECT_EQ(mistakeIn(begin + "No. Variables: 3\nVariables:\n\t0\ttime\ttime\nValues:\n"),
            "its header tells of 3 variables and names 1");
  EXPECT_EQ(mistakeIn("Title: x\nFlags: real unpadded\n"),
            "its vectors are of different lengths (unpadded)");
}

TEST_F(RawFileTest, TellsAValueThatIsNone) {
  const std::string begin = "Title: x\nFlags: complex\nNo. Variables: 1\nNo. Points: 1\n"
                            "Variables:\n\t0\ta\tvoltage\nValues:\n";
  EXPECT_EQ(mistakeIn(begin + "0\t1\n"), "a value of point 0 is \"1\"");
  EXPECT_EQ(mistakeIn(begin + "0\t1,\n"), "a value of point 0 is \"1,\"");
  EXPECT_EQ(mistakeIn(begin + "0\t1,x\x1b\n"), "a value of point 0 is \"1,x\"");
  EXPECT_EQ(mistakeIn(begin + "zero\t1,2\n"), "point 0 begins with \"zero\"");
}

TEST_F(RawFileTest, KeepsLittleOfALineWithoutEnd) {
  RawFile file(written("Title: " + std::string(5000000, 'x') + "\nFlags: real\nNo. Variables: 1\n" +
                       "No. Points: 1\nVariables:\n\t0\t" + std::string(100000, 'n') +
                       "\tvoltage\nValues:\n0 1\n"));
  EXPECT_FALSE(file.nextPlot()); // the variable's type was beyond what is kept
  EXPECT_LT(file.plot().title.size(), 5000U);
}

TEST_F(RawFileTest, IsKnownByItsBeginning) {
  EXPECT_TRUE(isRawOutput(written("Title: x")));
  EXPECT_TRUE(isRawOutput(written("title:x")));
  EXPECT_FALSE(isRawOutput(written("Titles: x")));
  EXPECT_FALSE(isRawOutput(written("Titl")));
  EXPECT_FALSE(isRawOutput(written("")));
  EXPECT_FALSE(isRawOutput(folder_.path()));
  EXPECT_FALSE(isRawOutput(folder_.path("none")));
}

TEST_F(RawFileTest, TellsThatItCannotBeOpened) {
  RawFile file(folder_.path("none"));
  EXPECT_FALSE(file.nextPlot());
  EXPECT_EQ(file.mistake(), "it cannot be opened");
}

} // namespace
