#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "readers/formats/Texts.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/Journal.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/check/Checkers.h"
#include "tools/tervix/check/Paths.h"

// What a change left behind: backups, files of its work, folders of what is no more.

namespace tervix::tool {
namespace {

constexpr const char* kBackupEnding = ".bak";
// How every file begins that the tool or the library makes for the time of a change.
constexpr const char* kWorkPrefix = ".tervix-";

bool holdsText(FolderIndex& index, const std::string& path) {
  const auto text = index.text(path);
  return text && !text->empty();
}

// Whether a file has all that its kind needs.
bool isWhole(ProjectFacts& facts, const std::string& path, const SimFile* sim) {
  if (!facts.index.isFile(path) || !holdsText(facts.index, path))
    return false;
  if (sim != nullptr)
    return sim->isRead && reasonAgainstProfile(facts, *sim).empty();
  if (endsWith(path, ".tvp") || endsWith(path, ".dsn"))
    return formats::readPlacedTexts(path).has_value();
  return true;
}

class LeftFiles {
public:
  LeftFiles(ProjectFacts& facts, Findings& findings) : facts_(facts), findings_(findings) {}

  void check(const ListedFolder& folder) {
    for (const FolderIndex::Entry& entry : folder.entries()) {
      if (entry.name.rfind(kWorkPrefix, 0) == 0)
        findings_.add(Code::kInterruptedChange, {folder.path + "/" + entry.name},
                      "an interrupted change left this behind");
      else if (entry.type == EntryType::kFile && endsWith(entry.name, kBackupEnding))
        checkBackup(folder.path + "/" + entry.name);
    }
  }

private:
  void checkBackup(const std::string& path) {
    const std::string original = path.substr(0, path.size() - std::string(kBackupEnding).size());
    const bool isOfSim = endsWith(original, ".sim");
    const SimFile* sim = isOfSim ? simAt(original) : nullptr;
    if (isOfSim && sim == nullptr && facts_.index.isFile(original))
      return; // of another project in the same folder, whose check tells
    if (!isWhole(facts_, original, sim))
      return findings_.add(Code::kLostOriginal, {path},
                           findings_.named(original) + " is not there, or not whole");
    Repair repair;
    if (facts_.index.isDirectlyIn(path, facts_.layout.folder)) {
      repair.action = Repair::Action::kRemoveFile;
      repair.file = path;
    }
    findings_.add(Code::kStaleBackup, {path}, findings_.named(original) + " is whole",
                  std::move(repair));
  }

  const SimFile* simAt(const std::string& path) {
    if (sims_.empty())
      for (const SimFile& sim : facts_.sims)
        sims_.emplace(sim.path, &sim);
    const auto found = sims_.find(path);
    return found != sims_.end() ? found->second : nullptr;
  }

