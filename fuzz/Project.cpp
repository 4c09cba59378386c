// A whole project, opened from a tree of files that the input decides: layout, files and contents.

#include <fuzzer/FuzzedDataProvider.h>

#include <filesystem>
#include <set>

#include "fuzz/support/Workplace.h"
#include "tests/project/OpenedProject.h"

namespace {

namespace fs = std::filesystem;
using namespace tervix::testing;
using tervix::fuzz::Files;
using tervix::fuzz::filesIn;
using tervix::fuzz::require;

const char* const kNames[] = {"tran", "TRAN", "ac", "TOP", "amp", "P", "a b", "x-y", "\xC3\xA4"};
// Entries that lead to another place, or to none.
const char* const kPaths[] = {"./P/amp.dsn",
                              "../outside/x.sim",
                              "amp-TervixFiles/TOP/tran.sim",
                              "..",
                              "amp-TOP-tran.sim",
                              "profiles/tran.sim",
                              "../../outside/dir",
                              "./",
                              "amp-TervixFiles"};

// A project on disk as the tests write it, with changes that a fuzzer likes.
class Tree {
public:
  Tree(FuzzedDataProvider& input, const TemporaryFolder& folder)
      : input_(input), folder_(folder), layout_(input.PickValueInArray(kAllLayouts)) {
    plan_.name = name();
    plan_.schematics = {name(), name()};
    plan_.root = name();
    plan_.profiles = {{plan_.schematics[0], name()}, {plan_.root, name()}};
    plan_.active = name() + "-" + name();
    projectFile_ = writeProject(folder_, layout_, plan_);
    folder_.file("outside/x.sim", simText("x", "x.sim", "", "", "", "x.dat", "x.out"));
    folder_.file("outside/x/x_profile.inc", "* somebody's\n");
    for (int changes = 0; changes < 8 && input_.remaining_bytes() > 0; ++changes)
      change();
  }

  // Any of the files from which a project can be opened.
  std::string opened() {
    switch (input_.ConsumeIntegralInRange(0, 3)) {
    case 0:
      return simPath();
    case 1:
      return projectFile_.substr(0, projectFile_.size() - 4) + "-TOP.aap";
    default:
      return projectFile_;
    }
  }
  int frontEnd(const std::string& file) {
    const bool isRunFile = file.substr(file.size() - 4) != ".tvp";
    return isRunFile              ? 0
           : input_.ConsumeBool() ? frontEndOf(layout_)
                                  : input_.ConsumeIntegralInRange(0, 3);
  }

private:
  std::string name() { return input_.PickValueInArray(kNames); }
  std::string simPath() const { return folder_.path(simPathIn(layout_, plan_, plan_.profiles[0])); }

  // One of the files there are, by its number in the order of their names.
  std::string someFile() {
    std::set<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.path()))
      if (!entry.is_directory())
        files.insert(entry.path().string());
    if (files.empty())
      return projectFile_;
    const auto number = input_.ConsumeIntegralInRange<std::size_t>(0, files.size() - 1);
    return *std::next(files.begin(), static_cast<std::ptrdiff_t>(number));
  }

  void change() {
    const std::string file = someFile();
    std::error_code ignored;
    switch (input_.ConsumeIntegralInRange(0, 5)) {
    case 0: // a piece of it is other text
      mend(file);
      break;
    case 1: // it is something else altogether
      overwrite(file, input_.ConsumeRandomLengthString(300));
      break;
    case 2:
      fs::remove(file, ignored);
      break;
    case 3:
      fs::remove(file, ignored);
      fs::create_directory(file, ignored);
      break;
    case 4:
      fs::remove(file, ignored);
      fs::create_symlink(input_.PickValueInArray(kPaths), file, ignored);
      break;
    default:
      nameAnother(file);
    }
  }

  static void overwrite(const std::string& file, const std::string& content) {
    if (fs::is_regular_file(fs::symlink_status(file)))
      writeFile(file, content);
  }
  void mend(const std::string& file) {
    if (!fs::is_regular_file(fs::symlink_status(file)))
      return;
    std::string content = contentOf(file);
    const auto at = input_.ConsumeIntegralInRange<std::size_t>(0, content.size());
    const auto length = input_.ConsumeIntegralInRange<std::size_t>(0, 20);
    overwrite(file, content.replace(at, length, input_.ConsumeRandomLengthString(30)));
  }
  // What stands between two quotes becomes the name of another place.
  void nameAnother(const std::string& file) {
    if (!fs::is_regular_file(fs::symlink_status(file)))
      return;
    std::string content = contentOf(file);
    std::size_t begin = content.find('"', input_.ConsumeIntegralInRange<std::size_t>(0, 200));
    if (begin == std::string::npos)
      return;
    const std::size_t end = std::min(content.find('"', ++begin), content.size());
    overwrite(file, content.replace(begin, end - begin, input_.PickValueInArray(kPaths)));
  }

  FuzzedDataProvider& input_;
  const TemporaryFolder& folder_;
  Layout layout_;
  ProjectPlan plan_;
  std::string projectFile_;
};

