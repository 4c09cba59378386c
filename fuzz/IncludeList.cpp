// A profile's include list, loaded and saved: any bytes.

#include <algorithm>
#include <array>
#include <filesystem>
#include <vector>

#include "CTervixProfile.h"
#include "foundation/Text.h"
#include "fuzz/support/Workplace.h"

namespace {

using tervix::fuzz::require;
using Entries = std::vector<std::string>;
using Lists = std::array<Entries, 3>;

constexpr std::array<VARIANTFILE_TYPE, 3> kTypes = {
    VARIANTFILE_TYPE_LIBRARY, VARIANTFILE_TYPE_STIMULUS, VARIANTFILE_TYPE_INCLUDE};

Lists listsOf(CTervixProfile& profile) {
  Lists lists;
  for (const VARIANTFILE_TYPE type : kTypes) {
    Entries& list = lists.at(static_cast<std::size_t>(type));
    std::string entry;
    for (profile.getTopProfileLevelFile(entry, type); !entry.empty();
         profile.getNextProfileLevelFile(entry, type))
      list.push_back(entry);
    int count = -1;
    require(profile.numberOfProfileLevelFiles(count, type) == 0 &&
                static_cast<std::size_t>(count) == list.size(),
            "as many entries as are counted");
  }
  return lists;
}

Lists asSaved(Lists lists) {
  for (Entries& list : lists)
    std::transform(list.begin(), list.end(), list.begin(), tervix::toBackslashes);
  return lists;
}

// Where a save makes a line longer than the reader takes in one piece, what is loaded again is
// cut: the reader promises no more.
bool fitInLines(const Lists& lists) {
  constexpr std::size_t kLongest = 1023 - sizeof(".STMLIB\t\"\" \n");
  return std::all_of(lists.begin(), lists.end(), [](const Entries& list) {
    return std::all_of(list.begin(), list.end(),
                       [](const std::string& entry) { return entry.size() <= kLongest; });
  });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string content = tervix::fuzz::textOf(data, size);
  const auto& folder = tervix::fuzz::emptyWorkplace();
  const std::string list = folder.file("tran/tran_profile.inc", content);
  const std::string sim = folder.path("tran.sim");
  Lists loaded;
  {
    CTervixProfile profile(sim.c_str(), "tran", "TOP-tran", FRONTEND_ID_DESIGN_FILE,
                           PROJECT_TYPE_SIMULATION, nullptr);
    loaded = listsOf(profile);
    require(tervix::testing::contentOf(list) == content, "loading changes nothing", content);
    require(profile.writeVariants() == 0, "what was loaded can be saved", content);
  }
  const bool isEmpty = loaded == Lists();
  require(std::filesystem::exists(list) == !isEmpty, "an empty list has no file", content);
  if (isEmpty || !fitInLines(loaded))
    return 0;
  const std::string saved = tervix::testing::contentOf(list);
  {
    CTervixProfile profile(sim.c_str(), "tran", "TOP-tran", FRONTEND_ID_DESIGN_FILE,
                           PROJECT_TYPE_SIMULATION, nullptr);
    require(listsOf(profile) == asSaved(loaded), "what was saved loads the same", saved);
  }
  require(tervix::testing::contentOf(list) == saved, "saved again, no byte differs", saved);
  return 0;
}
