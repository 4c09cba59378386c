#include <ostream>

#include <gtest/gtest.h>

#include "tests/support/ProjectBuilder.h"
#include "tests/tools/ToolRun.h"

// Names that would drive a terminal, were they printed as they are.

using namespace tervix::testing;

namespace {

constexpr const char* kRedBell = "a\x1b[31m\x07z"; // an escape sequence and a bell
constexpr const char* kRedBellSpelt = "a\\x1b[31m\\x07z";
constexpr const char* kNewLine = "a\nb\x7f";
constexpr const char* kNewLineSpelt = "a\\x0ab\\x7f";
constexpr const char* kSecondGroup = "a\xc2\x9b"
                                     "31mz"; // an escape sequence begins with U+009B, too
constexpr const char* kSecondGroupSpelt = "a\\xc2\\x9b31mz";
constexpr const char* kTurned = "a\xe2\x80\xae"
                                "nart\xe2\x81\xa9"; // U+202E, U+2069: reads as "tran"
constexpr const char* kTurnedSpelt = "a\\xe2\\x80\\xaenart\\xe2\\x81\\xa9";
constexpr const char* kNotSeen = "\xe2\x80\xa8z\xe2\x80\x8b\xd8\x9c\xef\xbb\xbf\xe2\x81\xa6";
constexpr const char* kNotSeenSpelt =
    "\\xe2\\x80\\xa8z\\xe2\\x80\\x8b\\xd8\\x9c\\xef\\xbb\\xbf\\xe2\\x81\\xa6";
constexpr const char* kLatin1 = "caf\xe9-\xe2\x82";
constexpr const char* kLatin1Spelt = "caf\\xe9-\\xe2\\x82";

// Of three bytes; not seen themselves.
bool isHidden(const std::string& character) {
  return character == "\xe2\x80\x8b" || character == "\xe2\x80\x8f" ||
         (character >= "\xe2\x80\xa8" && character <= "\xe2\x80\xae") ||
         (character >= "\xe2\x81\xa6" && character <= "\xe2\x81\xa9") ||
         character == "\xef\xbb\xbf";
}

bool isSafe(const std::string& text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    const auto next = at + 1 < text.size() ? static_cast<unsigned char>(text[at + 1]) : 0;
    if ((byte < 0x20 && byte != '\n') || byte == 0x7f || (byte == 0xc2 && next < 0xa0) ||
        isHidden(text.substr(at, 3)))
      return false;
  }
  return true;
}

struct Name {
  const char* what;
  const char* raw;
  const char* spelt;
};

class StrangeName : public ::testing::TestWithParam<Name> {
protected:
  // A project in a folder, and with a profile, of that name.
  std::string project() const {
    ProjectPlan plan;
    plan.name = GetParam().raw;
    plan.profiles = {{plan.name, GetParam().raw}};
    const std::string folder = plan.name + "/cfg_analog/";
    folder_.file(folder + plan.name + ".sim",
                 "not read in a line: a new line may be in its name\n");
    return folder_.file(folder + plan.name + ".tvp", "");
  }

  TemporaryFolder folder_;
};

TEST_P(StrangeName, IsSpeltOutInTheTree) {
  const std::string tree = shown({project()});
  EXPECT_TRUE(isSafe(tree)) << tree;
  const std::string spelt = GetParam().spelt;
  EXPECT_EQ(tree.rfind(spelt + "  project", 0), 0U) << tree;
  EXPECT_NE(tree.find("schematic " + spelt + "  in"), std::string::npos) << tree;
}

TEST_P(StrangeName, IsSpeltOutOnATerminal) {
  const std::string file = project();
  const ToolRun run = runToolOnTerminal({"show", file}, {"", {{"NO_COLOR", "1"}}});
  std::string text = run.output;
  for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n"))
    text.erase(at, 1);
  EXPECT_TRUE(isSafe(text)) << text;
}

TEST_P(StrangeName, IsEscapedInJson) {
  const std::string text = shown({project(), "--json"});
  EXPECT_TRUE(isSafe(text)) << text;
  if (GetParam().raw != kLatin1) { // which JSON cannot hold
    EXPECT_EQ(nlohmann::json::parse(text)["name"], GetParam().raw);
  }
}

TEST_P(StrangeName, IsSpeltOutInMessages) {
  const std::string name = GetParam().raw;
  const std::string spelt = GetParam().spelt;
  expectFailure(1, "\"" + spelt + ".tvp\" does not exist", {"show", name + ".tvp"});
  expectFailure(2, "there is no command \"" + spelt + "\"\nRun with --help for more information.",
                {name});
  for (const Arguments& arguments : {Arguments{"show", "a.tvp", "--" + name},
                                     {"show", "a.tvp", name},
                                     {"show", "--front-end", name, "a.tvp"}}) {
    const ToolRun run = runTool(arguments);
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(isSafe(run.errors)) << run.errors;
  }
}

TEST_P(StrangeName, IsSpeltOutInTheMessagesOfTheLibrary) {
  const std::string file = folder_.file(std::string(GetParam().raw) + ".tvp", "[");
  const ToolRun run = runTool({"show", file});
  const std::string spelt = folder_.path() + "/" + GetParam().spelt + ".tvp";
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors.rfind("tervix: error 10109: Failed to read file \"" + spelt +
                                 "\". Check the file syntax.\n  " + spelt + ":1:",
                             0),
            0U)
      << run.errors;
}

std::ostream& operator<<(std::ostream& stream, const Name& name) {
  return stream << name.spelt;
}

INSTANTIATE_TEST_SUITE_P(With, StrangeName,
                         ::testing::Values(Name{"EscapeSequence", kRedBell, kRedBellSpelt},
                                           Name{"NewLine", kNewLine, kNewLineSpelt},
                                           Name{"SecondGroupOfControls", kSecondGroup,
                                                kSecondGroupSpelt},
                                           Name{"Turned", kTurned, kTurnedSpelt},
                                           Name{"NotSeen", kNotSeen, kNotSeenSpelt},
                                           Name{"BytesThatAreNoUtf8", kLatin1, kLatin1Spelt}),
                         [](const auto& name) { return std::string(name.param.what); });

TEST(NameInAProjectFile, IsSpeltOut) {
  const TemporaryFolder folder;
  const std::string file =
      folder.file("amp.tvp", "[\"Design Resources\"]\nTERVIX_Output_File = \"o\\u001b[2J\"\n"
                             "[\"Tervix Resources\"]\n\"Model Libraries\" = [\"m\\u001b[2J.lib\"]\n"
                             "[\"Simulation Profiles\"]\nFiles = [\"p\\u001b[2J.sim\"]\n");
  const std::string tree = shown({file});
  EXPECT_TRUE(isSafe(tree)) << tree;
  for (const char* spelt : {"o\\x1b[2J", "m\\x1b[2J.lib", "p\\x1b[2J.sim"})
    EXPECT_NE(tree.find(spelt), std::string::npos) << tree;
}

TEST(NameOfOtherAlphabets, IsShownAsItIs) {
  const TemporaryFolder folder;
  for (const char* name : {"Verstärker", "усилитель", "増幅器", "🎛"}) {
    const std::string file = folder.file(std::string(name) + ".tvp");
    EXPECT_EQ(shown({file}).rfind(std::string(name) + "  project", 0), 0U) << name;
    EXPECT_NE(shown({file, "--json"}).find(name), std::string::npos) << name;
  }
}

} // namespace
