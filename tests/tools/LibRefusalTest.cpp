#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/tools/ChangedSample.h"

// What `tervix lib` refuses. Nothing is touched then.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

class RefusedVariant : public ChangedSample {
protected:
  ~RefusedVariant() override { EXPECT_EQ(files(), before_); }

  // owner is a profile's name or "--design".
  void expectRefusedAs(const std::string& action, const std::string& owner, const std::string& kind,
                       const std::string& path, const std::string& message) {
    expectRefused(runTool({"lib", action, copy_.project(), owner, "--kind", kind, "--", path}),
                  message);
    EXPECT_EQ(files(), before_) << path;
  }

  // A test may change the project first.
  void startHere() { before_ = files(); }

  // Those that can have files: the design, and a profile if the layout lets it.
  std::vector<std::string> owners() const {
    return isSimulation() ? std::vector<std::string>{"--design", name()}
                          : std::vector<std::string>{"--design"};
  }

private:
  Files before_ = files();
};

INSTANTIATE_TEST_SUITE_P(All, RefusedVariant, ::testing::Range(0, 4), layoutName);

TEST_P(RefusedVariant, IsAPathThatTheFormatsCannotHold) {
  for (const std::string& owner : owners()) {
    expectRefusedAs("add", owner, "library", "", "\"\" cannot be added: the path is empty");
    for (const std::string bad : {"a\nb.lib", "a\r.lib", "a\tb.lib", "\x1b[31m.lib", "a\x7f.lib"})
      expectRefusedAs("add", owner, "library", bad, "cannot be added: the path holds a control");
    expectRefusedAs("add", owner, "library", "a\"b.lib", "the path holds a double quote");
    for (const std::string bad : {"models.lib/", "models.lib\\"})
      expectRefusedAs("add", owner, "library", bad, "the path ends in a separator");
  }
}

TEST_P(RefusedVariant, IsSpeltOutInTheMessage) {
  const ToolRun run =
      runTool({"lib", "add", copy_.project(), "--design", "--kind", "library", "\x1b[2J.lib"});
  EXPECT_EQ(run.errors, "tervix: \"\\x1b[2J.lib\" cannot be added: the path holds a control "
                        "character\n");
}

TEST_P(RefusedVariant, IsTextThatIsNotUtf8InAProjectFile) {
  expectRefusedAs("add", "--design", "library", "caf\xe9.lib", "the text is not valid UTF-8");
}

TEST_P(RefusedVariant, IsAFolder) {
  const std::string folder = fs::path(copy_.project()).parent_path().string() + "/models.lib";
  fs::create_directory(folder);
  startHere();
  for (const std::string& owner : owners())
    expectRefusedAs("add", owner, "library", folder, "this is a folder");
}

TEST_P(RefusedVariant, IsAFileThatIsListedAlready) {
  const std::string folder = fs::path(copy_.project()).parent_path().string();
  for (const std::string& same :
       {std::string("supply.inc"), std::string("./supply.inc"), std::string(".\\supply.inc"),
        std::string("x/../SUPPLY.INC"), folder + "/supply.inc"})
    expectRefusedAs("add", "--design", "include", same,
                    "the design lists the include file already, as \"supply.inc\"");
  if (!isSimulation())
    return;
  for (const char* same : {".\\load.inc", "load.inc", "./LOAD.inc", "../tran/load.inc"})
    expectRefusedAs("add", name(), "include", same, "already, as \".\\load.inc\"");
}

TEST_P(RefusedVariant, IsAFileThatIsNotListed) {
  for (const std::string& owner : owners())
    expectRefusedAs("remove", owner, "library", "absent.lib",
                    "lists no library file \"absent.lib\"; it lists: ");
  // Of another kind.
  expectRefusedAs("remove", "--design", "library", "supply.inc", "lists no library file");
}

TEST_P(RefusedVariant, IsOneOfAnUnknownProfile) {
  for (const char* action : {"add", "remove"})
    expectRefusedAs(action, "absent", "library", "a.lib", "there is no profile \"absent\"");
  expectRefused(runTool({"lib", "list", copy_.project(), "absent"}),
                "there is no profile \"absent\"");
  expectRefused(runTool({"lib", "list", copy_.project(), ""}), "there is no profile \"\"");
  expectRefused(runTool({"lib", "add", copy_.project(), name(), "--kind", "library", "a.lib",
                         "--schematic", "absent"}),
                "there is no schematic \"absent\"");
}

