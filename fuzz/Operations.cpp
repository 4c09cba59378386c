// Sequences of operations on a project, beside a plain model of its tree and the rule that no file
// of the user is ever lost.

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <optional>
#include <sstream>
#include <vector>

#include "foundation/Text.h"
#include "fuzz/support/Workplace.h"
#include "tests/project/OpenedProject.h"

namespace {

using namespace tervix::testing;
using tervix::fuzz::Files;
using tervix::fuzz::filesIn;
using tervix::fuzz::require;

const char* const kNames[] = {"tran", "TRAN", "ac", "dc", "TOP", "BIAS", "bias", "new one"};
const char* const kRunFiles[] = {".dat",     ".out", ".sim",        ".mrk",
                                 ".sim.cir", ".prb", "_profile.inc"};

struct Schematic {
  std::string name;
  std::vector<std::string> profiles;
};

template <class Container, class Name>
auto findNamed(Container& container, const std::string& name, Name nameOf) {
  return std::find_if(container.begin(), container.end(), [&](const auto& element) {
    return tervix::equalsIgnoringCase(nameOf(element), name);
  });
}

class ProjectBesideModel {
public:
  ProjectBesideModel(FuzzedDataProvider& input, const TemporaryFolder& folder)
      : input_(input), folder_(folder), layout_(input.PickValueInArray(kAllLayouts)) {
    ProjectPlan plan;
    plan.schematics = {"TOP", "BIAS"};
    plan.profiles = {{"TOP", "tran"}, {"BIAS", "dc"}};
    file_ = writeProject(folder_, layout_, plan);
    folder_.file("outside/kept", "somebody's");
    project_.emplace(file_, frontEndOf(layout_));
    require((*project_)->initialize() == 0, "the project opens");
    takeModel();
  }

  void step() {
    const auto steps = {&ProjectBesideModel::addProfile,      &ProjectBesideModel::deleteProfile,
                        &ProjectBesideModel::renameProfile,   &ProjectBesideModel::renameProfile,
                        &ProjectBesideModel::addSchematic,    &ProjectBesideModel::deleteSchematic,
                        &ProjectBesideModel::renameSchematic, &ProjectBesideModel::archive,
                        &ProjectBesideModel::renameProject,   &ProjectBesideModel::renameDesign,
                        &ProjectBesideModel::editList,        &ProjectBesideModel::writeRunFile,
                        &ProjectBesideModel::reopen};
    const auto chosen = input_.ConsumeIntegralInRange<std::size_t>(0, steps.size() - 1);
    const Files before = filesIn(folder_.path());
    (this->**(steps.begin() + chosen))();
    compareTree();
    compareLookUps();
    compareFiles(before, filesIn(folder_.path()));
  }

private:
  CTervixProject& project() { return **project_; }
  std::string name() { return input_.PickValueInArray(kNames); }
  auto schematicOf(const std::string& name) {
    return findNamed(model_, name, [](const Schematic& schematic) { return schematic.name; });
  }
  static auto profileOf(Schematic& schematic, const std::string& name) {
    return findNamed(schematic.profiles, name, [](const std::string& profile) { return profile; });
  }

  void takeModel() {
    model_.clear();
    CTervixNode* node = nullptr;
    for (project().getTopSchematic(node); node != nullptr; project().getNextSchematic(node)) {
      Schematic schematic{nameOfNode(node), {}};
      CTervixNode* profile = nullptr;
      auto& listed = static_cast<CTervixSchematic&>(*node);
      for (listed.getTopProfile(profile); profile != nullptr; listed.getNextProfile(profile))
        schematic.profiles.push_back(nameOfNode(profile));
      model_.push_back(schematic);
    }
  }

  void addProfile() {
    const std::string schematic = name();
    const std::string profile = name();
    const CTervixProfile* const added = tervix::testing::addProfile(project(), schematic, profile);
    require(added != nullptr, "a profile is found or made");
    if (schematicOf(schematic) == model_.end())
      model_.push_back({schematic, {}});
    const auto holder = schematicOf(schematic);
    if (profileOf(*holder, profile) == holder->profiles.end())
      holder->profiles.push_back(profile);
  }

  void deleteProfile() {
    const auto holder = schematicOf(name());
    std::string profile = name();
    if (holder == model_.end())
      return;
    const auto listed = profileOf(*holder, profile);
    const bool isThere = listed != holder->profiles.end();
    require(schematicIn(project(), holder->name)->deleteProfile(profile) == (isThere ? 0U : 1U),
            "1 when there is no such profile");
    if (isThere)
      holder->profiles.erase(listed);
  }

  void renameProfile() {
    const auto holder = schematicOf(name());
    const std::string profile = name();
    std::string newName = name();
    if (holder == model_.end())
      return;
    const auto listed = profileOf(*holder, profile);
    if (listed == holder->profiles.end())
      return;
    checkStatus(profileIn(project(), holder->name, profile)->rename(newName));
    *listed = newName;
  }

  void addSchematic() {
    const std::string added = name();
    require(tervix::testing::addSchematic(project(), added) != nullptr, "a schematic is made");
    if (schematicOf(added) == model_.end())
      model_.push_back({added, {}});
  }

