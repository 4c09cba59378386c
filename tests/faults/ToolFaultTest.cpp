#include <array>
#include <cctype>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <unistd.h>

#include "tests/faults/FaultList.h"
#include "tests/faults/FaultyRun.h"
#include "tests/faults/FaultyTree.h"
#include "tests/tools/Sample.h"

// Every command of the tool that changes a project, with each of its calls of the system failing
// in turn, or being its last.

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

using Words = std::vector<std::string>;

constexpr const char* kProject = "PROJECT";
constexpr const char* kArchive = "ARCHIVE"; // a folder beside the sample

// A command on a sample.
struct Case {
  int sample;
  Words words;
};

std::ostream& operator<<(std::ostream& stream, const Case& one) {
  stream << allSamples().at(static_cast<std::size_t>(one.sample)).name;
  for (const std::string& word : one.words)
    stream << " " << word;
  return stream;
}

std::vector<Case> allCases() {
  const std::array<Words, 4> profiles = {
      {{"tran", "ac"}, {"tran", "ac"}, {"tran", "noise"}, {"ac", "step"}}};
  std::vector<Case> cases;
  for (int sample = 0; sample < 4; ++sample) {
    const std::string first = profiles.at(static_cast<std::size_t>(sample))[0];
    const std::string second = profiles.at(static_cast<std::size_t>(sample))[1];
    for (const Words& words : std::vector<Words>{{"profile", "add", kProject, "fresh"},
                                                 {"profile", "copy", kProject, first, "other"},
                                                 {"profile", "rename", kProject, first, "other"},
                                                 {"profile", "delete", kProject, first},
                                                 {"design", "rename", kProject, "other"},
                                                 {"project", "rename", kProject, "other"}})
      cases.push_back({sample, words});
    cases.push_back({sample, {"archive", kProject, kArchive}});
    if (sample < 2)
      for (const Words& words :
           std::vector<Words>{{"profile", "activate", kProject, second},
                              {"schematic", "add", kProject, "MORE"},
                              {"schematic", "rename", kProject, "TOP", "NEXT"}})
        cases.push_back({sample, words});
  }
  cases.push_back({0, {"schematic", "delete", kProject, "BIAS"}});
  cases.push_back({0, {"lib", "add", kProject, "ac", "more.lib", "--kind", "library"}});
  cases.push_back({0, {"lib", "remove", kProject, "ac", "sweep.stl", "--kind", "stimulus"}});
  return cases;
}

// The same state of the disk whatever process left it.
Files withoutProcess(const Files& files) {
  static const std::regex number("\"process\": [0-9]+");
  static const std::regex scratch("\\.tervix-[0-9]+$");
  Files same;
  for (const auto& [name, content] : files)
    same[std::regex_replace(name, scratch, ".tervix-N")] =
        name.find(".tervix-change") == std::string::npos ? content
                                                         : std::regex_replace(content, number, "");
  return same;
}

class Session {
public:
  explicit Session(const Case& tried)
      : words_(tried.words), sample_(allSamples().at(static_cast<std::size_t>(tried.sample))),
        before_(tree_.fill([this](const TemporaryFolder& folder) {
          fs::copy(std::string(TERVIX_EXAMPLES) + "/" + sample_.folder, folder.path("sample"),
                   fs::copy_options::recursive);
        })),
        project_(tree_.path() + "/sample/" + sample_.project), laterProject_(project_) {}

  void run() {
    shownBefore_ = shown(project_);
    const FaultyRun plain = runTool(command(project_));
    ASSERT_EQ(plain.status, 0) << plain.errors;
    laterProject_ = nlohmann::json::parse(plain.output).at("project").get<std::string>();
    after_ = tree_.files();
    shownAfter_ = shown(laterProject_);
    for (const Fault& fault : faultsFor(plain.calls, Choice::kSome))
      tryFault(fault, plain.calls.at(fault.call).name);
  }

private:
  FaultyRun runTool(const Words& words, const Fault& fault = {}) const {
    return runWithFault(tree_.path(), fault, [&] {
      Words all = {TERVIX_TOOL};
      all.insert(all.end(), words.begin(), words.end());
      std::vector<char*> arguments;
      for (std::string& word : all)
        arguments.push_back(word.data());
      arguments.push_back(nullptr);
      execv(arguments[0], arguments.data());
    });
  }

