#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/ChangedSample.h"
#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

// The files that a project names lie anywhere; its archive holds them, and names them there.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

void replaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
}

// A sample in a folder "work" beside which there are others. The library of the design is named as
// a test says.
class ArchivedReferences : public ::testing::TestWithParam<int> {
protected:
  const Sample& sample() const { return allSamples().at(static_cast<std::size_t>(GetParam())); }
  bool isSimulation() const { return GetParam() == 0 || GetParam() == 2; }

  std::string project() const { return copy_.project(); }
  std::string projectFolder() const { return fs::path(project()).parent_path().string(); }
  // The folder from which the samples are found beside: "..", or more of them for front end 1.
  std::string outside() const {
    return fs::path(beside_).lexically_relative(projectFolder()).generic_string();
  }
  std::string libraryName() const {
    return shownAsJson({project()})["designLevelFiles"][0]["name"];
  }

  void change(const std::string& file, const std::string& from, const std::string& to) const {
    std::string text = contentOf(file);
    ASSERT_TRUE(contains(text, from)) << text;
    replaceAll(text, from, to);
    writeFile(file, text);
  }
  void nameLibrary(const std::string& text) const {
    change(project(), "\"" + libraryName() + "\"", text);
  }

  // A profile's ".sim" file and, in a simulation project, its include list.
  std::string sim() const {
    return shownAsJson({project()})["schematics"][0]["profiles"][0]["path"];
  }
  std::string includeList() const {
    const std::string stem = sim().substr(0, sim().size() - 4);
    return stem + "/" + fs::path(stem).filename().string() + "_profile.inc";
  }
  std::string copyOf(const std::string& file) const {
    return archived() + file.substr(copy_.folder().size());
  }

  ToolRun archiveIt(const std::string& option = "") const {
    Arguments arguments = {"archive", project(), archived()};
    if (!option.empty())
      arguments.push_back(option);
    ToolRun run = runTool(arguments);
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.errors, "");
    return run;
  }

  // What opens from the archive once the original and all beside it are gone. Every path in it
  // has to lie in the archive.
  nlohmann::ordered_json opened() const {
    fs::remove_all(copy_.folder());
    fs::remove_all(beside_);
    auto json = shownAsJson({archived() + "/" + sample().project});
    std::function<void(const nlohmann::ordered_json&)> check = [&](const auto& value) {
      if (value.is_object() && value.contains("path") && value["path"].is_string()) {
        EXPECT_EQ(value["path"].template get<std::string>().rfind(archived() + "/", 0), 0U)
            << value;
      }
      if (value.is_structured())
        for (const auto& element : value)
          check(element);
    };
    check(json);
    return json;
  }

  std::string archived() const { return target_.path("archive"); }

  SampleCopy copy_{sample(), "work/sample"};
  std::string beside_ = fs::path(copy_.folder()).parent_path().parent_path().string() + "/libs";
  TemporaryFolder target_;
};

INSTANTIATE_TEST_SUITE_P(All, ArchivedReferences, ::testing::Range(0, 4), layoutName);

TEST_P(ArchivedReferences, LeadToACopyOfAFileOutside) {
  writeFile(beside_ + "/models/opamp.lib", "outside");
  for (const std::string& name : {beside_ + "/models/opamp.lib", outside() + "/models/opamp.lib"}) {
    fs::remove_all(archived());
    nameLibrary("\"" + name + "\"");
    archiveIt();
    const std::string text = contentOf(archived() + "/" + sample().project);
    EXPECT_FALSE(contains(text, beside_)) << text;
  }
  const auto library = opened()["designLevelFiles"][0];
  EXPECT_EQ(library["exists"], true);
  EXPECT_EQ(library["path"], archived() + "/external/models/opamp.lib");
  EXPECT_EQ(contentOf(library["path"]), "outside");
}

TEST_P(ArchivedReferences, ChangeNothingElseInTheProjectFile) {
  writeFile(beside_ + "/models/opamp.lib", "outside");
  const std::string name = libraryName();
  const std::string text = contentOf(project());
  nameLibrary("'" + outside() + "/models/opamp.lib'");
  archiveIt();
  std::string expected = text;
  const auto library = fs::path("external/models/opamp.lib");
  const fs::path folder = fs::path(sample().project).parent_path();
  replaceAll(expected, "\"" + name + "\"",
             "\"" + library.lexically_relative(folder.empty() ? "." : folder).generic_string() +
                 "\"");
  EXPECT_EQ(contentOf(archived() + "/" + sample().project), expected);
}