  void deleteSchematic() {
    std::string deleted = name();
    const auto listed = schematicOf(deleted);
    require(project().deleteSchematic(deleted) == (listed == model_.end() ? 1U : 0U),
            "1 when there is no such schematic");
    if (listed != model_.end())
      model_.erase(listed);
  }

  void renameSchematic() {
    const auto listed = schematicOf(name());
    std::string newName = name();
    if (listed == model_.end())
      return;
    std::string formerName = listed->name;
    project().setChangedName(formerName, newName, RENAME_TYPE_SCHEMATIC);
    checkStatus(schematicIn(project(), formerName)->rename(newName));
    listed->name = newName;
    project().setChangedName(formerName, newName, RENAME_TYPE_NONE);
  }

  void archive() { checkStatus(project().archiveProject(arg(folder_.path("archive/" + name())))); }

  void renameProject() {
    checkStatus(project().rename(file_, arg(file_.substr(0, file_.size() - 4) + name() + ".tvp")));
  }

  void renameDesign() {
    std::string newName = name();
    checkStatus(project().renameDesign(newName, arg(file_.substr(0, file_.size() - 4) + ".dsn")));
  }

  void editList() {
    const auto holder = schematicOf(name());
    const std::string profile = name();
    if (holder == model_.end() || profileOf(*holder, profile) == holder->profiles.end())
      return;
    CTervixProfile* const edited = profileIn(project(), holder->name, profile);
    std::string entry = name() + ".lib";
    edited->addProfileLevelFile(entry, VARIANTFILE_TYPE_LIBRARY, true, input_.ConsumeBool());
    checkStatus(edited->writeProfileLevelVariants());
  }

  // What a front end, a run or somebody else leaves, each time with content of its own.
  void writeRunFile() {
    const auto holder = schematicOf(name());
    const std::string profile = name();
    if (holder == model_.end() || profileOf(*holder, profile) == holder->profiles.end())
      return;
    const std::string sim =
        textOf(*profileIn(project(), holder->name, profile), &CTervixNode::getPath);
    const std::string stem = sim.substr(0, sim.size() - 4);
    const std::string ending = input_.PickValueInArray(kRunFiles);
    const bool isBeside = !isSimulation(layout_) || ending == ".sim";
    const std::string file = isBeside ? stem + ending : stem + "/" + name() + ending;
    if (!isFile(file))
      writeFile(file, "* " + std::to_string(++written_) + "\n");
  }

  void reopen() {
    project_.emplace(file_, frontEndOf(layout_));
    require((*project_)->initialize() == 0, "the project opens again");
    takeModel();
  }

  static void checkStatus(unsigned long status) {
    require(status <= 1 || (status >= 10102 && status <= 10124), "a status is 0, 1 or a code");
  }

  void compareTree() {
    const std::vector<Schematic> expected = model_;
    takeModel();
    require(model_.size() == expected.size(), "the tree has the schematics of the model");
    for (std::size_t i = 0; i < expected.size(); ++i)
      require(model_[i].name == expected[i].name && model_[i].profiles == expected[i].profiles,
              "the tree is that of the model", model_[i].name + " for " + expected[i].name);
  }

  void compareLookUps() {
    const std::string schematic = name();
    const std::string profile = name();
    const auto holder = schematicOf(schematic);
    const bool isThere =
        holder != model_.end() && profileOf(*holder, profile) != holder->profiles.end();
    require((profileIn(project(), schematic, profile) != nullptr) == isThere,
            "a profile is found when it is there", schematic + "/" + profile);
    std::string parent;
    project().getParentNameForProfile(parent, arg(std::string(profile)));
    const auto first = std::find_if(model_.begin(), model_.end(), [&](Schematic& candidate) {
      return profileOf(candidate, profile) != candidate.profiles.end();
    });
    require(parent == (first == model_.end() ? "" : first->name),
            "the schematic of a profile is the first that holds one of that name", profile);
  }

  // Include lists are saved by the library. Anything else is still there, under its former name,
  // but for the two lines that a rename writes anew.
  static void compareFiles(const Files& before, const Files& after) {
    for (const auto& [name, content] : before) {
      if (tervix::endsWithIgnoringCase(name, "_profile.inc"))
        continue;
      const auto left = after.find(name);
      require(left != after.end() && withoutNames(left->second) == withoutNames(content),
              "no file is lost or changed", name);
    }
  }
  static std::string withoutNames(const std::string& content) {
    std::istringstream lines(content);
    std::string text;
    for (std::string line; std::getline(lines, line);)
      if (line.rfind("NetlistFile", 0) != 0 && line.rfind("ProjectFile", 0) != 0)
        text += line + "\n";
    return text;
  }

  FuzzedDataProvider& input_;
  const TemporaryFolder& folder_;
  Layout layout_;
  std::string file_;
  std::optional<OpenedProject> project_;
  std::vector<Schematic> model_;
  int written_ = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  ProjectBesideModel pair(input, tervix::fuzz::emptyWorkplace());
  for (int steps = 0; steps < 30 && input.remaining_bytes() > 0; ++steps)
    pair.step();
  return 0;
}
