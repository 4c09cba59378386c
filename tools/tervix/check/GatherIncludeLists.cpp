#include "tools/tervix/changes/IncludeList.h"
#include "tools/tervix/check/Gathering.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

constexpr std::array<Role, 3> kRoles = {Role::kLibrary, Role::kStimulus, Role::kInclude};

// What the library loaded from the list are the lines of the list in their order, less those that
// it dropped: a line that is not the next one loaded is one of these.
class ListComparison {
public:
  ListComparison(ProjectFacts& facts, const LoadedProfile& profile)
      : facts_(facts), profile_(profile) {}

  void take(const IncludeListLine& line) {
    const Place place{profile_.includeList, line.line};
    const std::string value(line.value);
    if (!line.kind) {
      if (!line.isBlank)
        facts_.dropped.push_back({place, false, false, value});
    } else if (isNextLoaded(*line.kind, value)) {
      ++next_[*line.kind];
      facts_.refer(kRoles[*line.kind], place, value);
    } else {
      const bool isOpen =
          isNextLoaded(*line.kind, value + "\n") || isNextLoaded(*line.kind, value + "\r\n");
      next_[*line.kind] += isOpen ? 1 : 0;
      facts_.dropped.push_back({place, true, isOpen, value});
    }
  }

private:
  bool isNextLoaded(VARIANTFILE_TYPE kind, const std::string& value) const {
    const std::vector<std::string>& loaded = profile_.files[kind];
    return next_[kind] < loaded.size() && loaded[next_[kind]] == value;
  }

  ProjectFacts& facts_;
  const LoadedProfile& profile_;
  std::array<std::size_t, 3> next_{};
};

} // namespace

void gatherIncludeLists(ProjectFacts& facts, Progress& progress) {
  progress.tell("reading include lists of profiles", facts.loaded.size());
  std::vector<std::string> paths;
  for (const LoadedProfile& profile : facts.loaded)
    paths.push_back(facts.index.isFile(profile.includeList) ? profile.includeList : std::string());
  const auto texts = facts.index.texts(paths);
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const LoadedProfile& profile = facts.loaded[i];
    if (texts[i]) {
      ListComparison comparison(facts, profile);
      forEachLine(*texts[i], [&](const IncludeListLine& line) { comparison.take(line); });
    } else if (!profile.includeList.empty() &&
               facts.index.typeOf(profile.includeList) != EntryType::kMissing) {
      facts.unread.push_back({profile.includeList, 0});
    }
  }
}

} // namespace tervix::tool
