#include "tools/tervix/check/ProjectFacts.h"

#include <algorithm>

#include "tools/tervix/changes/Names.h"
#include "tools/tervix/check/Gathering.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

// The folder below the files' folder in which a simulation project keeps a schematic's profiles.
std::string schematicOfPlace(const ProjectFacts& facts, const std::string& sim) {
  const std::string way = seenIn(facts.layout.filesFolder(), sim);
  const std::size_t end = way.find('/');
  return way == sim || end == std::string::npos ? std::string() : way.substr(0, end);
}

} // namespace

std::string keyOfNames(const std::string& schematic, const std::string& name) {
  std::string key;
  key.reserve(schematic.size() + 1 + name.size());
  key.append(schematic).append("\n").append(name);
  return lowered(key);
}

Reference& ProjectFacts::refer(Role role, Place place, std::string text) {
  std::string target = placeAt(folderOf(place.file), text);
  const EntryType type = index.typeOf(target);
  return references.emplace_back(
      Reference{role, std::move(place), std::move(text), std::move(target), type});
}

void ProjectFacts::addSchematic(const std::string& name, const Place& place) {
  schematics.push_back({name, place});
  schematicNames.emplace(lowered(name), name);
}

bool ProjectFacts::hasSchematic(const std::string& name) const {
  return schematicNames.count(lowered(name)) != 0;
}

const LoadedProfile* ProjectFacts::loadedAs(const std::string& key) const {
  const auto found = loadedByNames.find(key);
  return found == loadedByNames.end() ? nullptr : &loaded[found->second];
}

std::string reasonAgainstProfile(const ProjectFacts& facts, const SimFile& sim) {
  const auto lacks = [&](SimKey key) { return sim.key(key).count == 0; };
  const auto isEmpty = [&](SimKey key) { return sim.key(key).value.empty(); };
  const auto named = [](SimKey key) { return std::string(wordOf(key)); };
  for (const SimKey key : {SimKey::kProfileName, SimKey::kRootSchematics})
    if (lacks(key))
      return "it has no line with the key " + named(key);
  if (facts.layout.isSimulation())
    return {};
  for (const SimKey key : {SimKey::kProfileName, SimKey::kRootSchematics})
    if (isEmpty(key))
      return named(key) + " has no value";
  if (facts.isFrontEnd2())
    return {};
  for (const SimKey key : {SimKey::kDesignFile, SimKey::kProjectFile})
    if (isEmpty(key))
      return named(key) + " has no value";
  if (!isSameName(cutStemOf(nameOf(sim.key(SimKey::kProfileFile).value)),
                  sim.key(SimKey::kProfileName).value))
    return "ProfileFile does not name the file of the profile";
  return {};
}

ProfileNames namesOf(const ProjectFacts& facts, const SimFile& sim) {
  ProfileNames names{sim.key(SimKey::kRootSchematics).value, sim.key(SimKey::kProfileName).value};
  if (!facts.layout.isSimulation())
    return names;
  if (names.name.empty())
    names.name = stemOf(nameOf(sim.path));
  if (names.schematic.empty())
    names.schematic = facts.isFrontEnd2() ? schematicOfPlace(facts, sim.path) : facts.layout.design;
  return names;
}

ProjectFacts gatherFacts(CTervixProject& project, ReadAhead& ahead, Progress& progress) {
  const ProjectLayout layout = layoutOf(project);
  ProjectFacts facts(layout.hasDesignFile() ? layout.folder : folderOf(layout.folder));
  facts.layout = layout;
  gatherTree(facts, project);
  const auto texts = formats::readPlacedTexts(layout.projectFile);
  facts.index.take(ahead.take()); // before the first question about a folder
  gatherLists(facts, texts.value_or(std::vector<formats::PlacedText>()));
  gatherFolders(facts, progress);
  gatherSims(facts, progress);
  gatherIncludeLists(facts, progress);
  gatherNetlists(facts, progress);
  return facts;
}

} // namespace tervix::tool
