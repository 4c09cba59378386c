#include <filesystem>

#include "tests/model/ModelTree.h"

// Links that stand in wait where a rename is to write: what they lead to stays as it is.

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

class PlantedLinks : public ModelTree {
protected:
  PlantedLinks() {
    outside_.file("new.dat", "somebody's");
    outside_.file("tran/tran.dat", "somebody's");
    outside_.file("other.sim", "ProjectFile = \"other.tvp\"\n");
  }
  ~PlantedLinks() override { EXPECT_EQ(snapshotOf(outside_.path()), before()); }

  static const Snapshot& before() {
    static const Snapshot files = {{"new.dat", "somebody's"},
                                   {"tran/tran.dat", "somebody's"},
                                   {"other.sim", "ProjectFile = \"other.tvp\"\n"}};
    return files;
  }
  void makeSimulation() {
    makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
    file("prj-TervixFiles/TOP/tran.sim", "sim");
    file("prj-TervixFiles/TOP/tran/tran.dat", "data");
  }
  void link(const std::string& target, const std::string& path) const {
    fs::create_symlink(target, path);
  }
  void expectRefused(const std::string& newFolder) const {
    expectLastError(10123, "Failed to copy contents of directory \"" + topFolder() +
                               "/tran\" to directory \"" + newFolder +
                               "\". Check disk space and access permissions.");
  }

  const TemporaryFolder outside_;
};

TEST_F(PlantedLinks, InPlaceOfAProfilesNewFolderAreRefused) {
  makeSimulation();
  link(outside_.path(), topFolder() + "/new");
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  EXPECT_EQ(profile->rename(text("new")), 10123U);
  expectRefused(topFolder() + "/new");
  EXPECT_FALSE(isFile(topFolder() + "/new.sim"));
}

TEST_F(PlantedLinks, InPlaceOfAFileInTheNewFolderAreRefused) {
  makeSimulation();
  fs::create_directory(topFolder() + "/new");
  link(outside_.path("new.dat"), topFolder() + "/new/tran.dat");
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  EXPECT_EQ(profile->rename(text("new")), 10123U);
  EXPECT_EQ(contentOf(topFolder() + "/tran/tran.dat"), "data");
}

TEST_F(PlantedLinks, InPlaceOfTheFolderAboveTheNewOneAreRefused) {
  makeSimulation();
  const std::string above = fs::path(topFolder()).parent_path().string();
  link(outside_.path(), above + "/NEW");
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  EXPECT_EQ(
      profile->syncUpProfileFiles(text(topFolder() + "/tran.sim"), text(above + "/NEW/tran.sim")),
      10123U);
  expectRefused(above + "/NEW/tran");
}

TEST_F(PlantedLinks, ThroughWhichTheProjectLiesAreFollowed) {
  makeSimulation();
  const TemporaryFolder disk;
  fs::rename(topFolder(), disk.path("TOP"));
  link(disk.path("TOP"), topFolder());
  const auto profile = makeProfile(topFolder() + "/tran.sim");
  EXPECT_EQ(profile->rename(text("new")), 0U);
  EXPECT_EQ(contentOf(disk.path("TOP/new/new.dat")), "data");
}

TEST_F(PlantedLinks, ToTheFolderThatIsRenamedLoseNothing) {
  makeSimulation();
  file("prj-TervixFiles/TOP/tran/new.dat", "other data");
  link("tran", topFolder() + "/new");
  const Snapshot files = snapshotOf(topFolder() + "/tran");
  makeProfile(topFolder() + "/tran.sim")->rename(text("new"));
  EXPECT_EQ(snapshotOf(topFolder() + "/tran"), files);
}

TEST_F(PlantedLinks, InPlaceOfASimFileAreNotRewrittenThrough) {
  makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER);
  file("amp-TOP-tran.sim", "ProjectFile = \"x.tvp\"\n");
  link(outside_.path("other.sim"), topFolder() + "/amp-TOP-new.sim");
  const auto profile = makeProfile(topFolder() + "/amp-TOP-tran.sim");
  EXPECT_EQ(profile->rename(text("new")), 1U);
}

} // namespace
} // namespace tervix::testing
