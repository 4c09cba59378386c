#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/ProjectBuilder.h"
#include "tests/tools/Sample.h"
#include "tests/tools/report/RawText.h"
#include "tests/tools/report/ReportFixture.h"

// What the page holds. How it looks is a matter of the browser test.

using namespace tervix::testing;

namespace {

using Json = nlohmann::json;

bool hasText(const Json& json, const std::string& text) {
  if (json.is_structured())
    return std::any_of(json.begin(), json.end(),
                       [&](const Json& element) { return hasText(element, text); });
  return json.is_string() && json.get<std::string>().find(text) != std::string::npos;
}

// The file of a type; null when there is none.
Json fileOf(const Json& files, const std::string& type) {
  for (const Json& file : files["list"])
    if (file[0] == type)
      return file;
  return nullptr;
}

TEST(ReportPage, HasTheTreeOfTheProject) {
  const SampleCopy copy(allSamples().at(0));
  const ReportFolder pages;
  const Json project = pages.dataOf(copy.project())["project"];
  EXPECT_EQ(project["name"], "amp");
  EXPECT_EQ(project["type"], 2);
  EXPECT_EQ(project["layout"], "a folder for each profile");
  EXPECT_EQ(project["frontEnd"], 2);
  ASSERT_EQ(project["schematics"].size(), 2U);
  EXPECT_EQ(project["schematics"][0]["name"], "TOP");
  EXPECT_EQ(project["schematics"][0]["root"], true);
  const Json& profiles = project["schematics"][0]["profiles"];
  ASSERT_EQ(profiles.size(), 2U);
  EXPECT_EQ(profiles[0]["name"], "TOP-tran");
  EXPECT_EQ(profiles[0]["active"], true);
  EXPECT_EQ(profiles[0]["models"].size(), 4U);
}

TEST(ReportPage, TellsSizeAndTimeOfFilesAndWhichAreMissing) {
  const SampleCopy copy(allSamples().at(0));
  const std::string out = copy.path("amp-TervixFiles/TOP/ac/ac.out");
  const ReportFolder pages;
  const Json files =
      pages.dataOf(copy.project())["project"]["schematics"][0]["profiles"][1]["files"];
  const auto listed = Json::parse(runTool({"files", copy.project(), "--json"}).output);
  Json expected;
  for (const Json& file : listed["profiles"][1]["files"])
    if (file["type"] == "out")
      expected = {"out", "out", file["size"], file["modified"]};
  EXPECT_EQ(files["prefix"], "amp-TervixFiles/TOP/"); // of ac.sim and ac/ac.out
  expected[1] = "ac/ac.out";
  EXPECT_EQ(fileOf(files, "out"), expected);
  EXPECT_EQ(fileOf(files, "csd"), Json({"csd", "ac/ac.csd"}));
  EXPECT_EQ(fileOf(files, "sim")[2],
            std::filesystem::file_size(copy.path("amp-TervixFiles/TOP/ac.sim")));
}

TEST(ReportPage, HasTheFindingsAsTheCheckTellsThem) {
  const SampleCopy copy(allSamples().at(1));
  writeFile(copy.path("npn.lib.bak"), "");
  const ReportFolder pages;
  const Json findings = pages.dataOf(copy.project())["findings"];
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings, Json::parse(runTool({"check", copy.project(), "--json"}).output)["findings"]);
}

class ReportCurves : public ::testing::Test {
protected:
  Json outputsOf(std::size_t profile) const {
    const Json data = pages_.dataOf(copy_.project());
    const Json& found = data["project"]["schematics"][0]["profiles"][profile];
    return found.contains("outputs") ? found["outputs"] : Json::array();
  }

  SampleCopy copy_{allSamples().at(1)};
  ReportFolder pages_;
};

TEST_F(ReportCurves, AreThoseOfRawOutputByItsContent) {
  writeFile(copy_.path("amp-TOP-tran.dat"), "no raw output");
  EXPECT_TRUE(outputsOf(0).empty());
  const Json outputs = outputsOf(1);
  ASSERT_EQ(outputs.size(), 1U);
  EXPECT_EQ(outputs[0]["path"], "amp-TOP-ac.dat");
  EXPECT_EQ(outputs[0]["plots"][0]["name"], "AC Analysis");
  EXPECT_EQ(outputs[0]["plots"][0]["charts"].size(), 2U);
}

TEST_F(ReportCurves, AreThoseOfFurtherFilesWithTheNameOfTheProfile) {
  RawText raw;
  raw.rows = {{0, 1}, {1, 2}};
  raw.points = "2";
  writeFile(copy_.path("amp-TOP-ac.more.raw"), raw.binary());
  writeFile(copy_.path("amp-TOP-accurate.raw"), raw.binary()); // the name of another
  const Json outputs = outputsOf(1);
  ASSERT_EQ(outputs.size(), 2U);
  EXPECT_EQ(outputs[1]["path"], "amp-TOP-ac.more.raw");
  EXPECT_EQ(outputs[1]["plots"][0]["points"], 2);
}

