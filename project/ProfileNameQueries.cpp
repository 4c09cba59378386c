#include "CTervixProject.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"

// The names of the profiles under a schematic, along that schematic's own cursor.

namespace {

using Step = unsigned long (CTervixSchematic::*)(CTervixNode*&);

constexpr Step kTop = &CTervixSchematic::getTopProfile;
constexpr Step kNext = &CTervixSchematic::getNextProfile;

// Takes one step and calls fill with schematic and profile; at the end there is nothing to fill.
template <class Fill>
unsigned long stepTo(CTervixProject& project, std::string& schematicName, Step step, Fill fill) {
  CTervixNode* node = nullptr;
  if (const unsigned long status = project.findSchematic(node, schematicName); status != 0)
    return status;
  auto& schematic = static_cast<CTervixSchematic&>(*node);
  CTervixNode* profile = nullptr;
  if (const unsigned long status = (schematic.*step)(profile); status != 0)
    return status;
  return profile != nullptr ? fill(schematic, static_cast<CTervixProfile&>(*profile)) : 0;
}

unsigned long stepToName(CTervixProject& project, std::string& name, std::string& schematicName,
                         Step step) {
  return stepTo(project, schematicName, step,
                [&](CTervixSchematic&, CTervixProfile& profile) { return profile.getName(name); });
}

unsigned long stepToDisplayName(CTervixProject& project, std::string& displayName,
                                std::string& schematicName, Step step) {
  return stepTo(project, schematicName, step, [&](CTervixSchematic&, CTervixProfile& profile) {
    return profile.getDisplayName(displayName);
  });
}

unsigned long stepToBothNames(CTervixProject& project, std::string& displayName, std::string& name,
                              std::string& schematicName, Step step) {
  return stepTo(project, schematicName, step, [&](CTervixSchematic&, CTervixProfile& profile) {
    const unsigned long first = profile.getDisplayName(displayName);
    const unsigned long second = profile.getName(name);
    return first != 0 ? first : second;
  });
}

unsigned long markerNameOf(CTervixProject& project, std::string& name,
                           const CTervixSchematic& schematic, const CTervixProfile& profile) {
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  if (const unsigned long status = project.getFrontEndId(frontEnd); status != 0)
    return status;
  if (frontEnd != FRONTEND_ID_PROJECT_FILE && frontEnd != FRONTEND_ID_DESIGN_FILE)
    return 1;
  const std::string own = tervix::nameOf(profile);
  std::string design;
  project.getDesignName(design);
  const bool isLong = frontEnd == FRONTEND_ID_DESIGN_FILE && !tervix::isSimulation(project);
  name = isLong ? tervix::longNameOf(design, tervix::nameOf(schematic), own) : own;
  return 0;
}

unsigned long stepToMarkerName(CTervixProject& project, std::string& name,
                               std::string& schematicName, Step step) {
  return stepTo(project, schematicName, step,
                [&](CTervixSchematic& schematic, CTervixProfile& profile) {
                  return markerNameOf(project, name, schematic, profile);
                });
}

} // namespace

unsigned long CTervixProject::getTopProfNameForSch(std::string& name, std::string& schematicName) {
  return stepToName(*this, name, schematicName, kTop);
}
unsigned long CTervixProject::getNextProfNameForSch(std::string& name, std::string& schematicName) {
  return stepToName(*this, name, schematicName, kNext);
}
unsigned long CTervixProject::getTopProfDispNameForSch(std::string& displayName,
                                                       std::string& schematicName) {
  return stepToDisplayName(*this, displayName, schematicName, kTop);
}
unsigned long CTervixProject::getNextProfDispNameForSch(std::string& displayName,
                                                        std::string& schematicName) {
  return stepToDisplayName(*this, displayName, schematicName, kNext);
}
unsigned long CTervixProject::getTopProfDispNameProfNameForSch(std::string& displayName,
                                                               std::string& name,
                                                               std::string& schematicName) {
  return stepToBothNames(*this, displayName, name, schematicName, kTop);
}
unsigned long CTervixProject::getNextProfDispNameProfNameForSch(std::string& displayName,
                                                                std::string& name,
                                                                std::string& schematicName) {
  return stepToBothNames(*this, displayName, name, schematicName, kNext);
}
unsigned long CTervixProject::getTopProfMarkerNameForSch(std::string& name,
                                                         std::string& schematicName) {
  return stepToMarkerName(*this, name, schematicName, kTop);
}
unsigned long CTervixProject::getNextProfMarkerNameForSch(std::string& name,
                                                          std::string& schematicName) {
  return stepToMarkerName(*this, name, schematicName, kNext);
}
