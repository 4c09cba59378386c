#include "tools/tervix/report/ReportData.h"

#include <algorithm>
#include <chrono>

#include "tools/tervix/FileListing.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/UtcTime.h"
#include "tools/tervix/check/FindingsJson.h"
#include "tools/tervix/check/Paths.h"
#include "tools/tervix/report/RawOutputs.h"

namespace tervix::tool {
namespace {

std::string now() {
  using std::chrono::system_clock;
  return utcTime(system_clock::to_time_t(system_clock::now()));
}

// Every text as a person is shown it, so that a strange name is seen to be one.
void makePrintable(Json& json) {
  if (json.is_structured())
    for (Json& element : json)
      makePrintable(element);
  else if (json.is_string())
    json = printable(json.get_ref<const std::string&>());
}

class DataMaker {
public:
  DataMaker(const ProjectView& project, Progress& progress)
      : project_(project), outputs_(project), progress_(progress) {}

  Json make() {
    const bool hasDesignFile = project_.hasDesign && project_.frontEnd == FRONTEND_ID_DESIGN_FILE;
    Json files = Json::array({jsonOfFile({"project file", "", project_.path, true}, "")});
    if (hasDesignFile)
      files.push_back(
          jsonOfFile({"design", "", project_.design.place, project_.design.exists}, ""));
    if (project_.outputFile)
      files.push_back(jsonOfFile(
          {"output file", "", project_.outputFile->place, project_.outputFile->exists}, ""));
    return {
        {"name", project_.name},
        {"folder", project_.folder},
        {"type", project_.type},
        {"layout", layoutName(project_.type)},
        {"frontEnd", project_.frontEnd},
        {"design", project_.designName},
        {"files", files},
        {"models", modelsOf(project_.variants)},
        {"schematics", arrayOf(project_.schematics, [this](const auto& s) { return jsonOf(s); })},
        {"unusedProfiles", arrayOf(project_.unusedProfiles, [](const FileView& file) {
           return Json{file.path, file.exists};
         })}};
  }

private:
  Json jsonOf(const SchematicView& schematic) {
    return {{"name", schematic.name},
            {"root", schematic.root},
            {"files", filesOf(schematic.files)},
            {"profiles", arrayOf(schematic.profiles, [this](const auto& p) { return jsonOf(p); })}};
  }

  Json jsonOf(const ProfileView& profile) {
    progress_.tell("listing profiles", ++profiles_);
    std::vector<FileView> files = {{"sim", "", profile.sim.place, profile.sim.exists}};
    files.insert(files.end(), profile.files.begin(), profile.files.end());
    Json json = {
        {"name", profile.displayName}, {"active", profile.active}, {"files", filesOf(files)}};
    if (!profile.variants.empty())
      json["models"] = modelsOf(profile.variants);
    for (const std::string& output : outputs_.of(profile))
      json["outputs"].push_back(outputs_.drawn(output));
    return json;
  }

  // A thousand profiles have some eighteen files each whose paths begin alike: "amp/TOP/tran.".
  Json filesOf(const std::vector<FileView>& files) const {
    const std::string prefix = commonBeginning(files);
    return {{"prefix", prefix}, {"list", arrayOf(files, [&](const FileView& file) {
                                   return jsonOfFile(file, prefix);
                                 })}};
  }

  std::string commonBeginning(const std::vector<FileView>& files) const {
    if (files.empty())
      return {};
    std::string prefix = seenIn(project_.folder, files.front().place);
    for (const FileView& file : files) {
      const std::string path = seenIn(project_.folder, file.place);
      const auto [end, ignored] =
          std::mismatch(prefix.begin(), prefix.end(), path.begin(), path.end());
      prefix.erase(end, prefix.end());
    }
    // Not within a character.
    return prefix.substr(0, prefix.find_last_of("./") + 1);
  }

  // Its type and path; of one that is there also size and time.
  Json jsonOfFile(const FileView& file, const std::string& prefix) const {
    Json json = {file.kind, seenIn(project_.folder, file.place).substr(prefix.size())};
    if (const auto details = detailsOf(file)) {
      json.push_back(details->size);
      json.push_back(utcTime(details->lastModified));
    }
    return json;
  }

  static Json modelsOf(const std::vector<FileView>& variants) {
    return arrayOf(variants, [](const FileView& file) {
      return Json{file.kind, file.path, file.exists};
    });
  }

  const ProjectView& project_;
  RawOutputs outputs_;
  Progress& progress_;
  std::size_t profiles_ = 0;
};

} // namespace

Json reportData(const CheckedProject& checked, const ProjectView* project, Progress& progress) {
  Json data = {{"made", now()},
               {"tool", "tervix " TERVIX_VERSION},
               {"path", checked.path},
               {"project", project != nullptr ? DataMaker(*project, progress).make() : Json()},
               {"findings", jsonOfFindings(checked.findings)}};
  makePrintable(data);
  return data;
}

} // namespace tervix::tool