TEST_F(ReportCurves, AreLeftOutOfAFileThatIsTooLarge) {
  writeFile(copy_.path("amp-TOP-ac.dat"), "Title: x\n");
  std::filesystem::resize_file(copy_.path("amp-TOP-ac.dat"), 1'200'000'000);
  const Json outputs = outputsOf(1);
  EXPECT_TRUE(outputs[0]["plots"].empty());
  EXPECT_EQ(outputs[0]["remarks"][0],
            "Not drawn: it has 1.2 GB, and no file of more than 1.0 GB is read.");
}

TEST_F(ReportCurves, AreLeftOutBeyondTheSizeOfAPage) {
  RawText raw;
  std::vector<double> row = {0};
  raw.variables = {"time\ttime"};
  for (int i = 0; i < 32; ++i) {
    raw.variables.push_back("v" + std::to_string(i) + "\tvoltage");
    row.push_back(i);
  }
  raw.rows.assign(1600, row);
  raw.points = "1600";
  std::string text;
  for (int plot = 0; plot < 12; ++plot)
    text += raw.binary();
  for (int file = 0; file < 5; ++file)
    writeFile(copy_.path("amp-TOP-tran." + std::to_string(file) + ".raw"), text);
  const Json outputs = outputsOf(0);
  ASSERT_EQ(outputs.size(), 6U);
  EXPECT_FALSE(outputs[1]["plots"][0]["charts"].empty());
  EXPECT_TRUE(hasText(outputs[4]["plots"].back()["remarks"],
                      "Its curves are left out: the page holds 12.0 MB of curves at most."));
  EXPECT_LT(std::filesystem::file_size(pages_.path()), 14'000'000U);
}

TEST_F(ReportCurves, OfDamagedOutputAreARemark) {
  writeFile(copy_.path("amp-TOP-ac.dat"), "Title: x\nNo. Variables: 99999999999\n");
  EXPECT_EQ(outputsOf(1)[0]["remarks"][0],
            "The file is damaged: its number of variables is \"99999999999\".");
}

// ---- Names that would end a text, an element or the script, were they written as they are ----

struct Hostile {
  const char* what;
  const char* name;
  const char* shown;
  const char* word = "x"; // the name of a curve
};

class HostileName : public ::testing::TestWithParam<Hostile> {};

TEST_P(HostileName, IsTextOfThePageAndNothingElse) {
  const TemporaryFolder folder;
  const std::string name = GetParam().name;
  const std::string place = name + "/tvx_sim_1/";
  folder.file(place + "profiles/p.sim",
              simText("p", "p.sim", "", "", "", "./p/p.dat", "./p/p.out"));
  RawText raw;
  raw.variables[1] = "v(" + std::string(GetParam().word) + ")\tvoltage";
  raw.rows = {{0, 1}, {1, 2}};
  raw.points = "2";
  folder.file(place + "profiles/p/p.dat", raw.ascii());
  const std::string project = folder.file(place + name + ".tvp", "");
  const ReportFolder pages;
  const std::string page = pages.pageOf(project);
  // The data ends where the one script after it begins, and holds no mark of HTML.
  const std::size_t begin = page.find("id=\"data\">") + 10;
  const std::size_t end = page.find("</script>", begin);
  EXPECT_EQ(page.compare(end, 27, "</script>\n<script>\"use stri"), 0) << page.substr(end, 100);
  EXPECT_EQ(page.substr(begin, end - begin).find_first_of("<>&"), std::string::npos);
  EXPECT_TRUE(std::all_of(page.begin() + static_cast<std::ptrdiff_t>(begin),
                          page.begin() + static_cast<std::ptrdiff_t>(end),
                          [](char c) { return c >= 0x20 && c < 0x7f; }));
  const std::string title =
      page.substr(page.find("<title>") + 7, page.find("</title>") - page.find("<title>") - 7);
  EXPECT_EQ(title.find_first_of("<>"), std::string::npos) << title;
  const Json data = dataIn(page);
  EXPECT_EQ(data["project"]["name"], GetParam().shown);
  const Json& schematic = data["project"]["schematics"][0];
  EXPECT_EQ(schematic["name"], GetParam().shown);
  ASSERT_EQ(schematic["profiles"].size(), 1U);
  const Json& plot = schematic["profiles"][0]["outputs"][0]["plots"][0];
  EXPECT_EQ(plot["charts"][0]["curves"][0]["name"], "v(" + std::string(GetParam().word) + ")");
}

INSTANTIATE_TEST_SUITE_P(
    With, HostileName,
    ::testing::Values(
        Hostile{"MarksOfHtml", "a<b>&amp;\"'", "a<b>&amp;\"'"},
        Hostile{"CommentAndScript", "<!--<script>", "<!--<script>", "</script><!--<script>"},
        Hostile{"EndOfTitle", "<title>x<plaintext>", "<title>x<plaintext>"},
        Hostile{"ControlCharacters", "a\x1b[31m\x07\nb", "a\\x1b[31m\\x07\\x0ab"},
        Hostile{"BytesThatAreNoUtf8", "caf\xe9", "caf\\xe9"},
        Hostile{"LineSeparators", "a\xe2\x80\xa8z\xe2\x80\xa9", "a\\xe2\\x80\\xa8z\\xe2\\x80\\xa9"},
        Hostile{"PlaceOfTheTemplate", "@DATA@@STYLE@", "@DATA@@STYLE@"}),
    [](const auto& name) { return std::string(name.param.what); });

TEST(HostileText, InAProjectFileIsNoElement) {
  const SampleCopy copy(allSamples().at(1));
  const std::string text = contentOf(copy.project());
  const std::string hostile = "</script><script>alert(1)</script>.lib";
  writeFile(copy.project(), std::string(text).replace(text.find("npn.lib"), 7, hostile));
  const ReportFolder pages;
  const std::string page = pages.pageOf(copy.project());
  EXPECT_EQ(page.find("alert(1)</script"), std::string::npos);
  const Json data = dataIn(page);
  EXPECT_TRUE(hasText(data["findings"], hostile));
  EXPECT_TRUE(hasText(data["project"]["models"], hostile));
}

} // namespace
