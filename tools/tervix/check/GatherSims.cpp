#include <algorithm>
#include <unordered_set>

#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/check/Gathering.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

// Of ProfileFile and ProjectFile the name alone counts, whatever folder is written.
constexpr std::array<SimKey, 3> kPathKeys = {SimKey::kNetlistFile, SimKey::kDataFile,
                                             SimKey::kOutFile};

void readKeys(std::optional<std::string_view> text, SimFile& sim) {
  sim.isRead = text.has_value();
  if (!text)
    return;
  forEachKey(*text, [&](SimKey key, std::size_t line, std::string_view value) {
    SimKeyFacts& facts = sim.keys.at(static_cast<std::size_t>(key));
    facts.line = line;
    ++facts.count;
    if (value.empty())
      return;
    facts.value = value;
    facts.valueLine = line;
  });
}

// Only the keys that may lead astray: a full path, or one that leaves the file's folder.
void takeReferences(ProjectFacts& facts, const SimFile& sim) {
  for (const SimKey key : kPathKeys) {
    const SimKeyFacts& found = sim.key(key);
    if (!isFullText(found.value) && found.value.rfind("..", 0) != 0)
      continue;
    facts.refer(Role::kSimKey, {sim.path, found.valueLine}, found.value);
  }
}

bool isOfThisProject(const ProjectFacts& facts, const SimFile& sim) {
  const std::string& project = sim.key(SimKey::kProjectFile).value;
  if (!project.empty())
    return isSameName(nameOf(project), nameOf(facts.layout.projectFile));
  const std::string prefix = facts.layout.design + "-";
  return isSameName(nameOf(sim.path).substr(0, prefix.size()), prefix);
}

void addSim(ProjectFacts& facts, std::string path, const Place& registered, bool isThere) {
  SimFile& sim = facts.sims.emplace_back();
  sim.path = std::move(path);
  sim.registered = registered;
  sim.isThere = isThere;
}

void findSims(ProjectFacts& facts) {
  std::unordered_set<std::string_view> registered;
  facts.sims.reserve(facts.references.size());
  for (const Reference& reference : facts.references)
    if (reference.role == Role::kProfile) {
      addSim(facts, reference.target, reference.place, reference.type == EntryType::kFile);
      facts.sims.back().isRepeated = !registered.insert(reference.target).second;
    }
  for (const ListedFolder& folder : facts.simFolders)
    for (const FolderIndex::Entry& entry : folder.entries())
      if (entry.type == EntryType::kFile && endsWith(entry.name, ".sim") &&
          entry.name.find('\\') == std::string::npos) // a separator: no path leads to such a name
        if (std::string path = folder.path + "/" + entry.name; registered.count(path) == 0)
          addSim(facts, std::move(path), {}, true);
}

void readSims(ProjectFacts& facts) {
  std::vector<const std::string*> paths;
  for (const SimFile& sim : facts.sims)
    paths.push_back(&sim.path);
  facts.index.eachText(paths, [&](std::size_t i, std::optional<std::string_view> text) {
    readKeys(text, facts.sims[i]);
  });
}

// In a folder that projects share, those of the others are none of ours.
void removeForeign(ProjectFacts& facts) {
  const auto isForeign = [&](const SimFile& sim) {
    return !sim.isRegistered() && !isOfThisProject(facts, sim);
  };
  facts.sims.erase(std::remove_if(facts.sims.begin(), facts.sims.end(), isForeign),
                   facts.sims.end());
}

} // namespace

void gatherSims(ProjectFacts& facts, Progress& progress) {
  findSims(facts);
  progress.tell("reading profiles", facts.sims.size());
  readSims(facts);
  if (facts.isFrontEnd2() && !facts.layout.isSimulation())
    removeForeign(facts);
  for (const SimFile& sim : facts.sims)
    takeReferences(facts, sim);
}

} // namespace tervix::tool
