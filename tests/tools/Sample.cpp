#include "tests/tools/Sample.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

// A line of a printed tree, and those below it.
struct TreeLine {
  std::string text;
  std::vector<TreeLine> below;
};

constexpr std::size_t kIndent = 4; // the width of "|-- " and of each level before it

std::size_t depthOf(const std::string& line) {
  const std::size_t mark = std::min(line.find("|-- "), line.find("`-- "));
  return mark == std::string::npos ? 0 : line.find("-- ") / kIndent + 1;
}

void sortProfiles(TreeLine& line) {
  const auto isProfile = [](const TreeLine& below) { return below.text.rfind("profile ", 0) == 0; };
  const auto first = std::find_if(line.below.begin(), line.below.end(), isProfile);
  std::sort(first, line.below.end(),
            [](const TreeLine& a, const TreeLine& b) { return a.text < b.text; });
  for (TreeLine& below : line.below)
    sortProfiles(below);
}

void print(std::ostream& out, const TreeLine& line, std::size_t depth) {
  out << std::string(depth * 2, ' ') << line.text << "\n";
  for (const TreeLine& below : line.below)
    print(out, below, depth + 1);
}

void makeRelative(nlohmann::ordered_json& json, const std::string& folder) {
  if (json.is_structured()) {
    for (auto& element : json)
      makeRelative(element, folder);
    return;
  }
  if (!json.is_string())
    return;
  const std::string text = json.get<std::string>();
  if (text == folder)
    json = ".";
  else if (text.rfind(folder + "/", 0) == 0)
    json = text.substr(folder.size() + 1);
}

} // namespace

const std::vector<Sample>& allSamples() {
  static const std::vector<Sample> samples = {
      {"amp-simulation",
       "amp-simulation",
       "amp.tvp",
       {"amp-TervixFiles/TOP/tran.sim", "amp-TervixFiles/BIAS/dc.sim",
        "amp-TervixFiles/TOP/TOP.aap"},
       "amp-TervixFiles/TOP/TOP.$ap"},
      {"amp-flat",
       "amp-flat",
       "amp.tvp",
       {"amp-TOP-tran.sim", "amp-TOP-ac.sim", "amp-TOP.aap"},
       "amp-TOP.$ap"},
      {"amp-workspace",
       "workspace",
       "amp/tvx_sim_1/amp.tvp",
       {"amp/tvx_sim_1/profiles/tran.sim", "amp/tvx_sim_1/profiles/noise.sim"},
       ""},
      {"flt-workspace",
       "workspace",
       "flt/cfg_analog/flt.tvp",
       {"flt/cfg_analog/ac.sim", "flt/cfg_analog/step.sim"},
       ""}};
  return samples;
}

std::ostream& operator<<(std::ostream& stream, const Sample& sample) {
  return stream << sample.name;
}

SampleCopy::SampleCopy(const Sample& sample, const std::string& place)
    : sample_(sample), place_(place) {
  fs::create_directories(fs::path(folder()).parent_path());
  fs::copy(std::string(TERVIX_EXAMPLES) + "/" + sample.folder, folder(),
           fs::copy_options::recursive);
}

std::vector<std::string> SampleCopy::openable() const {
  std::vector<std::string> files = {project()};
  for (const std::string& other : sample_.others)
    files.push_back(path(other));
  if (!sample_.copyAsAnalysis.empty()) {
    files.push_back(path(sample_.copyAsAnalysis));
    fs::copy_file(path(sample_.others.back()), files.back(), fs::copy_options::skip_existing);
  }
  return files;
}

nlohmann::ordered_json comparable(nlohmann::ordered_json json, const std::string& folder) {
  makeRelative(json, folder);
  for (auto& schematic : json["schematics"])
    if (auto& profiles = schematic["profiles"]; json["frontEnd"] == 1)
      std::sort(profiles.begin(), profiles.end(),
                [](const auto& a, const auto& b) { return a["name"] < b["name"]; });
  return json;
}

std::string comparable(const std::string& tree) {
  std::istringstream lines(tree);
  std::string line;
  std::getline(lines, line);
  TreeLine top{line, {}};
  if (line.find("front end 1") == std::string::npos)
    return tree;
  while (std::getline(lines, line)) {
    const std::size_t depth = depthOf(line);
    TreeLine* parent = &top;
    for (std::size_t level = 1; level < depth; ++level)
      parent = &parent->below.back();
    parent->below.push_back({line.substr(depth * kIndent), {}});
  }
  sortProfiles(top);
  std::ostringstream out;
  print(out, top, 0);
  return out.str();
}

} // namespace tervix::testing
