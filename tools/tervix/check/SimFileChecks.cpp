#include <filesystem>
#include <set>
#include <unordered_map>
#include <utility>

#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/check/Checkers.h"
#include "tools/tervix/check/Paths.h"

// ".sim" files: what they say, where they lie, and whether the project knows them.

namespace tervix::tool {
namespace {

class SimChecks {
public:
  SimChecks(ProjectFacts& facts, Findings& findings) : facts_(facts), findings_(findings) {}

  void check(const SimFile& sim) {
    if (sim.isRepeated)
      findings_.add(Code::kListedTwice, sim.registered,
                    findings_.named(sim.path) + " is registered already");
    else if (!sim.isThere)
      return; // told with all files that are named
    else if (!sim.isRead)
      findings_.add(Code::kUnreadableFile, {sim.path}, "the file cannot be read");
    else if (facts_.knowsDesign())
      checkPlaced(sim);
  }

private:
  // What keeps a file from being the profile that its names say; empty when nothing does.
  struct Obstacle {
    Code code;
    std::string text;
  };

  struct Named {
    ProfileNames names;
    std::string key;
    const LoadedProfile* loaded; // null when the library has none of these names
  };

  Named namedBy(const SimFile& sim) const {
    Named named{namesOf(facts_, sim), {}, nullptr};
    named.key = keyOfNames(named.names.schematic, named.names.name);
    named.loaded = facts_.loadedAs(named.key);
    return named;
  }

  Obstacle obstacleTo(const SimFile& sim, const Named& named) {
    if (const std::string reason = reasonAgainstProfile(facts_, sim); !reason.empty())
      return {Code::kInvalidProfile, reason};
    const ProfileNames& names = named.names;
    if (names.schematic.empty())
      return {Code::kUnknownSchematic, "neither RootSchematics nor its place tells a schematic"};
    if (!facts_.hasSchematic(names.schematic))
      return {Code::kUnknownSchematic,
              "there is no schematic " + inQuotes(names.schematic) + " in the design"};
    if (const auto [first, isFirst] = profiles_.emplace(named.key, &sim.path); !isFirst)
      return {Code::kSameProfile,
              findings_.named(*first->second) + " is " + described(names) + " already"};
    const std::string composed = composedPlace(named);
    if (!isSamePlace(composed, sim.path))
      return {Code::kMisplacedProfile, "it is " + described(names) + ", which is looked for at " +
                                           findings_.named(composed)};
    return {Code::kInvalidProfile, ""};
  }

  static std::string described(const ProfileNames& names) {
    return "profile " + inQuotes(names.name) + " of schematic " + inQuotes(names.schematic);
  }

  std::string composedPlace(const Named& named) const {
    if (named.loaded != nullptr)
      return named.loaded->sim;
    // Under the schematic as the design spells it.
    const std::string& schematic = facts_.schematicNames.at(lowered(named.names.schematic));
    return facts_.layout.placesOf(schematic, named.names.name).sim;
  }

  // Where case is ignored the names may differ in it.
  static bool isSamePlace(const std::string& composed, const std::string& path) {
    std::error_code error;
    return composed == path ||
           (isSameName(composed, path) && std::filesystem::equivalent(composed, path, error));
  }

  void checkPlaced(const SimFile& sim) {
    const Named names = namedBy(sim);
    if (facts_.isFrontEnd2() && !sim.isRegistered())
      checkUnregistered(sim, names);
    else if (const Obstacle obstacle = obstacleTo(sim, names); !obstacle.text.empty())
      findings_.add(obstacle.code, {sim.path}, obstacle.text);
    else
      checkKeys(sim, names);
  }

  void checkUnregistered(const SimFile& sim, const Named& names) {
    const Obstacle obstacle = obstacleTo(sim, names);
    const std::string message = "the file is not registered in the project file";
    if (!obstacle.text.empty())
      return findings_.add(Code::kUnregisteredProfile, {sim.path}, message + "; " + obstacle.text);
    findings_.add(Code::kUnregisteredProfile, {sim.path}, message,
                  registrationOf(sim, names.names));
    checkKeys(sim, names);
  }

  Repair registrationOf(const SimFile& sim, const ProfileNames& names) {
    // A link is left alone: what it leads to may be somebody else's.
    if (!facts_.index.isDirectlyIn(facts_.layout.projectFile, facts_.layout.folder))
      return {};
    Repair repair;
    repair.action = Repair::Action::kRegisterProfile;
    repair.file = facts_.layout.projectFile;
    repair.newText = relativeText(sim.path, facts_.layout.folder, "./", true);
    repair.schematic = names.schematic;
    repair.profile = names.name;
    return repair;
  }

  void checkKeys(const SimFile& sim, const Named& names) {
    checkName(sim, SimKey::kProfileFile, nameOf(sim.path));
    checkName(sim, SimKey::kProjectFile, nameOf(facts_.layout.projectFile));
    checkName(sim, SimKey::kNetlistFile, nameOf(netlistOf(names)));
    for (std::size_t i = 0; i < sim.keys.size(); ++i)
      if (sim.keys.at(i).count > 1)
        findings_.add(Code::kRepeatedKey, {sim.path, sim.keys.at(i).line},
                      std::string(wordOf(static_cast<SimKey>(i))) + " stands here once more");
  }

  std::string netlistOf(const Named& named) const {
    const ProfileNames& names = named.names;
    return named.loaded != nullptr
               ? named.loaded->netlist
               : facts_.layout.filesOf(names.schematic, names.name)[PROFILE_FILE_CIR];
  }

  // What has no value leaves it to the place.
  void checkName(const SimFile& sim, SimKey key, const std::string& expected) {
    const SimKeyFacts& found = sim.key(key);
    if (!found.value.empty() && !isSameName(nameOf(found.value), expected))
      findings_.add(Code::kKeyDisagrees, {sim.path, found.valueLine},
                    std::string(wordOf(key)) + " is " + inQuotes(found.value) +
                        " where its place says " + inQuotes(expected));
  }

  ProjectFacts& facts_;
  Findings& findings_;
  std::unordered_map<std::string, const std::string*> profiles_; // their files, by their names
};

// Lists in which an entry once is enough; the profiles are told with their files. What one file
// names stands together.
void checkLists(const ProjectFacts& facts, Findings& findings) {
  std::set<std::pair<Role, std::string>> seen;
  const std::string* file = nullptr;
  for (const Reference& reference : facts.references) {
    if (file == nullptr || *file != reference.place.file)
      seen.clear();
    file = &reference.place.file;
    if (isVariant(reference.role) && !seen.emplace(reference.role, reference.target).second)
      findings.add(Code::kListedTwice, reference.place,
                   inQuotes(reference.text) + " is listed already");
  }
}

} // namespace

void checkSimFiles(ProjectFacts& facts, Findings& findings) {
  SimChecks checks(facts, findings);
  for (const SimFile& sim : facts.sims)
    checks.check(sim);
  checkLists(facts, findings);
}

} // namespace tervix::tool
