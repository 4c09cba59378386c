#include <algorithm>
#include <unordered_set>

#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/check/Gathering.h"
#include "tools/tervix/check/InParallel.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

// Of ProfileFile and ProjectFile the name alone counts, whatever folder is written.
constexpr std::array<SimKey, 3> kPathKeys = {SimKey::kNetlistFile, SimKey::kDataFile,
                                             SimKey::kOutFile};

void readKeys(const FolderIndex& index, SimFile& sim) {
  const std::optional<std::string> text = sim.isThere ? index.text(sim.path) : std::nullopt;
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

class SimGathering {
public:
  explicit SimGathering(ProjectFacts& facts) : facts_(facts) {}

  void takeRegistered() {
    for (const Reference& reference : facts_.references)
      if (reference.role == Role::kProfile)
        add(reference.target, reference.place, reference.type);
  }

  void takeFound(const std::string& folder) {
    for (const FolderIndex::Entry& entry : facts_.index.folder(folder).entries)
      if (entry.type == EntryType::kFile && endsWith(entry.name, ".sim"))
        if (std::string path = folder + "/" + entry.name; seen_.count(path) == 0)
          add(path, {}, entry.type);
  }

private:
  void add(const std::string& path, const Place& place, EntryType type) {
    seen_.insert(path);
    SimFile sim;
    sim.path = path;
    sim.registered = place;
    sim.isThere = type == EntryType::kFile;
    facts_.sims.push_back(std::move(sim));
  }

  ProjectFacts& facts_;
  std::unordered_set<std::string> seen_;
};

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
  SimGathering gathering(facts);
  gathering.takeRegistered();
  for (const std::string& folder : facts.simFolders)
    gathering.takeFound(folder);
  progress.tell("reading profiles", facts.sims.size());
  inParallel(facts.sims.size(), [&](std::size_t i) { readKeys(facts.index, facts.sims[i]); });
  if (facts.isFrontEnd2() && !facts.layout.isSimulation())
    removeForeign(facts);
  for (const SimFile& sim : facts.sims)
    takeReferences(facts, sim);
}

} // namespace tervix::tool