TEST_P(ArchivedReferences, KeepTheirSeparators) {
  writeFile(beside_ + "/models/opamp.lib", "outside");
  std::string name = outside() + "/models/opamp.lib";
  replaceAll(name, "/", "\\");
  nameLibrary("'" + name + "'");
  archiveIt();
  const auto library = opened()["designLevelFiles"][0];
  EXPECT_TRUE(contains(library["name"], "external\\models\\opamp.lib")) << library;
  EXPECT_EQ(library["exists"], true);
}

TEST_P(ArchivedReferences, InFullToTheProjectItselfBecomeRelative) {
  const std::string name = libraryName();
  nameLibrary("\"" + projectFolder() + "/" + name + "\"");
  archiveIt();
  const auto library = opened()["designLevelFiles"][0];
  EXPECT_EQ(library["name"], name);
  EXPECT_EQ(library["exists"], true);
}

TEST_P(ArchivedReferences, LeadToFilesOfTheSameNameFromDifferentFolders) {
  writeFile(beside_ + "/a/models/x.lib", "first");
  writeFile(beside_ + "/b/Models/x.lib", "second");
  writeFile(beside_ + "/c/models/x.lib", "third");
  nameLibrary("\"" + beside_ + "/a/models/x.lib\", \"" + beside_ + "/b/Models/x.lib\", \"" +
              outside() + "/c/models/x.lib\"");
  archiveIt();
  const auto files = opened()["designLevelFiles"];
  EXPECT_EQ(contentOf(files[0]["path"]), "first");
  EXPECT_EQ(contentOf(files[1]["path"]), "second");
  EXPECT_EQ(contentOf(files[2]["path"]), "third");
  EXPECT_EQ(files[0]["path"], archived() + "/external/models/x.lib");
  EXPECT_EQ(files[1]["path"], archived() + "/external/Models-2/x.lib");
  EXPECT_EQ(files[2]["path"], archived() + "/external/models-3/x.lib");
}

TEST_P(ArchivedReferences, LeadIntoTheArchiveAlsoWhereAFileIsMissing) {
  nameLibrary("\"" + beside_ + "/gone/x.lib\", 'C:\\models\\y.lib'");
  const ToolRun run = archiveIt();
  EXPECT_TRUE(contains(run.output, "missing  " + beside_ + "/gone/x.lib")) << run.output;
  EXPECT_TRUE(contains(run.output, "missing  C:/models/y.lib")) << run.output;
  const auto files = opened()["designLevelFiles"];
  EXPECT_EQ(files[0]["path"], archived() + "/external/gone/x.lib");
  EXPECT_EQ(files[1]["path"], archived() + "/external/models/y.lib");
  EXPECT_FALSE(fs::exists(archived() + "/external"));
}

TEST_P(ArchivedReferences, TellOfFoldersInPlaceOfAFile) {
  fs::create_directories(beside_ + "/models/x.lib");
  nameLibrary("\"" + beside_ + "/models/x.lib\"");
  const ToolRun run = archiveIt();
  EXPECT_TRUE(contains(run.output, "folder  " + beside_ + "/models/x.lib: is a folder"))
      << run.output;
  EXPECT_EQ(opened()["designLevelFiles"][0]["exists"], false);
}

TEST_P(ArchivedReferences, TellOfFifosInPlaceOfAFile) {
  fs::create_directories(beside_ + "/models");
  ASSERT_TRUE(makePipe(beside_ + "/models/y.lib"));
  nameLibrary("\"" + beside_ + "/models/y.lib\"");
  const ToolRun run = archiveIt();
  EXPECT_TRUE(contains(run.output, "special  " + beside_ + "/models/y.lib: is not a regular"))
      << run.output;
  EXPECT_EQ(opened()["designLevelFiles"][0]["exists"], false);
}

TEST_P(ArchivedReferences, FollowLinksOutOfTheProject) {
  writeFile(beside_ + "/real/models/opamp.lib", "outside");
  fs::create_directory_symlink(beside_ + "/real/models", projectFolder() + "/linked");
  // What ".." means follows from where the link leads.
  writeFile(beside_ + "/real/near.lib", "beside the models");
  nameLibrary("\"linked/opamp.lib\", \"linked/../near.lib\"");
  archiveIt();
  const auto files = opened()["designLevelFiles"];
  EXPECT_EQ(contentOf(files[0]["path"]), "outside");
  EXPECT_EQ(contentOf(files[1]["path"]), "beside the models");
}

TEST_P(ArchivedReferences, HoldBlanksAndApostrophes) {
  writeFile(beside_ + "/it's a folder/an opamp.lib", "outside");
  nameLibrary("\"" + beside_ + "/it's a folder/an opamp.lib\"");
  archiveIt();
  const auto library = opened()["designLevelFiles"][0];
  EXPECT_EQ(contentOf(library["path"]), "outside");
}

