#include "tests/support/ProjectBuilder.h"

#include <filesystem>

namespace tervix::testing {
namespace {

std::string listOf(const std::vector<std::string>& values) {
  std::string text;
  for (const std::string& value : values)
    text.append(text.empty() ? "" : ", ").append("\"").append(value).append("\"");
  return "[" + text + "]";
}

// The project folder, relative to the temporary folder.
std::string projectFolder(Layout layout, const std::string& name) {
  switch (layout) {
  case Layout::kProjectSimulation:
    return name + "/tvx_sim_1/";
  case Layout::kProjectOther:
    return name + "/cfg_analog/";
  default:
    return "P/";
  }
}

std::string projectText(Layout layout, const ProjectPlan& plan) {
  std::vector<std::string> sims;
  const std::string prefix = projectFolder(layout, plan.name);
  for (const auto& profile : plan.profiles)
    sims.push_back("./" + simPathIn(layout, plan, profile).substr(prefix.size()));
  return "[\"Design Resources\"]\nFiles = " + listOf({plan.name + ".dsn"}) +
         "\nTERVIX_Output_File = \"all.out\"\n\n[\"Tervix Resources\"]\n"
         "\"Model Libraries\" = [\"models.lib\"]\n\"Stimulus Files\" = [\"pulse.stl\"]\n"
         "\"Include Files\" = [\"supply.inc\"]\n\n[\"Simulation Profiles\"]\nFiles = " +
         listOf(sims) + "\nActive = \"" + plan.active + "\"\n";
}

void writeProfile(const TemporaryFolder& folder, Layout layout, const ProjectPlan& plan,
                  const ProjectPlan::Profile& profile) {
  namespace fs = std::filesystem;
  const fs::path sim = simPathIn(layout, plan, profile);
  const std::string stem = sim.stem().string();
  const std::string root = frontEndOf(layout) == 1 ? plan.name : profile.schematic;
  if (isSimulation(layout)) {
    const std::string own = (sim.parent_path() / stem / stem).generic_string();
    const std::string relative = "./" + stem + "/" + stem;
    folder.file(sim.generic_string(), simText(profile.name, stem + ".sim", "", "", "",
                                              relative + ".dat", relative + ".out"));
    folder.file(own + "_profile.inc", ".INC\t\".\\load.inc\" \n");
    for (const char* suffix : {".dat", ".out", ".cir", ".mrk"})
      folder.file(own + suffix, suffix);
    return;
  }
  const std::string own = (sim.parent_path() / stem).generic_string();
  folder.file(sim.generic_string(),
              simText(profile.name, stem + ".sim", plan.name + ".dsn", plan.name + ".tvp", root,
                      stem + ".dat", stem + ".out"));
  for (const char* suffix : {".dat", ".out", ".sim.cir", ".mrk"})
    folder.file(own + suffix, suffix);
}

} // namespace

int frontEndOf(Layout layout) {
  return layout == Layout::kDesignSimulation || layout == Layout::kDesignOther ? 2 : 1;
}

bool isSimulation(Layout layout) {
  return layout == Layout::kDesignSimulation || layout == Layout::kProjectSimulation;
}

std::string simText(const std::string& profile, const std::string& profileFile,
                    const std::string& design, const std::string& project, const std::string& root,
                    const std::string& dataFile, const std::string& outFile) {
  const auto line = [](const char* key, const std::string& value) {
    return std::string(key) + " = \"" + value + "\"\n";
  };
  return line("ProfileName", profile) + line("ProfileFile", profileFile) +
         line("DesignFile", design) + line("ProjectFile", project) + line("RootSchematics", root) +
         line("NetlistFile", profile + ".cir") + line("DataFile", dataFile) +
         line("OutFile", outFile) + line("Analysis", "tran 1us 2ms");
}

std::string simPathIn(Layout layout, const ProjectPlan& plan, const ProjectPlan::Profile& profile) {
  const std::string folder = projectFolder(layout, plan.name);
  switch (layout) {
  case Layout::kDesignSimulation:
    return folder + plan.name + "-TervixFiles/" + profile.schematic + "/" + profile.name + ".sim";
  case Layout::kDesignOther:
    return folder + plan.name + "-" + profile.schematic + "-" + profile.name + ".sim";
  case Layout::kProjectSimulation:
    return folder + "profiles/" + profile.name + ".sim";
  default:
    return folder + profile.name + ".sim";
  }
}

std::string writeProject(const TemporaryFolder& folder, Layout layout, const ProjectPlan& plan) {
  const std::string place = projectFolder(layout, plan.name);
  folder.file(place + plan.name + ".dsn", "[Design]\nSchematics = " + listOf(plan.schematics) +
                                              "\nRoot = \"" + plan.root + "\"\n");
  if (layout == Layout::kDesignSimulation)
    folder.folder(place + plan.name + "-TervixFiles");
  if (layout == Layout::kProjectSimulation)
    folder.folder(place + "profiles");
  for (const auto& profile : plan.profiles)
    writeProfile(folder, layout, plan, profile);
  return folder.file(place + plan.name + ".tvp", projectText(layout, plan));
}

} // namespace tervix::testing
