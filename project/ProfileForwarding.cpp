#include "CTervixProject.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/TreeWalk.h"

// Operations of a profile that a client knows by its ".sim" file or by names only.

namespace {

// Calls forward with the profile of a ".sim" file.
template <class Forward>
unsigned long withProfileOfFile(CTervixProject& project, std::string& profileFilePath,
                                Forward forward) {
  CTervixNode* profile = nullptr;
  std::string schematicName;
  std::string profileName;
  if (const unsigned long status =
          project.findProfile(profile, schematicName, profileName, profileFilePath);
      status != 0)
    return status;
  return profile != nullptr ? forward(static_cast<CTervixProfile&>(*profile)) : 0;
}

// The same by names. Deliberate: a miss is a silent success, and clients test the output.
template <class Forward>
unsigned long withNamedProfile(CTervixProject& project, std::string& schematicName,
                               std::string& profileName, Forward forward) {
  CTervixNode* profile = nullptr;
  const unsigned long status = project.findProfile(profile, schematicName, profileName);
  if (profile == nullptr)
    return status == 1 ? 0 : status;
  return forward(static_cast<CTervixProfile&>(*profile));
}

} // namespace

unsigned long CTervixProject::setDatFileForProfile(std::string& datFilePath,
                                                   std::string& profileFilePath) {
  return withProfileOfFile(*this, profileFilePath, [&](CTervixProfile& profile) {
    return profile.setDatFilePath(datFilePath);
  });
}

unsigned long CTervixProject::setDatFileForProfile(std::string& datFilePath,
                                                   std::string& schematicName,
                                                   std::string& profileName) {
  return withNamedProfile(*this, schematicName, profileName, [&](CTervixProfile& profile) {
    return profile.setDatFilePath(datFilePath);
  });
}

unsigned long CTervixProject::setOutFileForProfile(std::string& outFilePath,
                                                   std::string& profileFilePath) {
  return withProfileOfFile(*this, profileFilePath, [&](CTervixProfile& profile) {
    return profile.setOutFilePath(outFilePath);
  });
}

unsigned long CTervixProject::setOutFileForProfile(std::string& outFilePath,
                                                   std::string& schematicName,
                                                   std::string& profileName) {
  return withNamedProfile(*this, schematicName, profileName, [&](CTervixProfile& profile) {
    return profile.setOutFilePath(outFilePath);
  });
}

unsigned long CTervixProject::getTopProfileLevelFile(std::string& file,
                                                     std::string& profileFilePath,
                                                     VARIANTFILE_TYPE type) {
  std::string found;
  const unsigned long status =
      withProfileOfFile(*this, profileFilePath, [&](CTervixProfile& profile) {
        return profile.getTopProfileLevelFile(found, type);
      });
  file = found;
  return status;
}

unsigned long CTervixProject::getNextProfileLevelFile(std::string& file,
                                                      std::string& profileFilePath,
                                                      VARIANTFILE_TYPE type) {
  std::string found;
  const unsigned long status =
      withProfileOfFile(*this, profileFilePath, [&](CTervixProfile& profile) {
        return profile.getNextProfileLevelFile(found, type);
      });
  file = found;
  return status;
}

unsigned long CTervixProject::addProfileLevelFile(std::string& profileFilePath, std::string& file,
                                                  VARIANTFILE_TYPE type, bool updated,
                                                  bool atFront) {
  return withProfileOfFile(*this, profileFilePath, [&](CTervixProfile& profile) {
    return profile.addProfileLevelFile(file, type, updated, atFront);
  });
}

unsigned long CTervixProject::deleteAllProfileLevelFiles(std::string& profileFilePath,
                                                         VARIANTFILE_TYPE type, bool updated) {
  return withProfileOfFile(*this, profileFilePath, [&](CTervixProfile& profile) {
    return profile.deleteAllProfileLevelFiles(type, updated);
  });
}

unsigned long CTervixProject::writeProfileLevelVariants(std::string& profileFilePath) {
  return withProfileOfFile(*this, profileFilePath, [](CTervixProfile& profile) {
    return profile.writeProfileLevelVariants();
  });
}

unsigned long CTervixProject::getTopProfileLevelFileForSch(std::string& file,
                                                           std::string& schematicName,
                                                           std::string& profileName,
                                                           VARIANTFILE_TYPE type) {
  std::string found;
  const unsigned long status =
      withNamedProfile(*this, schematicName, profileName, [&](CTervixProfile& profile) {
        return profile.getTopProfileLevelFile(found, type);
      });
  file = found;
  return status;
}

unsigned long CTervixProject::getNextProfileLevelFileForSch(std::string& file,
                                                            std::string& schematicName,
                                                            std::string& profileName,
                                                            VARIANTFILE_TYPE type) {
  std::string found;
  const unsigned long status =
      withNamedProfile(*this, schematicName, profileName, [&](CTervixProfile& profile) {
        return profile.getNextProfileLevelFile(found, type);
      });
  file = found;
  return status;
}

unsigned long CTervixProject::getProfileLevelFileCount(int& count, std::string& schematicName,
                                                       std::string& profileName,
                                                       VARIANTFILE_TYPE type) {
  return withNamedProfile(*this, schematicName, profileName, [&](CTervixProfile& profile) {
    return profile.numberOfProfileLevelFiles(count, type);
  });
}

unsigned long CTervixProject::getNetFileForProfile(std::string& netFile,
                                                   std::string& profileFilePath) {
  std::string found;
  const unsigned long status =
      withProfileOfFile(*this, profileFilePath, [&](CTervixProfile& profile) {
        // A client may have given the profile another parent.
        auto* const schematic = dynamic_cast<CTervixSchematic*>(tervix::parentOf(profile));
        return schematic != nullptr ? schematic->getSchematicBasedFile(found, SCHEMATIC_FILE_NET)
                                    : 1;
      });
  netFile = found;
  return status;
}

unsigned long CTervixProject::deleteVariantForProfileDispName(std::string& displayName,
                                                              VARIANTFILE_TYPE type,
                                                              std::string& file) {
  unsigned long status = 1;
  TreeWalk::anyProfile(*this, [&](CTervixSchematic&, CTervixProfile& profile) {
    std::string listed;
    if (profile.getDisplayName(listed) != 0 || !tervix::equalsIgnoringCase(listed, displayName))
      return false;
    status = profile.deleteProfileLevelFile(file, type, true);
    return true;
  });
  return status;
}