  ProjectFacts& facts_;
  Findings& findings_;
  std::unordered_map<std::string_view, const SimFile*> sims_; // once one was asked for
};

bool hasEntry(FolderIndex& index, const std::string& folder, const std::string& name) {
  return index.typeOf(folder + "/" + name) != EntryType::kMissing ||
         index.twinOf(folder + "/" + name);
}

// Whether a folder is that of a profile: it holds nothing, an include list, or files named after
// it or after a profile beside it that has no folder, as one that was renamed by hand does.
bool looksLikeProfileFolder(FolderIndex& index, const std::string& folder) {
  const std::string above = folderOf(folder) + "/";
  const std::string own = lowered(nameOf(folder));
  const auto isNamedAfterProfile = [&](const FolderIndex::Entry& entry) {
    const std::string stem = cutStemOf(entry.name);
    return lowered(stem) == own || endsWith(entry.name, kIncludeListEnding) ||
           (index.isFile(above + stem + ".sim") &&
            index.typeOf(above + stem) == EntryType::kMissing);
  };
  const auto& [isListed, entries, realPath] = index.folder(folder);
  return (isListed && entries.empty()) ||
         std::any_of(entries.begin(), entries.end(), isNamedAfterProfile);
}

template <class Tell> void forEachFolder(const ListedFolder& above, const Tell& tell) {
  for (const FolderIndex::Entry& entry : above.entries())
    if (entry.type == EntryType::kFolder && !entry.isLink)
      tell(above.path + "/" + entry.name, entry.name);
}

// The folder of a profile is looked for in the case of the ".sim" file.
void checkFolderCase(FolderIndex& index, Findings& findings, const std::string& folder) {
  const auto sim = index.isFile(folder + ".sim") ? std::nullopt : index.twinOf(folder + ".sim");
  if (!sim)
    return;
  const std::string name = stemOf(*sim);
  if (index.typeOf(folderOf(folder) + "/" + name) == EntryType::kMissing)
    findings.add(Code::kCaseDiffers, {folder},
                 "the folder of " + inQuotes(*sim) + " is looked for as " + inQuotes(name));
}

std::string placeInAnyCase(const std::string& folder, const std::string& name) {
  return folder + "/" + lowered(name);
}

// Of the files that are registered and not there.
std::unordered_set<std::string> missingSims(const ProjectFacts& facts) {
  std::unordered_set<std::string> missing;
  for (const SimFile& sim : facts.sims)
    if (!sim.isThere)
      missing.insert(placeInAnyCase(folderOf(sim.path), nameOf(sim.path)));
  return missing;
}

void checkProfileFolders(ProjectFacts& facts, Findings& findings, const ListedFolder& above,
                         const std::unordered_set<std::string>& missing) {
  forEachFolder(above, [&](const std::string& path, const std::string& name) {
    checkFolderCase(facts.index, findings, path);
    if (!hasEntry(facts.index, above.path, name + ".sim") &&
        missing.count(placeInAnyCase(above.path, name + ".sim")) == 0 &&
        looksLikeProfileFolder(facts.index, path))
      findings.add(Code::kOrphanFolder, {path},
                   "a profile's folder without " + inQuotes(name + ".sim") + " beside it");
  });
}

bool hasSims(const ListedFolder& folder) {
  return std::any_of(folder.entries().begin(), folder.entries().end(),
                     [](const auto& entry) { return endsWith(entry.name, ".sim"); });
}

void checkFolders(ProjectFacts& facts, Findings& findings) {
  const std::unordered_set<std::string> missing = missingSims(facts);
  for (const ListedFolder& above : facts.schematicFolders) {
    const std::string schematic = nameOf(above.path);
    // Profiles in a folder of no schematic are told one by one.
    if (facts.isFrontEnd2() && !facts.hasSchematic(schematic) && !hasSims(above))
      findings.add(Code::kOrphanFolder, {above.path},
                   "there is no schematic " + inQuotes(schematic) + " in the design");
    else
      checkProfileFolders(facts, findings, above, missing);
  }
  if (!facts.isFrontEnd2())
    return;
  const ListedFolder& folder = facts.ownFolders.front(); // the project's
  forEachFolder(folder, [&](const std::string& path, const std::string& name) {
    if (!endsWith(name, kFilesFolderEnding))
      return;
    const std::string project = name.substr(0, name.size() - kFilesFolderEnding.size()) + ".tvp";
    if (!hasEntry(facts.index, folder.path, project))
      findings.add(Code::kOrphanFolder, {path},
                   "the files of a project without " + inQuotes(project) + " beside them");
  });
}

} // namespace

void checkLeftovers(ProjectFacts& facts, Findings& findings) {
  if (const std::string journal = journalOf(facts.layout.projectFile);
      facts.index.typeOf(journal) != EntryType::kMissing)
    findings.add(Code::kInterruptedChange, {journal},
                 "an interrupted change left its journal; the next command that changes the "
                 "project takes it back or finishes it");
  LeftFiles files(facts, findings);
  for (const ListedFolder& folder : facts.ownFolders)
    files.check(folder);
  if (facts.knowsDesign())
    checkFolders(facts, findings);
}

} // namespace tervix::tool
