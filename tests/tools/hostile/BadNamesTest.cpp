#include <tuple>

#include "tests/tools/ChangedSample.h"
#include "tests/tools/EntriesOnDisk.h"

// Names that would lead elsewhere, drive a terminal, or cannot be held by every system: each
// command that takes a new name refuses them before it touches anything.

using namespace tervix::testing;

namespace {

struct BadName {
  std::string name;
  const char* reason;
};

const std::vector<BadName>& badNames() {
  static const std::vector<BadName> names = {
      {"", "it is empty"},
      {".", "it holds a dot"},
      {"..", "it holds a dot"},
      {"a.b", "it holds a dot"},
      {"trailing.", "it holds a dot"},
      {"../up", "it holds a separator"},
      {"/tmp/up", "it holds a separator"},
      {"a/b", "it holds a separator"},
      {"a\\b", "it holds a separator"},
      {"..\\up", "it holds a separator"},
      {"C:up", "it holds one of"},
      {"a*", "it holds one of"},
      {"a?", "it holds one of"},
      {"a|b", "it holds one of"},
      {"a\"b", "it holds one of"},
      {"a\nb", "it holds a control character"},
      {"a\tb", "it holds a control character"},
      {"\x1b[2J", "it holds a control character"},
      {"a\x7f", "it holds a control character"},
      {"a\xc2\x9b"
       "31m",
       "it holds a control character"},
      {"trailing ", "it begins or ends with a blank"},
      {" leading", "it begins or ends with a blank"},
      {std::string(201, 'n'), "it is longer than 200 characters"},
      {"CON", "some systems keep it for a device"},
      {"nul", "some systems keep it for a device"},
      {"Com1", "some systems keep it for a device"},
      {"LPT9", "some systems keep it for a device"},
      {"com\xc2\xb9", "some systems keep it for a device"},
      {"CONOUT$", "some systems keep it for a device"},
  };
  return names;
}

// Arguments that not every system can pass to a program.
const std::vector<BadName>& badArguments() {
  static const std::vector<BadName> names = {
      {"caf\xe9", "it is no valid UTF-8"},
      {std::string(100000, 'n'), "it is longer than 200 characters"},
  };
  return names;
}

struct Naming {
  const char* title;
  Arguments command;
  bool takesProfile; // the present name comes first
  bool takesSchematic;
  bool isForFrontEnd1;
};

const std::vector<Naming>& namings() {
  static const std::vector<Naming> all = {
      {"ProfileAdd", {"profile", "add"}, false, false, true},
      {"ProfileCopy", {"profile", "copy"}, true, false, true},
      {"ProfileRename", {"profile", "rename"}, true, false, true},
      {"SchematicAdd", {"schematic", "add"}, false, false, false},
      {"SchematicRename", {"schematic", "rename"}, false, true, true},
      {"DesignRename", {"design", "rename"}, false, false, true},
      {"ProjectRename", {"project", "rename"}, false, false, true},
  };
  return all;
}

class BadNewName : public ChangedSample {
protected:
  void expectRefused(const std::vector<BadName>& names) const {
    for (const Naming& naming : namings())
      if (isFrontEnd2() || naming.isForFrontEnd1)
        expectRefusedBy(naming, names);
  }

  void expectRefusedBy(const Naming& naming, const std::vector<BadName>& names) const {
    const EntriesOnDisk before = entriesOf(copy_.folder());
    for (const BadName& bad : names) {
      Arguments arguments = naming.command;
      arguments.push_back(copy_.project());
      if (naming.takesProfile)
        arguments.push_back(name());
      if (naming.takesSchematic)
        arguments.push_back(schematic());
      arguments.push_back(bad.name);
      const ToolRun run = runTool(arguments);
      EXPECT_EQ(run.status, 1) << naming.title << " " << bad.name;
      EXPECT_TRUE(contains(run.errors, bad.reason)) << naming.title << " " << run.errors;
      EXPECT_EQ(run.output, "");
    }
    expectUntouched(before, entriesOf(copy_.folder()), naming.title);
  }

  // A present name is looked up, never composed to a path.
  void expectNothingFound(const std::vector<BadName>& names) const {
    const EntriesOnDisk before = entriesOf(copy_.folder());
    for (const BadName& bad : names)
      for (const Arguments& command :
           {Arguments{"profile", "delete"}, {"profile", "activate"}, {"schematic", "delete"}}) {
        const ToolRun run = runTool({command[0], command[1], copy_.project(), bad.name});
        EXPECT_EQ(run.status, 1) << command[0] << " " << command[1] << " " << bad.name;
        EXPECT_NE(run.errors, "");
      }
    expectUntouched(before, entriesOf(copy_.folder()), "looking for it");
  }
};
INSTANTIATE_TEST_SUITE_P(All, BadNewName, ::testing::Range(0, 4), layoutName);

TEST_P(BadNewName, IsRefusedByEachCommand) {
  expectRefused(badNames());
}

TEST_P(BadNewName, FindsNothingThatCouldBeChanged) {
  expectNothingFound(badNames());
}

TEST_P(BadNewName, IsRefusedWhateverTheSystemPasses) {
  expectRefused(badArguments());
  expectNothingFound(badArguments());
}

} // namespace
