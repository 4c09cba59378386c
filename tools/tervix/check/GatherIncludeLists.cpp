#include <algorithm>
#include <iterator>
#include <string_view>

#include "tools/tervix/changes/IncludeList.h"
#include "tools/tervix/check/Gathering.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

constexpr std::array<Role, 3> kRoles = {Role::kLibrary, Role::kStimulus, Role::kInclude};

struct Entry {
  VARIANTFILE_TYPE kind;
  std::size_t line;
  std::string value;
};

struct ReadList {
  bool isRead = false;
  std::vector<Entry> loaded;
  std::vector<DroppedLine> dropped;
};

// What the library loaded from the list are the lines of the list in their order, less those that
// it dropped: a line that is not the next one loaded is one of these.
class ListComparison {
public:
  ListComparison(const LoadedProfile& profile, ReadList& list) : profile_(profile), list_(list) {}

  void take(const IncludeListLine& line) {
    std::string value(line.value);
    if (!line.kind) {
      takeRest(line, Dropped::kLine);
    } else if (isNextLoaded(*line.kind, value)) {
      ++next_[*line.kind];
      list_.loaded.push_back({*line.kind, line.line, std::move(value)});
      takeRest(line, Dropped::kRest);
    } else {
      const bool isOpen =
          isNextLoaded(*line.kind, value + "\n") || isNextLoaded(*line.kind, value + "\r\n");
      next_[*line.kind] += isOpen ? 1 : 0;
      drop(line, isOpen ? Dropped::kOpenEntry : Dropped::kEntry);
    }
  }

private:
  bool isNextLoaded(VARIANTFILE_TYPE kind, const std::string& value) const {
    const std::vector<std::string>& loaded = profile_.files[kind];
    return next_[kind] < loaded.size() && loaded[next_[kind]] == value;
  }
  void takeRest(const IncludeListLine& line, Dropped what) {
    if (!isBlankText(line.rest))
      drop(line, holdsEntry(line.rest) ? Dropped::kHiddenEntry : what);
  }
  void drop(const IncludeListLine& line, Dropped what) {
    list_.dropped.push_back({{profile_.includeList, line.line}, what, std::string(line.value)});
  }

  const LoadedProfile& profile_;
  ReadList& list_;
  std::array<std::size_t, 3> next_{};
};

std::vector<ReadList> readLists(ProjectFacts& facts) {
  std::vector<const std::string*> paths;
  for (const LoadedProfile& profile : facts.loaded)
    paths.push_back(&profile.includeList);
  std::vector<ReadList> lists(paths.size());
  facts.index.eachText(paths, [&](std::size_t i, std::optional<std::string_view> text) {
    lists[i].isRead = text.has_value();
    ListComparison comparison(facts.loaded[i], lists[i]);
    forEachLine(text.value_or(std::string_view()),
                [&](const IncludeListLine& line) { comparison.take(line); });
  });
  return lists;
}

} // namespace

void gatherIncludeLists(ProjectFacts& facts, Progress& progress) {
  progress.tell("reading include lists of profiles", facts.loaded.size());
  std::vector<ReadList> lists = readLists(facts);
  for (std::size_t i = 0; i < lists.size(); ++i) {
    const std::string& path = facts.loaded[i].includeList;
    for (Entry& entry : lists[i].loaded)
      facts.refer(kRoles[entry.kind], {path, entry.line}, std::move(entry.value));
    std::move(lists[i].dropped.begin(), lists[i].dropped.end(), std::back_inserter(facts.dropped));
    if (!lists[i].isRead && !path.empty() && facts.index.typeOf(path) != EntryType::kMissing)
      facts.unread.push_back({path, 0});
  }
}

} // namespace tervix::tool
