#include <filesystem>

#include <gtest/gtest.h>

#include "tests/tools/EntriesOnDisk.h"
#include "tests/tools/check/CheckFixture.h"

// Whatever lies in a project, the check ends, and leaves it as it is.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

const std::string kTop = "amp-TervixFiles/TOP/";

class HostileContent : public ::testing::Test {
protected:
  std::vector<std::string> found() const {
    const EntriesOnDisk before = entriesOf(project_.folder());
    std::vector<std::string> findings = findingsIn(project_.checkedAsJson());
    const ToolRun run = project_.check({"--fix", "--dry-run"});
    EXPECT_TRUE(run.status == 0 || run.status == 3) << run.status << run.errors;
    expectUntouched(before, entriesOf(project_.folder()), "checking");
    return findings;
  }

  CheckedSample project_{0};
};

std::string repeated(const std::string& text, std::size_t times) {
  std::string result;
  for (std::size_t i = 0; i < times; ++i)
    result += text;
  return result;
}

TEST_F(HostileContent, MayBeBytesOfAnyKind) {
  std::string bytes;
  for (int byte = 0; byte < 4096; ++byte)
    bytes += static_cast<char>(byte * 7);
  for (const char* name : {"tran.sim", "tran/tran_profile.inc", "tran/tran.cir", "TOP.net"})
    project_.write(kTop + name, bytes + ".inc \"a\0b\"\n" + bytes);
  project_.write("opamp.lib", std::string(1000, '\0') + "\n.inc a\0b\n");
  EXPECT_FALSE(found().empty());
}

TEST_F(HostileContent, MayBeLinesOfAnyLength) {
  const std::string line(3000000, 'x');
  project_.append(kTop + "tran.sim", "OutFile = \"" + line + "\"\n");
  project_.append(kTop + "tran/tran_profile.inc", ".LIB \"" + line + ".lib\"\n" + line);
  project_.append("opamp.lib", ".lib \"" + line + "\"\n.lib '" + line + "\n");
  EXPECT_FALSE(found().empty());
}

TEST_F(HostileContent, MayBeAnEndlessChainOfFiles) {
  for (int i = 0; i < 3000; ++i)
    project_.write("chain/" + std::to_string(i) + ".lib",
                   ".lib " + std::to_string((i + 1) % 3000) + ".lib\n");
  project_.append("opamp.lib", ".lib chain/0.lib\n");
  EXPECT_EQ(found(), (std::vector<std::string>{"include-cycle chain/2999.lib:1"}));
}

TEST_F(HostileContent, MayBeLinksToThemselves) {
  fs::create_directory_symlink(".", project_.path("loop"));
  fs::create_directory_symlink(".", project_.path("again"));
  fs::create_directory_symlink("..", project_.path(kTop + "up"));
  fs::create_symlink("self", project_.path("self"));
  fs::create_symlink("nothing", project_.path(kTop + "nothing.sim"));
  project_.append("opamp.lib", ".lib loop/opamp.lib\n.lib again/opamp.lib\n.lib self\n");
  EXPECT_EQ(found(),
            (std::vector<std::string>{"include-cycle opamp.lib:23", "include-cycle opamp.lib:24"}));
}

TEST_F(HostileContent, MayBeFoldersInPlaceOfFiles) {
  for (const char* name : {"tran.sim", "tran/tran_profile.inc", "tran/tran.cir", "TOP.net"}) {
    project_.remove(kTop + name);
    project_.makeFolder(kTop + name);
  }
  project_.makeFolder("folder.bak");
  EXPECT_FALSE(found().empty());
}

TEST_F(HostileContent, MayBeAFileTooLargeToRead) {
  fs::resize_file(project_.path("opamp.lib"), (std::uintmax_t{64} << 20U) + 1);
  const auto json = project_.checkedAsJson();
  EXPECT_EQ(findingsIn(json), (std::vector<std::string>{"unreadable-file opamp.lib"}));
}

TEST_F(HostileContent, MayBeNamesThatDriveATerminal) {
  project_.write(kTop + "\x1b[31m.sim", "ProfileName = \"\x1b[2J\"\nRootSchematics = \"\"\n");
  project_.write("\x1b]0;.bak", "");
  project_.append(kTop + "tran/tran_profile.inc", ".LIB \"\x1b[2J.lib\"\n");
  const ToolRun run = project_.check();
  EXPECT_EQ(run.output.find('\x1b'), std::string::npos) << run.output;
  EXPECT_NE(run.output.find("\\x1b[2J.lib"), std::string::npos) << run.output;
  EXPECT_FALSE(found().empty());
}

TEST_F(HostileContent, MayBeFoldersWithinFolders) {
  project_.makeFolder(kTop + "tran/" + repeated("deeper/", 400));
  EXPECT_FALSE(found().empty()); // the paths are too long
}

} // namespace
