#include "tools/tervix/check/CheckProject.h"

#include <algorithm>
#include <array>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <tuple>

#include "readers/formats/Mistake.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/check/Checkers.h"
#include "tools/tervix/check/Paths.h"
#include "tools/tervix/check/ReadAhead.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestMessage = 1000;

constexpr std::array<void (*)(ProjectFacts&, Findings&), 9> kCheckers = {
    checkNamedFiles,  checkNetlistIncludes, checkSimFiles,   checkIncludeLists, checkLeftovers,
    checkFormerNames, checkNames,           checkReferences, checkSelection};

std::string onOneLine(std::string text) {
  for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos;)
    text.replace(at, 1, ";");
  return text;
}

// Why a project did not open, and where, if one of our readers stumbled.
Finding unopenable(const std::string& file, const std::string& reason) {
  const auto mistake = formats::lastMistake();
  const std::string folder = folderOf(file);
  if (!mistake)
    return {Code::kProjectUnopenable, nameOf(file), 0, onOneLine(reason), {}};
  return {
      Code::kProjectUnopenable, seenIn(folder, mistake->file), mistake->line, mistake->text, {}};
}

std::vector<Finding> findingsIn(ProjectFacts& facts, Progress& progress) {
  progress.tell("comparing files", facts.references.size() + facts.sims.size());
  Findings findings(facts.layout);
  for (const auto checker : kCheckers)
    checker(facts, findings);
  progress.clear();
  return findings.sorted();
}

} // namespace

void Findings::add(Code code, const Place& place, std::string message, Repair repair) {
  // A damaged file may name anything, at any length.
  if (message.size() > kLongestMessage)
    message = message.substr(0, kLongestMessage) + "...";
  findings_.push_back(
      {code, seenIn(folder_, place.file), place.line, std::move(message), std::move(repair)});
}

std::string Findings::named(const std::string& path) const {
  return inQuotes(seenIn(folder_, path));
}

std::vector<Finding> Findings::sorted() const {
  std::map<std::string, Severity> worst;
  for (const Finding& finding : findings_) {
    const auto file = worst.emplace(finding.path, finding.severity()).first;
    file->second = std::min(file->second, finding.severity());
  }
  const auto rank = [&](const Finding& finding) {
    return std::make_tuple(worst.at(finding.path), std::cref(finding.path), finding.severity(),
                           finding.line, finding.code, std::cref(finding.message));
  };
  std::vector<Finding> findings = findings_;
  std::sort(findings.begin(), findings.end(),
            [&](const Finding& a, const Finding& b) { return rank(a) < rank(b); });
  return findings;
}

std::vector<std::string> namedIn(const CheckedProject& checked) {
  std::vector<std::string> named;
  if (checked.facts == nullptr)
    return named;
  for (const Reference& reference : checked.facts->references)
    named.push_back(reference.target);
  for (const SimFile& sim : checked.facts->sims)
    named.push_back(sim.path);
  for (const LoadedProfile& profile : checked.facts->loaded)
    if (!profile.includeList.empty())
      named.push_back(profile.includeList);
  return named;
}

void requireCheckable(const std::string& file) {
  if (std::error_code error; !fs::is_regular_file(fullPathOf(file), error))
    throw Failure(inQuotes(file) + " is not a file that is there", kWrongUsage);
}

CheckedProject checkFile(const std::string& file, std::optional<int> frontEnd, Progress& progress) {
  CheckedProject checked;
  checked.path = fullPathOf(file);
  requireCheckable(file);
  ReadAhead ahead(checked.path);
  try {
    checked.project = &openProject(file, frontEnd);
  } catch (const Failure& failure) {
    if (failure.status() == kWrongUsage)
      throw;
    checked.findings = {unopenable(checked.path, failure.what())};
    return checked;
  }
  checked.project->getPath(checked.path);
  // Kept to the end, as the project is: freeing them text by text takes a tenth of the whole time.
  static auto& kept = *new std::deque<ProjectFacts>;
  ProjectFacts& facts = kept.emplace_back(gatherFacts(*checked.project, ahead, progress));
  checked.findings = findingsIn(facts, progress);
  checked.facts = &facts;
  return checked;
}

} // namespace tervix::tool
