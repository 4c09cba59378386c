#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "tests/faults/LibraryFaults.h"

// The functions on files and folders, with each call of the system failing in turn.

namespace tervix::testing {
namespace {

const std::string kLong(20000, 'x');

TEST(FileFaults, ACopyToANewFile) {
  expectSurvivesFaults({[](const TemporaryFolder& folder) { folder.file("source.dat", kLong); },
                        [](std::string folder) {
                          std::string source = folder + "/source.dat";
                          std::string target = folder + "/target.dat";
                          return cpFile(source, target);
                        }});
}

// The copy goes into the target itself, which keeps its links and permissions.
TEST(FileFaults, ACopyOntoAFile) {
  expectSurvivesFaults({[](const TemporaryFolder& folder) {
                          folder.file("source.dat", kLong);
                          folder.file("target.dat", "former");
                        },
                        [](std::string folder) {
                          std::string source = folder + "/source.dat";
                          std::string target = folder + "/target.dat";
                          return cpFile(source, target);
                        },
                        {"target.dat"}});
}

TEST(FileFaults, ACopiedFolder) {
  expectSurvivesFaults({[](const TemporaryFolder& folder) {
                          folder.file("source/run.dat", kLong);
                          folder.file("source/run.out", "out");
                          folder.file("source/inner/deep.lib", "lib");
                          folder.folder("source/empty");
                        },
                        [](std::string folder) {
                          std::string source = folder + "/source";
                          std::string target = folder + "/far/away/target";
                          return cpDir(source, target);
                        }});
}

TEST(FileFaults, AMovedFile) {
  expectSurvivesFaults({[](const TemporaryFolder& folder) {
                          folder.file("old.dat", kLong);
                          folder.file("new.dat", "replaced");
                        },
                        [](std::string folder) {
                          std::string from = folder + "/old.dat";
                          std::string to = folder + "/new.dat";
                          // Done already when it is done again.
                          bool isThere = false;
                          filePathExists(from, isThere);
                          return mvFile(from, to);
                        }});
}

TEST(FileFaults, APathOfFolders) {
  expectSurvivesFaults({[](const TemporaryFolder& folder) { folder.file("a/file", "kept"); },
                        [](std::string folder) {
                          std::string path = folder + "/a/b/c/d";
                          return createPath(path);
                        }});
}

} // namespace
} // namespace tervix::testing