  Words command(const std::string& project) const {
    Words words = words_;
    for (std::string& word : words)
      if (word == kProject)
        word = project;
      else if (word == kArchive)
        word = tree_.path() + "/archive";
    words.emplace_back("--json");
    return words;
  }

  // What the tool shows; nothing, with a failed test, when it cannot. told is what it says beside.
  nlohmann::ordered_json shown(const std::string& project, std::string* told = nullptr) const {
    const FaultyRun run = runTool({"show", project, "--json"});
    EXPECT_EQ(run.status, 0) << run.errors;
    if (told != nullptr)
      *told = run.errors;
    const auto json = nlohmann::ordered_json::parse(run.output, nullptr, false);
    return run.status == 0 ? comparable(json, tree_.path()) : nlohmann::ordered_json();
  }

  void tryFault(const Fault& fault, const std::string& call) {
    const FaultTally tally;
    std::ostringstream what;
    what << fault << ", " << call;
    SCOPED_TRACE(what.str());
    tree_.reset(before_);
    const FaultyRun run = runTool(command(project_), fault);
    const Files found = tree_.files();
    SCOPED_TRACE(run.errors + differences(before_, found));
    if (!run.wasKilled)
      expectAnswer(run, found);
    expectSettledFrom(found);
  }

  void expectAnswer(const FaultyRun& run, const Files& found) const {
    EXPECT_LT(run.status, 2);
    if (run.status == 0) {
      EXPECT_TRUE(found == after_) << differences(after_, found);
      return;
    }
    EXPECT_EQ(run.errors.rfind("tervix: ", 0), 0U);
    const bool isToldLeft = run.errors.find("the next command") != std::string::npos ||
                            run.errors.find("The next command") != std::string::npos;
    EXPECT_TRUE(found == before_ || found == after_ || isToldLeft);
  }

  std::string projectIn(const Files& files) const {
    return files.count(fs::path(project_).lexically_relative(tree_.path()).string()) != 0
               ? project_
               : laterProject_;
  }

  // Nothing of the project is touched; a half-made archive is recognised by lying there.
  void expectUntouchedIn(const Files& found) const {
    for (const auto& [name, content] : before_)
      EXPECT_TRUE(found.count(name) != 0 && found.at(name) == content) << name;
  }

  // The project opens; the next command settles what was interrupted, and the same one does it.
  void expectSettledFrom(const Files& found) {
    if (words_.front() == "archive")
      return expectUntouchedIn(found);
    if (found == before_ || found == after_ || !settled_.insert(withoutProcess(found)).second)
      return;
    const std::string project = projectIn(found);
    std::string told;
    const auto tree = shown(project, &told);
    EXPECT_TRUE(tree == shownBefore_ || tree == shownAfter_ ||
                told.find("tells of an interrupted change") != std::string::npos)
        << tree.dump(2);

    const FaultyRun other = runTool({"profile", "delete", project, "absent"});
    EXPECT_EQ(other.status, 1);
    const Files settled = tree_.files();
    EXPECT_TRUE(settled == before_ || settled == after_)
        << "settled: " << other.errors << differences(before_, settled);

    tree_.reset(found);
    const FaultyRun same = runTool(command(project_));
    EXPECT_TRUE(same.status == 0 || project != project_) << "done again: " << same.errors;
    EXPECT_TRUE(same.status != 0 || tree_.files() == after_)
        << "done again: " << differences(after_, tree_.files());
  }

  const Words words_;
  const Sample& sample_;
  FaultyTree tree_;
  Files before_;
  Files after_;
  std::string project_;
  std::string laterProject_;
  nlohmann::ordered_json shownBefore_;
  nlohmann::ordered_json shownAfter_;
  std::set<Files> settled_;
};

class ToolFaults : public ::testing::TestWithParam<Case> {};

TEST_P(ToolFaults, LoseNothing) {
  Session(GetParam()).run();
}

std::string caseName(const ::testing::TestParamInfo<Case>& tried) {
  std::ostringstream text;
  text << tried.param;
  std::string name = text.str();
  for (char& c : name)
    if (std::isalnum(static_cast<unsigned char>(c)) == 0)
      c = '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, ToolFaults, ::testing::ValuesIn(allCases()), caseName);

} // namespace
} // namespace tervix::testing