TEST_P(RefusedVariant, IsOneThatTheLibraryWouldNotLoad) {
  if (!isSimulation())
    return;
  expectRefusedAs("add", name(), "library", "a.LIB", "must hold \".lib\", in lower case");
  expectRefusedAs("add", name(), "library", "a.stl", "must hold \".lib\", in lower case");
  expectRefusedAs("add", name(), "stimulus", "a.lib", "must hold \".stl\", in lower case");
  expectRefusedAs("add", name(), "include", "a", "must hold \".inc\", in lower case");
  expectRefusedAs("add", name(), "include", std::string(1020, 'x') + ".inc", "too long for a line");
}

TEST_P(RefusedVariant, IsOneOfAProfileInALayoutWithoutIncludeLists) {
  if (isSimulation())
    return;
  for (const char* action : {"add", "remove"})
    expectRefusedAs(action, name(), "library", "a.lib", "has no list of its own");
}

TEST_P(RefusedVariant, IsEveryOneOfAProjectFileWithAMistake) {
  writeFile(copy_.project(), "[\"Tervix Resources\"]\n\"Model Libraries\" = 3\n");
  startHere();
  for (const char* action : {"add", "remove"})
    EXPECT_EQ(
        runTool({"lib", action, copy_.project(), "--design", "--kind", "library", "a.lib"}).status,
        1);
}

TEST_P(RefusedVariant, IsEveryOneOfAnIncludeListThatCannotBeRead) {
  if (!isSimulation())
    return;
  const std::string list = copy_.path(filesNamed(name() + "_profile.inc").front());
  fs::remove(list);
  fs::create_directory(list);
  startHere();
  for (const char* action : {"add", "remove"})
    expectRefusedAs(action, name(), "library", "a.lib", "could not be read");
  expectRefused(runTool({"lib", "list", copy_.project(), name()}), "could not be read");
}

// A line of more than 1023 bytes is loaded in pieces, and the library takes this one's second piece
// for an entry.
TEST_P(RefusedVariant, IsTakenBackWhenTheLibraryWouldLoadSomethingElse) {
  if (!isSimulation())
    return;
  writeFile(copy_.path(filesNamed(name() + "_profile.inc").front()),
            "*" + std::string(1022, '-') + ".LIB \"hidden.lib\"\n");
  startHere();
  expectRefusedAs("add", name(), "library", "a.lib", "would not list the files of profile");
  expectRefusedAs("add", name(), "library", "a.lib", "The project is as it was.");
}

// Its folder would let the file be replaced.
TEST_P(RefusedVariant, IsEveryOneOfAReadOnlyFile) {
  for (const std::string& owner : owners()) {
    const std::string file = owner == "--design"
                                 ? copy_.project()
                                 : copy_.path(filesNamed(name() + "_profile.inc").front());
    for (fs::path folder = fs::path(file).parent_path();
         !fs::equivalent(folder, fs::temp_directory_path()); folder = folder.parent_path())
      fs::permissions(folder, fs::perms::all);
    fs::permissions(file, fs::perms(0444));
    const UnprivilegedUser user;
    if (!user.isInForce())
      GTEST_SKIP() << "root may write everything";
    expectRefusedAs("add", owner, "library", "a.lib",
                    "\"" + file + "\" may not be written\nThe project is as it was.");
  }
}

TEST_P(RefusedVariant, IsWrongUsage) {
  const auto expectWrong = [this](const Arguments& more, const std::string& message) {
    Arguments arguments = {"lib", "add", copy_.project()};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const ToolRun run = runTool(arguments);
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(contains(run.errors, message)) << run.errors;
  };
  expectWrong({"--kind", "library", name()}, "name the profile and then the PATH");
  expectWrong({"--kind", "library", name(), "a.lib", "--design"}, "with --design no profile");
  expectWrong({name(), "a.lib"}, "--kind is required");
  expectWrong({"--kind", "model", name(), "a.lib"}, "--kind: model not in");
  expectWrong({"--kind", "library", "a.lib", "--design", "--schematic", schematic()},
              "--design excludes --schematic");
}

} // namespace
