#include "tests/project/OpenedProject.h"

namespace tervix::testing {

const char* const kOtherError = "10120 Invalid design level variant type.";

std::string lastError() {
  CTervixProject any;
  unsigned long code = 0;
  std::string text;
  any.getLastErrorCode(code);
  any.getLastErrorString(text);
  return std::to_string(code) + " " + text;
}

void recordOtherError() {
  CTervixProject().deleteAllDesignLevelFiles(static_cast<VARIANTFILE_TYPE>(3));
}

void destroySchematics(CTervixProject& project) {
  for (;;) {
    CTervixNode* schematic = nullptr;
    project.getTopSchematic(schematic);
    if (schematic == nullptr)
      return;
    std::string name = nameOfNode(schematic);
    project.deleteSchematic(name);
  }
}

namespace {

std::string lineOf(CTervixProfile& profile) {
  const std::string displayName = textOf(profile, &CTervixProfile::getDisplayName);
  bool active = false;
  profile.isActive(active);
  return "  " + nameOfNode(&profile) + (displayName.empty() ? "" : " " + displayName) +
         (active ? " active" : "");
}

} // namespace

Lines treeOf(CTervixProject& project) {
  Lines lines;
  CTervixNode* node = nullptr;
  for (project.getTopSchematic(node); node != nullptr; project.getNextSchematic(node)) {
    auto& schematic = static_cast<CTervixSchematic&>(*node);
    bool root = false;
    schematic.isRoot(root);
    lines.push_back(nameOfNode(node) + (root ? " root" : ""));
    CTervixNode* profile = nullptr;
    for (schematic.getTopProfile(profile); profile != nullptr; schematic.getNextProfile(profile))
      lines.push_back(lineOf(static_cast<CTervixProfile&>(*profile)));
  }
  return lines;
}

Lines designLevelFiles(CTervixProject& project, VARIANTFILE_TYPE type) {
  Lines files;
  std::string file;
  for (project.getTopDesignLevelFile(file, type); !file.empty();
       project.getNextDesignLevelFile(file, type))
    files.push_back(file);
  return files;
}

PROJECT_TYPE projectTypeIn(const CTervixProject& project) {
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  project.getProjectType(type);
  return type;
}

int frontEndIn(const CTervixProject& project) {
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  project.getFrontEndId(frontEnd);
  return frontEnd;
}

CTervixSchematic* addSchematic(CTervixProject& project, std::string name) {
  CTervixNode* schematic = nullptr;
  project.addSchematic(schematic, name);
  return static_cast<CTervixSchematic*>(schematic);
}

CTervixProfile* addProfile(CTervixProject& project, std::string schematic, std::string name) {
  CTervixNode* profile = nullptr;
  bool added = false;
  project.addProfile(profile, added, schematic, name);
  return static_cast<CTervixProfile*>(profile);
}

CTervixSchematic* schematicIn(CTervixProject& project, std::string name) {
  CTervixNode* schematic = nullptr;
  project.findSchematic(schematic, name);
  return static_cast<CTervixSchematic*>(schematic);
}

CTervixProfile* profileIn(CTervixProject& project, std::string schematic, std::string name) {
  CTervixNode* profile = nullptr;
  project.findProfile(profile, schematic, name);
  return static_cast<CTervixProfile*>(profile);
}

} // namespace tervix::testing
