#include "CTervixProject.h"

#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "model/TreeWalk.h"

CTervixProject::CTervixProject() {
  setType(NODE_TYPE_PROJECT);
}

// The copy shares the schematics; see the destructor.
CTervixProject::CTervixProject(const CTervixProject& other) = default;

CTervixProject::CTervixProject(const char* path, FRONTEND_ID frontEndId, bool flag,
                               const char* extra)
    : CTervixProject() {
  if (path == nullptr)
    return;
  std::string normal = tervix::toForwardSlashes(path);
  if (frontEndId != FRONTEND_ID_UNSET) {
    if (!tervix::contains(tervix::toLowerCase(normal), ".tvp"))
      return;
    initializationPath_ = path;
    std::string projectName = extra != nullptr ? extra : "";
    setProjectInfoForTvp(normal, frontEndId, projectName, flag);
    return;
  }
  const bool isSim = tervix::contains(normal, ".sim");
  openedFromRunFile_ =
      isSim || tervix::contains(normal, ".aap") || tervix::contains(normal, ".$ap");
  if (isSim)
    setProjectInfoForSim(normal);
  else if (openedFromRunFile_)
    setProjectInfoForAap(normal);
}

// Deliberate: schematics are forgotten, not destroyed, since copies of a project share them.
CTervixProject::~CTervixProject() {
  deleteAllSchematics();
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment,misc-unconventional-assign-operator)
CTervixProject& CTervixProject::operator=(const CTervixProject&) {
  return *this;
}
unsigned long CTervixProject::clone(CTervixProject&) {
  return 0;
}

unsigned long CTervixProject::getLastErrorCode(unsigned long& code) {
  return tervix::getLastErrorCode(code);
}
unsigned long CTervixProject::getLastErrorString(std::string& text) {
  return tervix::getLastErrorString(text);
}

unsigned long CTervixProject::writeVariants() {
  for (CTervixSchematic& schematic : TreeWalk::schematicsOf(*this))
    schematic.writeVariants();
  return 0;
}

unsigned long CTervixProject::readVariants() {
  for (CTervixSchematic& schematic : TreeWalk::schematicsOf(*this))
    schematic.readVariants();
  return 0;
}