void checkProfile(CTervixProject& project, CTervixProfile& profile, const std::string& schematic) {
  const std::string name = nameOfNode(&profile);
  require(!name.empty(), "a profile has a name");
  require(profileIn(project, schematic, name) != nullptr, "a profile is found by its names", name);
  bool exists = false;
  CTervixNode* found = nullptr;
  std::string path = textOf(profile, &CTervixNode::getPath);
  require(project.simProfileExists(exists, found, path) == 0, "simProfileExists gives 0");
  for (int type = PROFILE_FILE_CSD; type <= PROFILE_FILE_MIF; ++type) {
    std::string file;
    const auto status = profile.getProfileBasedFile(file, static_cast<PROFILEFILE_TYPE>(type));
    require(status <= 1 || (status >= 10102 && status <= 10124), "a status is 0, 1 or a code");
  }
  std::string key;
  profile.getMarkerKey(key);
  require(project.markerKeyExists(exists, key) == 0, "markerKeyExists gives 0");
  require(exists, "a profile is found by its marker key", key);
}

void checkTree(CTervixProject& project) {
  int count = -1;
  require(project.numberOfSchematics(count) == 0, "schematics are counted");
  const Lines tree = treeOf(project);
  std::set<std::string> names;
  CTervixNode* node = nullptr;
  for (project.getTopSchematic(node); node != nullptr; project.getNextSchematic(node), --count) {
    std::string name = nameOfNode(node);
    CTervixNode* found = nullptr;
    require(project.findSchematic(found, name) == 0, "a schematic is found by its name", name);
    auto& schematic = static_cast<CTervixSchematic&>(*node);
    CTervixNode* profile = nullptr;
    for (schematic.getTopProfile(profile); profile != nullptr; schematic.getNextProfile(profile))
      checkProfile(project, static_cast<CTervixProfile&>(*profile), name);
  }
  require(count == 0, "as many schematics as are counted");
  require(treeOf(project) == tree, "looking changes nothing");
}

// The include lists that destroying the profiles saves.
std::set<std::string> includeListsOf(CTervixProject& project) {
  std::set<std::string> lists;
  CTervixNode* node = nullptr;
  for (project.getTopSchematic(node); node != nullptr; project.getNextSchematic(node)) {
    auto& schematic = static_cast<CTervixSchematic&>(*node);
    CTervixNode* profile = nullptr;
    for (schematic.getTopProfile(profile); profile != nullptr; schematic.getNextProfile(profile)) {
      std::error_code ignored;
      const std::string list =
          textOf(static_cast<CTervixProfile&>(*profile), &CTervixProfile::getVariantFilePath);
      lists.insert(fs::weakly_canonical(list, ignored).string());
    }
  }
  return lists;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const TemporaryFolder& folder = tervix::fuzz::emptyWorkplace();
  Tree tree(input, folder);
  const std::string file = tree.opened();
  const int frontEnd = tree.frontEnd(file);
  const Files before = filesIn(folder.path());
  std::set<std::string> saved;
  {
    OpenedProject project(file, frontEnd);
    const unsigned long status = project->initialize();
    require(status <= 1 || status == 10103 || status == 10109 || status == 10110 || status == 10122,
            "initialize gives what it may", std::to_string(status));
    checkTree(*project);
    require(filesIn(folder.path()) == before, "opening and looking writes nothing", file);
    saved = includeListsOf(*project);
  }
  const Files after = filesIn(folder.path());
  for (const auto& [name, content] : before)
    if (saved.count(folder.path() + name) == 0) {
      const auto left = after.find(name);
      require(left != after.end() && left->second == content,
              "closing saves nothing but the profiles' include lists", name);
    }
  return 0;
}
