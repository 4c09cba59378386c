#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/NetlistText.h"
#include "tools/tervix/check/Gathering.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

// Netlists and libraries, each once, with what they include.
class IncludeGraph {
public:
  explicit IncludeGraph(ProjectFacts& facts) : facts_(facts) {}

  void add(const std::string& netlist) { numberOf(netlist); }

  // Reads file after file, those of one distance from the first ones together.
  void follow(Progress& progress) {
    for (std::size_t first = 0; first < files_.size();) {
      progress.tell("reading netlists and libraries", files_.size());
      std::vector<ReadFile> read = readFrom(first);
      for (ReadFile& file : read)
        takeIncluded(first++, file);
    }
  }

  // Each line that closes a circle, once. A library may include a section of itself: that is a
  // circle only if the section does. The way down is kept here and not on the stack, so that no
  // chain of files is too long.
  void tellCycles() {
    for (std::size_t file = 0; file < files_.size(); ++file) {
      if (!files_[file].inclusions.empty())
        enter(partOf(file, ""));
      while (!way_.empty()) {
        Part& last = parts_[way_.back()];
        std::vector<Inclusion>& inclusions = files_[last.file].inclusions;
        if (last.next == inclusions.size()) {
          last.state = State::kDone;
          way_.pop_back();
        } else if (Inclusion& next = inclusions[last.next++];
                   last.section.empty() || isSameName(last.section, next.within)) {
          takeInclusion(next);
        }
      }
    }
  }

private:
  enum class State { kNew, kOpen, kDone };

  struct Inclusion {
    std::size_t file;
    std::size_t line;
    std::string section; // of the file; empty for all of it
    std::string within;
    bool isTold = false;
  };
  struct File {
    std::string path;
    std::vector<Inclusion> inclusions;
  };
  struct Part { // a file, or a section of it
    std::size_t file;
    std::string section;
    State state = State::kNew;
    std::size_t next = 0;
  };
  using ReadFile = std::optional<std::vector<IncludedFile>>; // none when it cannot be read

  std::size_t numberOf(const std::string& path) {
    const auto [number, isNew] = numbers_.emplace(facts_.index.realPathOf(path), files_.size());
    if (isNew)
      files_.push_back({path, {}});
    return number->second;
  }

  std::size_t partOf(std::size_t file, const std::string& section) {
    const auto [number, isNew] =
        partNumbers_.emplace(std::make_pair(file, lowered(section)), parts_.size());
    if (isNew)
      parts_.push_back({file, section, State::kNew, 0});
    return number->second;
  }

  std::vector<ReadFile> readFrom(std::size_t first) {
    std::vector<const std::string*> paths;
    for (std::size_t file = first; file < files_.size(); ++file)
      paths.push_back(&files_[file].path);
    std::vector<ReadFile> files(paths.size());
    facts_.index.eachText(paths, [&](std::size_t i, std::optional<std::string_view> text) {
      if (text)
        files[i] = includedFiles(*text);
    });
    return files;
  }

  void takeIncluded(std::size_t file, ReadFile& read) {
    if (!read)
      return facts_.unread.push_back({files_[file].path, 0});
    for (IncludedFile& line : *read) {
      Reference& reference =
          facts_.refer(Role::kIncludeLine, {files_[file].path, line.line}, std::move(line.text));
      reference.maybeSection = line.maybeSection;
      if (reference.type == EntryType::kFile) {
        const std::size_t included = numberOf(reference.target);
        files_[file].inclusions.push_back(
            {included, line.line, std::move(line.section), std::move(line.within), false});
      }
    }
  }

  void enter(std::size_t part) {
    if (parts_[part].state != State::kNew)
      return;
    parts_[part].state = State::kOpen;
    way_.push_back(part);
  }

  void takeInclusion(Inclusion& inclusion) {
    const std::size_t file = parts_[way_.back()].file;
    const std::size_t part = partOf(inclusion.file, inclusion.section);
    if (parts_[part].state != State::kOpen)
      return enter(part);
    if (inclusion.isTold)
      return;
    inclusion.isTold = true;
    IncludeCycle cycle{{files_[file].path, inclusion.line}, {}};
    for (auto open = std::find(way_.begin(), way_.end(), part); open != way_.end(); ++open)
      cycle.files.push_back(files_[parts_[*open].file].path);
    facts_.cycles.push_back(std::move(cycle));
  }

  ProjectFacts& facts_;
  std::vector<File> files_;
  std::unordered_map<std::string, std::size_t> numbers_; // by the one real path
  std::vector<Part> parts_;
  std::map<std::pair<std::size_t, std::string>, std::size_t> partNumbers_;
  std::vector<std::size_t> way_; // of parts
};

void addNetlists(ProjectFacts& facts, IncludeGraph& graph) {
  const auto add = [&](const std::string& path) {
    if (facts.index.isFile(path))
      graph.add(path);
  };
  for (const PlacedName& schematic : facts.schematics)
    add(facts.layout.placesOf(schematic.name).files[SCHEMATIC_FILE_NET]);
  for (const LoadedProfile& profile : facts.loaded)
    add(profile.netlist);
  for (const Reference& reference : facts.references)
    if (isVariant(reference.role) && reference.type == EntryType::kFile)
      graph.add(reference.target);
}

} // namespace

void gatherNetlists(ProjectFacts& facts, Progress& progress) {
  IncludeGraph graph(facts);
  addNetlists(facts, graph);
  graph.follow(progress);
  graph.tellCycles();
}

} // namespace tervix::tool
