#include <algorithm>

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

bool holdsText(const FolderIndex& index, const std::string& path) {
  const auto text = index.text(path);
  return text && !text->empty();
}

const SimFile* simAt(const ProjectFacts& facts, const std::string& path) {
  const auto sim = std::find_if(facts.sims.begin(), facts.sims.end(),
                                [&](const SimFile& file) { return file.path == path; });
  return sim != facts.sims.end() ? &*sim : nullptr;
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

void checkBackup(ProjectFacts& facts, Findings& findings, const std::string& path) {
  const std::string original = path.substr(0, path.size() - std::string(kBackupEnding).size());
  const bool isOfSim = endsWith(original, ".sim");
  const SimFile* sim = isOfSim ? simAt(facts, original) : nullptr;
  if (isOfSim && sim == nullptr && facts.index.isFile(original))
    return; // of another project in the same folder, whose check tells
  if (!isWhole(facts, original, sim))
    return findings.add(Code::kLostOriginal, {path},
                        findings.named(original) + " is not there, or not whole");
  Repair repair;
  if (facts.index.isDirectlyIn(path, facts.layout.folder)) {
    repair.action = Repair::Action::kRemoveFile;
    repair.file = path;
  }
  findings.add(Code::kStaleBackup, {path}, findings.named(original) + " is whole",
               std::move(repair));
}

void checkFiles(ProjectFacts& facts, Findings& findings, const std::string& folder) {
  for (const FolderIndex::Entry& entry : facts.index.folder(folder).entries) {
    if (entry.name.rfind(kWorkPrefix, 0) == 0)
      findings.add(Code::kInterruptedChange, {folder + "/" + entry.name},
                   "an interrupted change left this behind");
    else if (entry.type == EntryType::kFile && endsWith(entry.name, kBackupEnding))
      checkBackup(facts, findings, folder + "/" + entry.name);
  }
}

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
  const auto& entries = index.folder(folder).entries;
  return entries.empty() || std::any_of(entries.begin(), entries.end(), isNamedAfterProfile);
}

template <class Tell>
void forEachFolder(FolderIndex& index, const std::string& above, const Tell& tell) {
  for (const FolderIndex::Entry& entry : index.folder(above).entries)
    if (entry.type == EntryType::kFolder && !entry.isLink)
      tell(above + "/" + entry.name, entry.name);
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

void checkProfileFolders(ProjectFacts& facts, Findings& findings, const std::string& above) {
  std::vector<std::string> registered;
  for (const SimFile& sim : facts.sims)
    if (folderOf(sim.path) == above)
      registered.push_back(lowered(nameOf(sim.path)));
  std::sort(registered.begin(), registered.end());
  forEachFolder(facts.index, above, [&](const std::string& path, const std::string& name) {
    checkFolderCase(facts.index, findings, path);
    if (!hasEntry(facts.index, above, name + ".sim") &&
        !std::binary_search(registered.begin(), registered.end(), lowered(name + ".sim")) &&
        looksLikeProfileFolder(facts.index, path))
      findings.add(Code::kOrphanFolder, {path},
                   "a profile's folder without " + inQuotes(name + ".sim") + " beside it");
  });
}

bool hasSims(FolderIndex& index, const std::string& folder) {
  const auto& entries = index.folder(folder).entries;
  return std::any_of(entries.begin(), entries.end(),
                     [](const auto& entry) { return endsWith(entry.name, ".sim"); });
}

void checkFolders(ProjectFacts& facts, Findings& findings) {
  for (const std::string& above : facts.schematicFolders) {
    const std::string schematic = nameOf(above);
    // Profiles in a folder of no schematic are told one by one.
    if (facts.isFrontEnd2() && !facts.hasSchematic(schematic) && !hasSims(facts.index, above))
      findings.add(Code::kOrphanFolder, {above},
                   "there is no schematic " + inQuotes(schematic) + " in the design");
    else
      checkProfileFolders(facts, findings, above);
  }
  if (!facts.isFrontEnd2())
    return;
  const std::string& folder = facts.layout.folder;
  forEachFolder(facts.index, folder, [&](const std::string& path, const std::string& name) {
    if (!endsWith(name, kFilesFolderEnding))
      return;
    const std::string project = name.substr(0, name.size() - kFilesFolderEnding.size()) + ".tvp";
    if (!hasEntry(facts.index, folder, project))
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
  for (const std::string& folder : facts.ownFolders)
    checkFiles(facts, findings, folder);
  if (facts.knowsDesign())
    checkFolders(facts, findings);
}

} // namespace tervix::tool
