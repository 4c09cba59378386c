#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/performance/SystemCallCount.h"
#include "tests/project/OpenedProject.h"

// Each operation makes exactly as many system calls as system-calls.txt says.

namespace tervix::testing {
namespace {

std::string nameOfLayout(Layout layout) {
  return std::to_string(frontEndOf(layout)) + "-" + (isSimulation(layout) ? "2" : "1");
}

// A project on disk, and in the child process opened.
struct Subject {
  TemporaryFolder folder;
  Layout layout = Layout::kDesignSimulation;
  ProjectPlan plan;
  std::string projectFile;
  std::unique_ptr<CTervixProject> project;

  std::string schematic() const { return frontEndOf(layout) == 1 ? plan.name : "TOP"; }
  std::string profile() const { return plan.profiles.back().name; }
  std::string sim() const { return folder.path(simPathIn(layout, plan, plan.profiles.back())); }

  void construct() {
    project = std::make_unique<CTervixProject>(
        projectFile.c_str(), static_cast<FRONTEND_ID>(frontEndOf(layout)), false, nullptr);
  }
  void open() {
    construct();
    project->initialize();
  }
};

void nothing(Subject&) {}
void construct(Subject& subject) {
  subject.construct();
}
void open(Subject& subject) {
  subject.open();
}

struct Operation {
  const char* name;
  void (*prepare)(Subject&);
  void (*work)(Subject&);
};

CTervixNode* found = nullptr;
bool exists = false;

// Those that change files come last, as all are done on one project after the other.
const Operation kOperations[] = {
    {"construct", nothing, construct},
    {"initialize", construct, [](Subject& s) { s.project->initialize(); }},
    {"destroy", open, [](Subject& s) { destroySchematics(*s.project); }},
    {"findProfile-names", open,
     [](Subject& s) { s.project->findProfile(found, arg(s.schematic()), arg(s.profile())); }},
    {"findProfile-file", open,
     [](Subject& s) {
       std::string schematic;
       std::string profile;
       s.project->findProfile(found, schematic, profile, arg(s.sim()));
     }},
    {"simProfileExists", open,
     [](Subject& s) { s.project->simProfileExists(exists, found, arg(s.sim())); }},
    {"markerKeyExists", open,
     [](Subject& s) { s.project->markerKeyExists(exists, arg("amp-TOP-p0.mrk")); }},
    {"getProfileBasedFile-out", open,
     [](Subject& s) {
       s.project->getProfileBasedFile(arg(""), arg(s.profile()), PROFILE_FILE_OUT);
     }},
    {"rename-profile", open,
     [](Subject& s) {
       s.project->findProfile(found, arg(s.schematic()), arg(s.profile()));
       static_cast<CTervixProfile*>(found)->rename(arg("renamed"));
     }},
    {"rename-schematic", open,
     [](Subject& s) {
       s.project->setChangedName(arg(s.schematic()), arg("NEW"), RENAME_TYPE_SCHEMATIC);
       s.project->findSchematic(found, arg(s.schematic()));
       static_cast<CTervixSchematic*>(found)->rename(arg("NEW"));
     }},
};

std::map<std::string, int> expectedCounts() {
  std::map<std::string, int> counts;
  std::ifstream file(TERVIX_SYSTEM_CALL_TABLE);
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::string operation;
    std::string layout;
    std::string profiles;
    int count = 0;
    if (words >> operation >> layout >> profiles >> count)
      counts[operation + " " + layout + " " + profiles] = count;
  }
  return counts;
}

TEST(SystemCalls, AreThoseOfTheTable) {
  const std::map<std::string, int> expected = expectedCounts();
  std::map<std::string, int> counted;
  std::string table;
  for (const Layout layout : kAllLayouts)
    for (const int profiles : {1, 100}) {
      Subject subject;
      subject.layout = layout;
      subject.plan.profiles.clear();
      for (int i = 0; i < profiles; ++i)
        subject.plan.profiles.push_back({"TOP", "p" + std::to_string(i)});
      subject.projectFile = writeProject(subject.folder, layout, subject.plan);
      for (const Operation& operation : kOperations) {
        const auto count = systemCallsOn(
            subject.folder.path(), [&] { operation.prepare(subject); },
            [&] { operation.work(subject); });
        ASSERT_TRUE(count.has_value()) << "a child process cannot be traced here";
        const std::string key = std::string(operation.name) + " " + nameOfLayout(layout) + " " +
                                std::to_string(profiles);
        counted[key] = *count;
        table += key + " " + std::to_string(*count) + "\n";
      }
    }
  EXPECT_EQ(counted, expected) << table;
}

// What the table must not grow beyond, whatever it says.
TEST(SystemCalls, OfAnOpeningAreThreeForEachFile) {
  const std::map<std::string, int> counts = expectedCounts();
  const auto perProfile = [&](const std::string& layout) {
    return (counts.at("initialize " + layout + " 100") - counts.at("initialize " + layout + " 1")) /
           99.0;
  };
  for (const char* layout : {"2-2", "1-2"})
    EXPECT_EQ(perProfile(layout), 6) << layout;
  for (const char* layout : {"2-1", "1-1"})
    EXPECT_EQ(perProfile(layout), 3) << layout;
}

} // namespace
} // namespace tervix::testing
