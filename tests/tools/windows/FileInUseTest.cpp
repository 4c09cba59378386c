#include <filesystem>

#include "tests/support/windows/Wide.h"
#include "tests/tools/ChangedSample.h"

// A file that another program has open for itself alone can be neither copied nor removed.

using namespace tervix::testing;

namespace {

class OpenedAlone {
public:
  explicit OpenedAlone(const std::string& path)
      : file_(CreateFileW(wide(path).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                          FILE_ATTRIBUTE_NORMAL, nullptr)) {
    EXPECT_NE(file_, INVALID_HANDLE_VALUE) << path;
  }
  ~OpenedAlone() { CloseHandle(file_); }
  OpenedAlone(const OpenedAlone&) = delete;
  OpenedAlone& operator=(const OpenedAlone&) = delete;

private:
  HANDLE file_;
};

class FileInUse : public ChangedSample {
protected:
  std::string output() const { return copy_.path(filesNamed(name() + ".dat").front()); }

  void expectTakenBack(const Arguments& command) const {
    const Files before = files();
    ToolRun run;
    {
      const OpenedAlone file(output());
      run = runTool(command);
    }
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(contains(run.errors, "could not be copied")) << run.errors;
    EXPECT_TRUE(contains(run.errors, "The project is as it was.")) << run.errors;
    EXPECT_EQ(files(), before);
    shown({copy_.project()});
  }
};
INSTANTIATE_TEST_SUITE_P(All, FileInUse, ::testing::Range(0, 4), layoutName);

TEST_P(FileInUse, KeepsItsProfileFromBeingRenamed) {
  expectTakenBack({"profile", "rename", copy_.project(), name(), "renamed"});
}

TEST_P(FileInUse, KeepsItsSchematicFromBeingRenamed) {
  expectTakenBack({"schematic", "rename", copy_.project(), schematic(), "renamed"});
}

TEST_P(FileInUse, KeepsItsProjectFromBeingArchived) {
  const TemporaryFolder target;
  expectTakenBack({"archive", copy_.project(), target.path("archive")});
  EXPECT_FALSE(std::filesystem::exists(target.path("archive")));
}

TEST_P(FileInUse, OfADeletedProfileIsRemovedByTheNextChange) {
  const std::string left = output();
  {
    const OpenedAlone file(left);
    const ToolRun run = runTool({"profile", "delete", copy_.project(), name()});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(contains(run.errors, "not everything old could be removed")) << run.errors;
    EXPECT_TRUE(contains(run.errors, "\"" + left + "\"")) << run.errors;
  }
  EXPECT_TRUE(isFile(left));
  EXPECT_EQ(runTool({"profile", "add", copy_.project(), "fresh"}).status, 0);
  EXPECT_FALSE(isFile(left));
  EXPECT_EQ(filesNamed(".tervix-"), std::vector<std::string>());
}

} // namespace
