#include "ProjectFile.h"
#include "ReaderFixture.h"

namespace {

constexpr std::string_view amplifier = R"(["Design Resources"]
Files = ["amp.dsn", 'old\amp.dsn']
TERVIX_Output_File = "amp-TervixFiles/TOP/tran/tran.out"

["Tervix Resources"]
"Model Libraries" = ["opamp.lib", "bjt.lib"]
"Stimulus Files" = ["pulse.stl"]
"Include Files" = ["supply.inc"]

["Simulation Profiles"]
Files = ["amp-TervixFiles/TOP/tran.sim", "amp-TervixFiles/TOP/ac.sim"]
Active = "TOP-tran"
)";

class ProjectFileTest : public ReaderFixture {
protected:
  std::string project = folder.write("amp.tvp", amplifier);
};

TEST_F(ProjectFileTest, SectionListsItsFilesInOrder) {
  EXPECT_EQ(readSection(project), 0);
  EXPECT_EQ(files, (Texts{"before", "amp.dsn", "old\\amp.dsn"}));
  EXPECT_EQ(second, Texts{"second"});
  EXPECT_FALSE(tervix::formats::lastMistake());
}

TEST_F(ProjectFileTest, ItemsOfOneSectionAreToldApart) {
  EXPECT_EQ(readItem(project, "Tervix Resources", "Model Libraries"), 0);
  EXPECT_EQ(readItem(project, "Tervix Resources", "Stimulus Files"), 0);
  EXPECT_EQ(readItem(project, "Tervix Resources", "Include Files"), 0);
  EXPECT_EQ(files, (Texts{"before", "opamp.lib", "bjt.lib", "pulse.stl", "supply.inc"}));
  EXPECT_EQ(second, Texts{"second"});
}

TEST_F(ProjectFileTest, ProfilesComeWithTheNameOfTheActiveOne) {
  EXPECT_EQ(readProfiles(project), 0);
  EXPECT_EQ(files, (Texts{"before", "amp-TervixFiles/TOP/tran.sim", "amp-TervixFiles/TOP/ac.sim"}));
  EXPECT_EQ(second, Texts{"second"});
  EXPECT_EQ(text, "TOP-tran");
}

TEST_F(ProjectFileTest, ItemGivesItsText) {
  EXPECT_EQ(readOutputFile(project), 0);
  EXPECT_EQ(text, "amp-TervixFiles/TOP/tran/tran.out");
}

TEST_F(ProjectFileTest, ThatChangedIsReadAnew) {
  EXPECT_EQ(readSection(project), 0);
  std::string changed(amplifier);
  changed.replace(changed.find("amp.dsn"), 3, "new");
  EXPECT_EQ(readSection(folder.write("amp.tvp", changed)), 0);
  EXPECT_NE(readSection(folder.write("amp.tvp", "no TOML")), 0);
  EXPECT_EQ(readSection(folder.write("amp.tvp", amplifier)), 0);
  EXPECT_EQ(files, (Texts{"before", "amp.dsn", "old\\amp.dsn", "new.dsn", "old\\amp.dsn", "amp.dsn",
                          "old\\amp.dsn"}));
}

TEST_F(ProjectFileTest, FlagChangesNothing) {
  EXPECT_EQ(readProjectFiles(project, "Design Resources", files, second, false), 0);
  EXPECT_EQ(files, (Texts{"before", "amp.dsn", "old\\amp.dsn"}));
}

TEST_F(ProjectFileTest, SectionsAndItemsMayHaveAnyName) {
  const std::string file =
      folder.write("any.tvp", "[\"été 1.2\"]\n\"a.b\" = [\"x\"]\n\"\" = 'y'\n");
  EXPECT_EQ(readItem(file, "été 1.2", "a.b"), 0);
  EXPECT_EQ(files, (Texts{"before", "x"}));
  EXPECT_EQ(readItemFromProject(file, "été 1.2", "", text), 0);
  EXPECT_EQ(text, "y");
}

TEST_F(ProjectFileTest, NamesAreComparedWithTheirCase) {
  EXPECT_EQ(readSection(project, "design resources"), 0);
  EXPECT_EQ(files, Texts{"before"});
}

TEST_F(ProjectFileTest, MissingSectionReadsAsEmpty) {
  EXPECT_EQ(readSection(project, "Other"), 0);
  EXPECT_EQ(readItem(project, "Other", "Files"), 0);
  EXPECT_EQ(files, Texts{"before"});
  EXPECT_EQ(readItemFromProject(project, "Other", "Item", text), 0);
  EXPECT_EQ(text, "");
}

TEST_F(ProjectFileTest, MissingItemReadsAsEmpty) {
  EXPECT_EQ(readSection(project, "Tervix Resources"), 0);
  EXPECT_EQ(readItem(project, "Tervix Resources", "Other"), 0);
  EXPECT_EQ(files, Texts{"before"});
  EXPECT_EQ(readItemFromProject(project, "Design Resources", "Other", text), 0);
  EXPECT_EQ(text, "");
}

TEST_F(ProjectFileTest, EmptyFileHasNoProfiles) {
  EXPECT_EQ(readProfiles(folder.write("empty.tvp", "")), 0);
  EXPECT_EQ(files, Texts{"before"});
  EXPECT_EQ(text, "");
}

TEST_F(ProjectFileTest, EmptyListHasNoFiles) {
  EXPECT_EQ(readSection(folder.write("none.tvp", "[\"Design Resources\"]\nFiles = []\n")), 0);
  EXPECT_EQ(files, Texts{"before"});
}

TEST_F(ProjectFileTest, ByteOrderMarkAndWindowsLineEndsAreAccepted) {
  const std::string file = folder.write(
      "windows.tvp", "\xEF\xBB\xBF[\"Design Resources\"]\r\nFiles = [\r\n  \"a.dsn\",\r\n]\r\n");
  EXPECT_EQ(readSection(file), 0);
  EXPECT_EQ(files, (Texts{"before", "a.dsn"}));
}

TEST_F(ProjectFileTest, NullNamesAreRefused) {
  EXPECT_NE(readSection(project, nullptr), 0);
  expectMistake("asked for a section without a name", 0, 0);
  EXPECT_NE(readItem(project, nullptr, "Files"), 0);
  EXPECT_NE(readItemFromProject(project, nullptr, "Item", text), 0);
  EXPECT_NE(readItemFromProject(project, "Design Resources", nullptr, text), 0);
  expectMistake("asked for an item without a name", 0, 0);
  EXPECT_NE(readItemFromProject(project, nullptr, nullptr, text), 0);
  expectUntouchedOutputs();
}

TEST_F(ProjectFileTest, FormatsGiveTheSameAsValues) {
  using namespace tervix::formats;
  const auto listed = readFileList(project, "Tervix Resources", "Model Libraries");
  ASSERT_TRUE(listed);
  EXPECT_EQ(*listed, (Texts{"opamp.lib", "bjt.lib"}));
  const auto profiles = readSimulationProfiles(project);
  ASSERT_TRUE(profiles);
  EXPECT_EQ(profiles->files.size(), 2U);
  EXPECT_EQ(profiles->active, "TOP-tran");
  EXPECT_EQ(readText(project, "Design Resources", "TERVIX_Output_File"),
            "amp-TervixFiles/TOP/tran/tran.out");
}

} // namespace
