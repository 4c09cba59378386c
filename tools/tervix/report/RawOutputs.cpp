#include "tools/tervix/report/RawOutputs.h"

#include <algorithm>

#include "foundation/platform/FileDetails.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/check/Paths.h"
#include "tools/tervix/commands/ProgressLine.h"
#include "tools/tervix/report/CurvesJson.h"
#include "tools/tervix/report/RawFile.h"

namespace tervix::tool {
namespace {

// A page has to stay one that a browser opens at once, and making it a matter of seconds.
constexpr std::uint64_t kLargestFile = 1'000'000'000;
constexpr std::uint64_t kMostRead = 4'000'000'000;
constexpr std::size_t kMostDrawn = 12'000'000;

void addIfRaw(std::vector<std::string>& outputs, const std::string& path) {
  if (std::find(outputs.begin(), outputs.end(), path) == outputs.end() && isRawOutput(path))
    outputs.push_back(path);
}

} // namespace

std::vector<std::string> RawOutputs::of(const ProfileView& profile) {
  std::vector<std::string> outputs;
  for (const FileView& file : profile.files)
    if (file.exists)
      addIfRaw(outputs, file.place);
  const bool isOwnFolder = project_.type == PROJECT_TYPE_SIMULATION;
  const std::string begin = isOwnFolder ? "" : stemOf(nameOf(profile.sim.place)) + ".";
  const auto begins = [&](const std::string& name) {
    return isSameName(std::string_view(name).substr(0, begin.size()), begin);
  };
  const auto& entries = folders_.folder(profile.folder).entries;
  auto entry = std::lower_bound(entries.begin(), entries.end(), begin,
                                [](const FolderIndex::Entry& a, const std::string& b) {
                                  return compareNames(a.name, b) < 0;
                                });
  for (; entry != entries.end() && begins(entry->name); ++entry)
    if (entry->type == EntryType::kFile)
      addIfRaw(outputs, profile.folder + "/" + entry->name);
  return outputs;
}

// Why a file is not read at all; empty when it is.
std::string RawOutputs::whyNot(const std::string& path) {
  const auto details = platform::detailsOf(path);
  if (!details)
    return "It cannot be read.";
  if (details->size > kLargestFile)
    return "Not drawn: it has " + sizeText(details->size) + ", and no file of more than " +
           sizeText(kLargestFile) + " is read.";
  if (bytesDrawn_ >= kMostDrawn)
    return "Not drawn: the page holds " + sizeText(kMostDrawn) + " of curves already.";
  if (bytesRead_ + details->size > kMostRead)
    return "Not drawn: " + sizeText(kMostRead) + " of results were read for the page already.";
  bytesRead_ += details->size;
  return {};
}

Json RawOutputs::drawn(const std::string& path) {
  Json remarks = Json::array();
  Json plots = Json::array();
  if (const std::string reason = whyNot(path); reason.empty())
    plots = drawnPlots(path, remarks);
  else
    remarks.push_back(reason);
  return {{"path", seenIn(project_.folder, path)}, {"plots", plots}, {"remarks", remarks}};
}

Json RawOutputs::drawnPlots(const std::string& path, Json& remarks) {
  RawCurves curves = readCurves(path);
  for (CurvePlot& plot : curves.plots) {
    if (const std::size_t size = sizeOf(plot); bytesDrawn_ + size <= kMostDrawn) {
      bytesDrawn_ += size;
      continue;
    }
    plot.charts.clear();
    plot.scale.values.clear();
    plot.remarks.push_back("Its curves are left out: the page holds " + sizeText(kMostDrawn) +
                           " of curves at most.");
  }
  for (const std::string& remark : curves.remarks)
    remarks.push_back(remark);
  return arrayOf(curves.plots, [](const CurvePlot& plot) { return jsonOf(plot); });
}

} // namespace tervix::tool