TEST_P(ArchivedReferences, HoldQuotesAndControlCharacters) {
  const std::string folder = "it's a\x01 \"folder\"";
  writeFile(beside_ + "/" + folder + "/an opamp.lib", "outside");
  nameLibrary("\"" + beside_ + "/it's a\\u0001 \\\"folder\\\"/an opamp.lib\"");
  const ToolRun run = archiveIt();
  EXPECT_FALSE(contains(run.output, "\x01"));
  const auto library = opened()["designLevelFiles"][0];
  EXPECT_EQ(contentOf(library["path"]), "outside");
}

TEST_P(ArchivedReferences, OfASimFileLeadToCopiesOfItsFiles) {
  const std::string text = contentOf(sim());
  const std::string data = text.substr(text.find("DataFile = \"") + 12);
  const std::string oldName = data.substr(0, data.find('"'));
  const std::string name = fs::path(oldName).filename().string();
  const std::string stem = beside_ + "/scratch/" + name.substr(0, name.size() - 4);
  writeFile(stem + ".dat", "data");
  writeFile(stem + ".csd", "beside the data");
  change(sim(), "DataFile = \"" + oldName + "\"", "DataFile = \"" + stem + ".dat\"");
  change(sim(), "Analysis = ",
         "Setup = \"" + stem + ".csd\"\nProbe=\"" + project() + "\"\n# \"" + stem +
             ".dat\"\nAnalysis = ");
  const std::string name1 = sim();
  archiveIt();
  const std::string copied = contentOf(copyOf(name1));
  const auto profile = opened()["schematics"][0]["profiles"][0];
  for (const auto& file : profile["files"])
    if (file["type"] == "dat" || file["type"] == "csd") {
      EXPECT_EQ(file["exists"], true) << file;
      EXPECT_TRUE(contains(file["path"], "/external/scratch/")) << file;
    }
  EXPECT_TRUE(contains(copied, "external/scratch/" + fs::path(stem).filename().string() + ".csd"))
      << copied;
  EXPECT_FALSE(contains(copied, "Probe=\"/")) << copied;
  // A comment has no key.
  EXPECT_TRUE(contains(copied, "\n# \"" + stem + ".dat\"\nAnalysis = ")) << copied;
}

TEST_P(ArchivedReferences, OfASimFileInFullBecomeRelative) {
  const std::string file = sim();
  const std::string folder = fs::path(file).parent_path().string();
  change(file, "ProfileFile = \"", "ProfileFile = \"" + folder + "/");
  const std::string name = fs::path(file).filename().string();
  archiveIt();
  EXPECT_TRUE(contains(contentOf(copyOf(file)), "ProfileFile = \"./" + name + "\"\n"))
      << contentOf(copyOf(file));
}

TEST_P(ArchivedReferences, OfAnIncludeListLeadToCopies) {
  if (!isSimulation())
    return;
  writeFile(beside_ + "/models/x.inc", "outside");
  std::string name = beside_ + "/models/x.inc";
  replaceAll(name, "/", "\\");
  const std::string list = includeList();
  const std::string text = contentOf(list);
  writeFile(list, text + ".inc\t\"" + name + "\" \n* kept\n");
  archiveIt();
  const std::string copied = contentOf(copyOf(list));
  EXPECT_EQ(copied.rfind(text, 0), 0U) << copied;
  EXPECT_TRUE(contains(copied, "external\\models\\x.inc\" \n* kept\n")) << copied;
  bool isFound = false;
  const auto json = opened();
  for (const auto& file : json["schematics"][0]["profiles"][0]["profileLevelFiles"])
    if (contains(file["path"], "external/models/x.inc"))
      isFound = file["exists"].get<bool>() && contentOf(file["path"]) == "outside";
  EXPECT_TRUE(isFound);
}

TEST_P(ArchivedReferences, LeaveTheNameExternalToTheProject) {
  const fs::path top = fs::path(copy_.folder()) /
                       (GetParam() < 2 ? "" : fs::path(sample().project).begin()->string());
  writeFile((top / "External/own.lib").string(), "the project's own");
  writeFile(beside_ + "/models/x.lib", "outside");
  nameLibrary(
      "\"" +
      fs::path(top / "External/own.lib").lexically_relative(projectFolder()).generic_string() +
      "\", \"" + beside_ + "/models/x.lib\"");
  archiveIt();
  const auto files = opened()["designLevelFiles"];
  EXPECT_EQ(contentOf(files[0]["path"]), "the project's own");
  EXPECT_EQ(contentOf(files[1]["path"]), "outside");
  // For front end 1 the project has a folder of its own in the archive.
  EXPECT_EQ(files[1]["path"],
            archived() + (GetParam() < 2 ? "/external-2/models/x.lib" : "/external/models/x.lib"));
}

// ---- What libraries include by themselves ----

