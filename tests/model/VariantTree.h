#pragma once

#include <string>
#include <vector>

#include "tests/model/ModelTree.h"

namespace tervix::testing {

constexpr VARIANTFILE_TYPE kEveryKind[] = {VARIANTFILE_TYPE_LIBRARY, VARIANTFILE_TYPE_STIMULUS,
                                           VARIANTFILE_TYPE_INCLUDE};
constexpr auto kNoKind = static_cast<VARIANTFILE_TYPE>(3);

// The profile tran of a simulation project, whose include list is listPath().
class VariantTree : public ModelTree {
protected:
  VariantTree() {
    makeTop(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_SIMULATION);
    folder_.folder("P/prj-TervixFiles/TOP/tran");
  }

  std::string listPath() const { return topFolder() + "/tran/tran_profile.inc"; }
  void writeList(const std::string& content) const { writeFile(listPath(), content); }

  // The profile as it is after opening, which reads its include list.
  CTervixProfile& open() {
    profile_ = makeProfile(topFolder() + "/tran.sim");
    forgetLastError();
    return *profile_;
  }

  static std::vector<std::string> filesOf(CTervixProfile& profile, VARIANTFILE_TYPE type) {
    std::vector<std::string> files;
    std::string file;
    EXPECT_EQ(profile.getTopProfileLevelFile(file, type), 0U);
    while (!file.empty()) {
      files.push_back(file);
      EXPECT_EQ(profile.getNextProfileLevelFile(file, type), 0U);
    }
    return files;
  }

  static bool isUpdated(CTervixProfile& profile) {
    bool updated = false;
    profile.areVariantsUpdated(updated);
    return updated;
  }

  static unsigned long add(CTervixProfile& profile, const std::string& name, VARIANTFILE_TYPE type,
                           bool updated = true, bool atFront = false) {
    std::string file = name;
    return profile.addProfileLevelFile(file, type, updated, atFront);
  }

  std::unique_ptr<CTervixProfile> profile_;
};

using Files = std::vector<std::string>;

} // namespace tervix::testing
