#include "tests/model/ModelTree.h"

// Names that no sane project has: they must not crash, nor lead to a file of another name.

namespace tervix::testing {
namespace {

const std::string kOddNames[] = {"50%s%n%d",
                                 "say \"hi\"",
                                 "two\nlines",
                                 "\xC3\xA4\xFF",
                                 " ",
                                 "...",
                                 "-default",
                                 "a/b",
                                 "a\\b",
                                 std::string(300, 'n'),
                                 std::string(100000, 'n'),
                                 std::string("zero\0byte", 9)};

class HostileNames : public ModelTree, public ::testing::WithParamInterface<std::string> {};

TEST_P(HostileNames, NameASchematic) {
  for (const PROJECT_TYPE type : {PROJECT_TYPE_OTHER, PROJECT_TYPE_SIMULATION}) {
    auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, type);
    top.setName(text(std::string(GetParam())));
    std::string file;
    EXPECT_EQ(top.getSchematicBasedFile(file, SCHEMATIC_FILE_NET), 0U);
    EXPECT_NE(file.find(GetParam() + ".net"), std::string::npos);
    CTervixNode* profile = nullptr;
    EXPECT_EQ(top.getActiveProfile(profile), 10117U);
    EXPECT_EQ(lastErrorText(), ("\"" + GetParam() +
                                "\" is not the root schematic. Active profile can only be "
                                "associated with the root.")
                                   .substr(0, 1023));
  }
}

TEST_P(HostileNames, NameAProfile) {
  for (const PROJECT_TYPE type : {PROJECT_TYPE_OTHER, PROJECT_TYPE_SIMULATION}) {
    auto& top = makeTop(FRONTEND_ID_DESIGN_FILE, type);
    CTervixNode* profile = nullptr;
    const unsigned long status =
        top.addProfile(profile, text(std::string(GetParam())), text("shown"));
    // It would end at its zero byte, and be the name of some other profile.
    if (GetParam().find('\0') != std::string::npos) {
      EXPECT_EQ(status, 1U);
      EXPECT_EQ(profile, nullptr);
      EXPECT_EQ(lastErrorCode(), 10115U);
      continue;
    }
    EXPECT_EQ(status, 0U);
    ASSERT_NE(profile, nullptr);
    std::string path;
    auto& added = dynamic_cast<CTervixProfile&>(*profile);
    EXPECT_EQ(added.getProfileBasedFile(path, PROFILE_FILE_CIR), 0U);
    EXPECT_EQ(added.getProfileBasedFile(path, PROFILE_FILE_DAT), 0U);
  }
}

TEST_P(HostileNames, AreTakenByARenameWithoutHarm) {
  for (const PROJECT_TYPE type : {PROJECT_TYPE_OTHER, PROJECT_TYPE_SIMULATION}) {
    makeTop(FRONTEND_ID_DESIGN_FILE, type);
    const std::string stem = type == PROJECT_TYPE_OTHER ? "amp-TOP-tran" : "tran";
    const std::string sim = topFolder() + "/" + stem + ".sim";
    writeFile(sim, "NetlistFile=1\n");
    writeFile(topFolder() + "/tran/tran.dat", "data");
    Snapshot before = snapshotOf(topFolder());
    const auto profile = makeProfile(sim);
    profile->rename(text(std::string(GetParam())));
    EXPECT_EQ(nameOf(*profile), GetParam());
    const Snapshot after = snapshotOf(topFolder());
    for (const auto& [name, content] : before)
      EXPECT_EQ(after.count(name) != 0 ? after.at(name) : "gone", content) << name;
  }
}

TEST_P(HostileNames, AreVariantFiles) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
  folder_.folder("P/prj-TervixFiles/TOP/tran");
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  std::string name = GetParam() + ".lib";
  EXPECT_EQ(profile->addProfileLevelFile(name, VARIANTFILE_TYPE_LIBRARY, true, false), 0U);
  EXPECT_EQ(profile->writeVariants(), 0U);
  EXPECT_EQ(profile->readVariants(), 0U);
  int count = 0;
  EXPECT_EQ(profile->numberOfProfileLevelFiles(count, VARIANTFILE_TYPE_LIBRARY), 0U);
  EXPECT_LE(count, 1);
}

INSTANTIATE_TEST_SUITE_P(Model, HostileNames, ::testing::ValuesIn(kOddNames),
                         [](const auto& name) { return "n" + std::to_string(name.index); });

TEST(TwoNames, ThatDifferInCaseOnlyAreOneProfile) {
  const TemporaryFolder folder;
  CTervixSchematic top(folder.path().c_str(), "TOP", FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_OTHER,
                       nullptr);
  CTervixNode* first = nullptr;
  CTervixNode* second = nullptr;
  EXPECT_EQ(top.addProfile(first, text("tran"), text("")), 0U);
  EXPECT_EQ(top.addProfile(second, text("Tran"), text("")), 0U);
  EXPECT_EQ(first, second);
}

} // namespace
} // namespace tervix::testing
