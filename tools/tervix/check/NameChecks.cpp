#include <algorithm>
#include <map>

#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/check/Checkers.h"
#include "tools/tervix/check/Paths.h"

// Names that are fine here and will not be elsewhere, or that the library cuts.

namespace tervix::tool {
namespace {

constexpr std::size_t kLongestPath = 259;

// As Windows counts: characters of four bytes as two.
std::size_t characterCount(const std::string& path) {
  const auto isLead = [](char c) { return (static_cast<unsigned char>(c) & 0xc0U) != 0x80; };
  const auto isLeadOfFour = [](char c) { return static_cast<unsigned char>(c) >= 0xf0; };
  return static_cast<std::size_t>(std::count_if(path.begin(), path.end(), isLead) +
                                  std::count_if(path.begin(), path.end(), isLeadOfFour));
}

void checkEntry(Findings& findings, const std::string& folder, const std::string& name) {
  if (const char* reason = reasonAgainstOnWindows(name))
    findings.add(Code::kWindowsName, {folder + "/" + name},
                 inQuotes(name) + " cannot be on Windows: " + reason);
  if (folder.size() + 1 + name.size() <= kLongestPath) // bytes, of which there are no fewer
    return;
  const std::string path = (folder + "/").append(name);
  if (const std::size_t count = characterCount(path); count > kLongestPath)
    findings.add(Code::kLongPath, {path}, "the path has " + std::to_string(count) + " characters");
}

void checkFolder(Findings& findings, const ListedFolder& folder) {
  const FolderIndex::Entry* before = nullptr;
  for (const FolderIndex::Entry& entry : folder.entries()) {
    checkEntry(findings, folder.path, entry.name);
    if (before != nullptr && isSameName(before->name, entry.name))
      findings.add(Code::kCaseTwins, {folder.path + "/" + entry.name},
                   inQuotes(entry.name) + " and " + inQuotes(before->name) +
                       " differ only in case");
    before = &entry;
  }
}

void checkSchematics(const ProjectFacts& facts, Findings& findings) {
  std::map<std::string, std::string> seen;
  for (const PlacedName& schematic : facts.schematics) {
    const auto [first, isNew] = seen.emplace(lowered(schematic.name), schematic.name);
    if (isNew)
      continue;
    if (first->second == schematic.name)
      findings.add(Code::kListedTwice, schematic.place,
                   "schematic " + inQuotes(schematic.name) + " is listed already");
    else
      findings.add(Code::kCaseTwins, schematic.place,
                   "schematics " + inQuotes(schematic.name) + " and " + inQuotes(first->second) +
                       " differ only in case");
  }
}

void checkDots(Findings& findings, const Place& place, const char* what, const std::string& stem) {
  if (const std::string cut = cutStemOf(stem); cut != stem)
    findings.add(Code::kDottedName, place,
                 std::string("the library cuts the ") + what + " " + inQuotes(stem) + " to " +
                     inQuotes(cut));
}

void checkDottedNames(const ProjectFacts& facts, Findings& findings) {
  const auto stem = [](const std::string& path) { return stemOf(nameOf(path)); };
  checkDots(findings, {facts.layout.projectFile}, "project's name", stem(facts.layout.projectFile));
  if (!facts.designFile.empty())
    checkDots(findings, {facts.designFile}, "design's name", stem(facts.designFile));
  for (const PlacedName& schematic : facts.schematics)
    if (!schematic.place.file.empty())
      checkDots(findings, schematic.place, "schematic's name", schematic.name);
  for (const SimFile& sim : facts.sims) {
    checkDots(findings, {sim.path}, "profile's name", stem(sim.path));
    for (const SimKey key : {SimKey::kDataFile, SimKey::kOutFile})
      if (const SimKeyFacts& found = sim.key(key); !found.value.empty())
        checkDots(findings, {sim.path, found.valueLine}, "file's name", stem(found.value));
  }
}

} // namespace

void checkNames(ProjectFacts& facts, Findings& findings) {
  for (const ListedFolder& folder : facts.ownFolders)
    checkFolder(findings, folder);
  checkSchematics(facts, findings);
  checkDottedNames(facts, findings);
}

} // namespace tervix::tool
