#pragma once

#include <filesystem>
#include <map>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "tests/project/LayoutTest.h"
#include "tests/support/System.h"

namespace tervix::testing {

// Two schematics, the first with two profiles. In the layouts of front end 1 the one schematic,
// named like the project, has all three.
inline ProjectPlan twoSchematics() {
  ProjectPlan plan;
  plan.schematics = {"TOP", "SUB"};
  plan.profiles = {{"TOP", "tran"}, {"TOP", "ac"}, {"SUB", "dc"}};
  return plan;
}

// A project on disk, opened, with a last error recorded that no test is about.
class SampleProject {
public:
  explicit SampleProject(Layout layout, ProjectPlan plan = ProjectPlan())
      : layout_(layout), plan_(std::move(plan)), file_(writeProject(folder_, layout_, plan_)),
        opened_(file_, frontEndOf(layout)) {
    EXPECT_EQ(opened_->initialize(), 0u);
    recordOtherError();
  }

  CTervixProject& operator*() { return *opened_; }
  CTervixProject* operator->() { return &*opened_; }

  const TemporaryFolder& disk() const { return folder_; }
  std::string path(const std::string& name) const { return folder_.path(name); }
  // Contents are taken as text: what the library rewrites has the line ends of the system.
  std::map<std::string, std::string> snapshot() const {
    auto files = snapshotOf(folder_.path());
    for (auto& [name, content] : files)
      content = asText(content);
    return files;
  }

  const std::string& file() const { return file_; }
  std::string folder() const { return file_.substr(0, file_.rfind('/')); }
  std::string simPath(std::size_t profile = 0) const {
    return folder_.path(simPathIn(layout_, plan_, plan_.profiles.at(profile)));
  }
  // The schematic that holds a profile of the plan.
  std::string schematicOf(std::size_t profile = 0) const {
    return isDesignFrontEnd() ? plan_.profiles.at(profile).schematic : plan_.name;
  }
  std::string nameOf(std::size_t profile = 0) const { return plan_.profiles.at(profile).name; }
  std::string longNameOf(std::size_t profile = 0) const {
    return plan_.name + "-" + schematicOf(profile) + "-" + nameOf(profile);
  }
  // The folder that a profile has for itself, or shares.
  std::string folderOf(std::size_t profile = 0) const {
    const std::string sim = simPath(profile);
    return isSimulationProject() ? sim.substr(0, sim.size() - 4) : sim.substr(0, sim.rfind('/'));
  }
  // The folder of the schematic that holds a profile.
  std::string schematicFolder(std::size_t profile = 0) const {
    return isDesignFrontEnd() && isSimulationProject()
               ? folder() + "/amp-TervixFiles/" + schematicOf(profile)
               : folder();
  }
  CTervixProfile& profile(std::size_t profile = 0) {
    return *profileIn(**this, schematicOf(profile), nameOf(profile));
  }

  bool isDesignFrontEnd() const { return frontEndOf(layout_) == FRONTEND_ID_DESIGN_FILE; }
  bool isSimulationProject() const { return isSimulation(layout_); }

  void setChangedName(std::string former, std::string changed, RENAME_TYPE kind) {
    EXPECT_EQ(opened_->setChangedName(former, changed, kind), 0u);
  }

private:
  TemporaryFolder folder_;
  Layout layout_;
  ProjectPlan plan_;
  std::string file_;
  OpenedProject opened_;
};

class InEachLayout : public ::testing::TestWithParam<Layout> {};

// What an operation with one output string answers.
struct Answer {
  unsigned long status = 0;
  std::string text;

  bool operator==(const Answer& other) const {
    return status == other.status && text == other.text;
  }
};
inline std::ostream& operator<<(std::ostream& stream, const Answer& answer) {
  return stream << answer.status << " \"" << answer.text << '"';
}

// The text that an output holds before the call, so that leaving it shows.
constexpr const char* kBefore = "before";

// call takes the output string.
template <class Call> Answer answerOf(Call call) {
  Answer answer{0, kBefore};
  answer.status = call(answer.text);
  return answer;
}

// Where the tree says that everything is, one line a node. Moves the cursors.
inline Lines placesOf(CTervixProject& project) {
  Lines lines;
  const auto add = [&](const CTervixNode& node) {
    lines.push_back(nameOfNode(&node) + " " + textOf(node, &CTervixNode::getPath) + " " +
                    textOf(node, &CTervixNode::getFolderPath));
  };
  add(project);
  CTervixNode* schematic = nullptr;
  for (project.getTopSchematic(schematic); schematic != nullptr;
       project.getNextSchematic(schematic)) {
    add(*schematic);
    auto& holder = static_cast<CTervixSchematic&>(*schematic);
    CTervixNode* profile = nullptr;
    for (holder.getTopProfile(profile); profile != nullptr; holder.getNextProfile(profile))
      add(*profile);
  }
  return lines;
}

// A disk's files as SampleProject::snapshot lists them, to be changed into what is expected.
class Files : public std::map<std::string, std::string> {
public:
  explicit Files(const SampleProject& project)
      : std::map<std::string, std::string>(project.snapshot()) {}

  // Every entry whose path begins with from appears under to as well.
  void copy(const std::string& from, const std::string& to) {
    const std::map<std::string, std::string> before = *this;
    for (const auto& [name, content] : before)
      if (name.compare(0, from.size(), from) == 0)
        (*this)[to + name.substr(from.size())] = content;
  }
  // The two keys of a ".sim" file as the library rewrites them.
  void rewriteSim(const std::string& name, const std::string& longName,
                  const std::string& project) {
    replaceLine(at(name), "NetlistFile", "NetlistFile= \"" + longName + ".sim.cir\" \n");
    replaceLine(at(name), "ProjectFile", "ProjectFile= \"" + project + ".tvp\" \n");
  }

private:
  static void replaceLine(std::string& text, const std::string& key, const std::string& line) {
    const std::size_t begin = text.find(key);
    ASSERT_NE(begin, std::string::npos);
    text.replace(begin, text.find('\n', begin) + 1 - begin, line);
  }
};

inline std::string withBackslashes(std::string path) {
  for (char& c : path)
    if (c == '/')
      c = '\\';
  return path;
}

inline std::string inUpperCase(std::string text) {
  for (char& c : text)
    if (c >= 'a' && c <= 'z')
      c = static_cast<char>(c - 'a' + 'A');
  return text;
}

} // namespace tervix::testing
