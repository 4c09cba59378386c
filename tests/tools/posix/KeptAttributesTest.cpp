// What a change keeps beside the content: who may read a file, how old it is, that it is a link.

#include <chrono>
#include <filesystem>

#include "tests/support/System.h"
#include "tests/tools/ChangedSample.h"

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

constexpr fs::perms kOfFiles = fs::perms(0640);
constexpr fs::perms kOfFolders = fs::perms(0750);

class KeptAttributes : public ChangedSample {
protected:
  void SetUp() override {
    for (const auto& entry : fs::recursive_directory_iterator(copy_.folder())) {
      fs::permissions(entry.path(), entry.is_directory() ? kOfFolders : kOfFiles);
      if (!entry.is_directory())
        fs::last_write_time(entry.path(), time_);
    }
  }

  void expectKept(const std::string& newName) const {
    bool isNamed = false;
    for (const auto& entry : fs::recursive_directory_iterator(copy_.folder())) {
      const std::string path = entry.path().string();
      EXPECT_EQ(entry.status().permissions(), entry.is_directory() ? kOfFolders : kOfFiles) << path;
      isNamed = isNamed || contains(entry.path().filename().string(), newName);
      const std::string extension = entry.path().extension().string();
      const bool isRewritten = extension == ".sim" || extension == ".tvp" || extension == ".dsn";
      if (!entry.is_directory() && !isRewritten) {
        EXPECT_EQ(fs::last_write_time(entry.path()), time_) << path;
      }
    }
    EXPECT_TRUE(isNamed);
  }

  std::string folderOfProfile(const std::string& profile) const {
    return fs::path(copy_.path(filesNamed(profile + ".sim").front())).replace_extension().string();
  }

  const fs::file_time_type time_ = fs::file_time_type::clock::now() - std::chrono::hours(24 * 365);
};

INSTANTIATE_TEST_SUITE_P(All, KeptAttributes, ::testing::Range(0, 4), layoutName);

TEST_P(KeptAttributes, AreThoseOfARenamedProfile) {
  expectDone(runTool({"profile", "rename", copy_.project(), name(), "renamed"}));
  expectKept("renamed");
}

TEST_P(KeptAttributes, AreThoseOfARenamedProject) {
  const ToolRun run = runTool({"project", "rename", copy_.project(), "renamed"});
  EXPECT_EQ(run.status, 0) << run.errors;
  expectKept("renamed");
}

TEST_P(KeptAttributes, AreThoseOfTheOriginalOfACopy) {
  expectDone(runTool({"profile", "copy", copy_.project(), name(), "second"}));
  expectKept("second");
}

TEST_P(KeptAttributes, LeaveALinkALink) {
  if (!isSimulation())
    return;
  const std::string folder = folderOfProfile(name());
  const std::string outside = copy_.path("shared");
  fs::create_directory(outside);
  writeFile(outside + "/parts.lib", "parts");
  fs::create_symlink(outside + "/parts.lib", folder + "/parts.lib");
  fs::create_directory_symlink(outside, folder + "/shared");
  expectDone(runTool({"profile", "rename", copy_.project(), name(), "renamed"}));
  const std::string renamed = folderOfProfile("renamed");
  EXPECT_EQ(fs::read_symlink(renamed + "/parts.lib"), outside + "/parts.lib");
  EXPECT_EQ(fs::read_symlink(renamed + "/shared"), outside);
  EXPECT_EQ(contentOf(outside + "/parts.lib"), "parts");
}

// That of the files, or those of the project file's, profile's or schematic's folder.
TEST_P(KeptAttributes, OfAFolderThatMayNotBeWrittenRefuseAChange) {
  for (fs::path folder = copy_.folder(); !fs::equivalent(folder, fs::temp_directory_path());
       folder = folder.parent_path())
    fs::permissions(folder, fs::perms::all);
  for (const auto& entry : fs::recursive_directory_iterator(copy_.folder()))
    fs::permissions(entry.path(), fs::perms::all);
  const std::string sim = copy_.path(filesNamed(name() + ".sim").front());
  const std::string fixed =
      isSimulation() ? folderOfProfile(name()) : fs::path(sim).parent_path().string();
  fs::permissions(fixed, fs::perms(0555));
  const Files before = files();
  {
    const UnprivilegedUser user;
    if (!user.isInForce())
      GTEST_SKIP() << "root may change every folder";
    expectRefused(runTool({"profile", "rename", copy_.project(), name(), "renamed"}),
                  "\"; nothing was changed");
    expectRefused(runTool({"profile", "delete", copy_.project(), name()}),
                  "nothing may be removed from \"" + fixed + "\"; nothing was changed");
  }
  EXPECT_EQ(files(), before);
}

} // namespace