TEST_P(ArchivedReferences, OfALibraryAreFollowed) {
  writeFile(beside_ + "/models/opamp.lib", "* includes others\n"
                                           ".inc \"sub/core.inc\"\n"
                                           "  .LIB '../common/types.lib' fast\n"
                                           ".include sub\\plain.inc\n"
                                           ".lib TT\n"
                                           "* .inc \"comment.inc\"\n");
  writeFile(beside_ + "/models/sub/core.inc", ".stmlib \"../../common/deep.stl\"\n");
  writeFile(beside_ + "/models/sub/plain.inc", "plain");
  writeFile(beside_ + "/common/types.lib", ".lib \"opamp.lib\"\n.inc \"types.lib\"\n");
  writeFile(beside_ + "/common/deep.stl", "deep");
  writeFile(beside_ + "/common/opamp.lib", "of the same name");
  writeFile(beside_ + "/common/unused.lib", "unused");
  nameLibrary("\"" + beside_ + "/models/opamp.lib\"");
  const ToolRun run = archiveIt();
  EXPECT_FALSE(contains(run.output, "unresolved")) << run.output;
  auto expected = snapshotOf(beside_);
  expected.erase("common/unused.lib");
  const auto library = opened()["designLevelFiles"][0];
  EXPECT_EQ(library["path"], archived() + "/external/libs/models/opamp.lib");
  EXPECT_EQ(snapshotOf(archived() + "/external/libs"), expected);
}

TEST_P(ArchivedReferences, OfANetlistThatCannotLeadToACopyAreTold) {
  const std::string netlist = projectFolder() + "/extra.lib";
  writeFile(beside_ + "/models/x.inc", "outside");
  writeFile(netlist, "title\n.inc \"" + beside_ + "/models/x.inc\"\n.inc " + outside() +
                         "/models/x.inc\n.inc absent.inc\n");
  nameLibrary("\"extra.lib\"");
  const std::string text = contentOf(netlist);
  const ToolRun run = archiveIt();
  const std::string copy = archived() + "/external/models/x.inc";
  for (const std::string& line :
       {"line 2 includes \"" + beside_ + "/models/x.inc\", which does not lead to its copy in " +
            "the archive: \"" + copy + "\"\n",
        "line 3 includes \"" + outside() + "/models/x.inc\", which does not lead to its copy in " +
            "the archive: \"" + copy + "\"\n",
        std::string("line 4 includes \"absent.inc\", which is not a file beside it")})
    EXPECT_TRUE(contains(run.output, "unresolved  " + netlist + ": " + line)) << run.output;
  EXPECT_EQ(contentOf(copyOf(netlist)), text);
  EXPECT_EQ(contentOf(copy), "outside");
}

// A simulator repeats in its output what it was given, and data may look like anything.
TEST_P(ArchivedReferences, AreNotLookedForInResults) {
  const auto json = shownAsJson({project()});
  for (const auto& file : json["schematics"][0]["profiles"][0]["files"])
    if (file["exists"] == true && (file["type"] == "dat" || file["type"] == "out"))
      writeFile(file["path"], ".include absent.inc\n");
  EXPECT_FALSE(contains(archiveIt().output, "absent.inc"));
}

// ---- A design elsewhere ----

TEST(ArchivedDesign, GoesAlongWithTheFilesBesideIt) {
  const TemporaryFolder folder;
  folder.file("p/amp.tvp", "[\"Design Resources\"]\nFiles = [\"../drawings/board.dsn\"]\n"
                           "[\"Simulation Profiles\"]\nFiles = [\"board-TOP-tran.sim\"]\n");
  folder.file("drawings/board.dsn", "[Design]\nSchematics = [\"TOP\"]\nRoot = \"TOP\"\n");
  folder.file("drawings/board-TOP.net", "netlist");
  folder.file("p/board-TOP-tran.sim", "ProfileName = \"tran\"\nRootSchematics = \"TOP\"\n"
                                      "DesignFile = \"../drawings/board.dsn\"\n");
  const ToolRun run = runTool({"archive", folder.path("p/amp.tvp"), folder.path("archive")});
  EXPECT_EQ(run.status, 0) << run.errors;
  fs::remove_all(folder.path("p"));
  fs::remove_all(folder.path("drawings"));
  const auto json = shownAsJson({folder.path("archive/amp.tvp")});
  EXPECT_EQ(json["design"]["path"], folder.path("archive/external/drawings/board.dsn"));
  EXPECT_EQ(json["schematics"][0]["files"][0]["exists"], true);
  EXPECT_EQ(json["schematics"][0]["profiles"][0]["exists"], true);
  EXPECT_TRUE(contains(contentOf(folder.path("archive/board-TOP-tran.sim")),
                       "DesignFile = \"external/drawings/board.dsn\""));
}

} // namespace
