#include <algorithm>
#include <map>
#include <set>

#include "model/FileSuffixes.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/check/Checkers.h"
#include "tools/tervix/check/Paths.h"

// Files that bear the name of a profile that is no more, as a rename leaves them.

namespace tervix::tool {
namespace {

// Files by the stem in their name, in lower case.
using FilesByStem = std::map<std::string, std::vector<std::string>>;

bool isNamedAfter(std::string_view file, std::string_view stem) {
  const std::string_view ending = file.substr(std::min(stem.size(), file.size()));
  return isSameName(file.substr(0, stem.size()), stem) && !ending.empty() &&
         (ending.front() == '.' || isSameName(ending, kIncludeListEnding));
}

// What stands before the ending of a profile's file; empty when the name has none.
std::string profileStemOf(const std::string& key) {
  if (endsWith(key, kIncludeListEnding))
    return key.substr(0, key.size() - kIncludeListEnding.size());
  const std::string stem = cutStemOf(key);
  std::string suffix = key.substr(std::min(stem.size() + 1, key.size()));
  if (suffix.rfind("sim.", 0) == 0)
    suffix.erase(0, 4);
  const auto& suffixes = kProfileFileSuffixes;
  return std::find(suffixes.begin(), suffixes.end(), suffix) != suffixes.end() ? stem : "";
}

void tell(Findings& findings, const std::string& folder, const std::vector<std::string>& files) {
  std::string message = "no profile has the name of this file";
  if (files.size() > 1)
    message += ", nor of " + std::to_string(files.size() - 1) + " more beside it";
  findings.add(Code::kFormerName, {folder + "/" + files.front()}, message);
}

// The stems that a profile gives its files: its own, and those of the files that it names.
std::set<std::string> stemsOf(const SimFile& sim) {
  std::set<std::string> stems = {cutStemOf(lowered(nameOf(sim.path)))};
  for (const SimKey key : {SimKey::kDataFile, SimKey::kOutFile, SimKey::kNetlistFile})
    stems.insert(cutStemOf(lowered(nameOf(sim.key(key).value))));
  return stems;
}

void checkProfileFolder(ProjectFacts& facts, Findings& findings, const SimFile& sim) {
  const std::string folder = sim.path.substr(0, sim.path.size() - 4);
  if (facts.index.typeOf(folder) != EntryType::kFolder)
    return;
  const std::string own = nameOf(folder);
  FilesByStem former;
  for (const FolderIndex::Entry& entry : facts.index.folder(folder).entries)
    if (entry.type == EntryType::kFile && !isNamedAfter(entry.name, own))
      if (const std::string stem = profileStemOf(lowered(entry.name));
          !stem.empty() && stemsOf(sim).count(stem) == 0)
        former[stem].push_back(entry.name);
  for (const auto& [stem, files] : former)
    tell(findings, folder, files);
}

// Whether a stem has design, schematic and something more in it, with dashes between.
bool isStemOfSchematic(const ProjectFacts& facts, const std::string& stem) {
  const std::string design = lowered(facts.layout.design) + "-";
  if (stem.rfind(design, 0) != 0)
    return false;
  for (std::size_t end = stem.find('-', design.size()); end < stem.size() - 1;
       end = stem.find('-', end + 1))
    if (facts.schematicNames.count(stem.substr(design.size(), end - design.size())) != 0)
      return true;
  return false;
}

// Whether a file that lies beside all others is a profile's for sure.
bool isProfileFile(const ProjectFacts& facts, const FolderIndex::Entry& entry,
                   const std::string& stem) {
  for (const char* ending : {".sim.cir", ".sim.1op", ".sim.mif"})
    if (endsWith(entry.name, ending) && !facts.isFrontEnd2())
      return true;
  return facts.isFrontEnd2() && !endsWith(entry.name, "-default.mrk") &&
         isStemOfSchematic(facts, stem);
}

void checkSharedFolder(ProjectFacts& facts, Findings& findings) {
  std::set<std::string> stems;
  for (const SimFile& sim : facts.sims)
    stems.merge(stemsOf(sim));
  FilesByStem former;
  for (const FolderIndex::Entry& entry : facts.index.folder(facts.layout.folder).entries)
    if (const std::string stem = profileStemOf(lowered(entry.name));
        !stem.empty() && entry.type == EntryType::kFile && stems.count(stem) == 0 &&
        isProfileFile(facts, entry, stem))
      former[stem].push_back(entry.name);
  for (const auto& [stem, files] : former)
    tell(findings, facts.layout.folder, files);
}

} // namespace

void checkFormerNames(ProjectFacts& facts, Findings& findings) {
  if (!facts.knowsDesign())
    return;
  if (!facts.layout.isSimulation())
    return checkSharedFolder(facts, findings);
  for (const SimFile& sim : facts.sims)
    if (sim.isRead)
      checkProfileFolder(facts, findings, sim);
}

} // namespace tervix::tool
