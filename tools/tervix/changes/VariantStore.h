#pragma once

#include <memory>
#include <string>
#include <vector>

#include "CTervixProject.h"
#include "tools/tervix/ProjectView.h"
#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// Whose model files are meant. An empty schematic stands for the only one that fits.
struct VariantOwner {
  bool isDesign;
  std::string schematic;
  std::string profile;
};

// The model files of a design or profile, as the file that keeps them has them. Nothing is written;
// a plan takes the changes over.
class VariantStore {
public:
  VariantStore() = default;
  virtual ~VariantStore() = default;
  VariantStore(const VariantStore&) = delete;
  VariantStore& operator=(const VariantStore&) = delete;

  virtual std::string owner() const = 0;  // "profile TOP-tran"
  virtual std::string folder() const = 0; // from which relative paths start

  virtual std::vector<std::string> paths(VARIANTFILE_TYPE kind) const = 0;
  // Why the library would not load such an entry; null when it would.
  virtual const char* reasonAgainst(VARIANTFILE_TYPE kind, const std::string& path) const = 0;
  virtual void add(VARIANTFILE_TYPE kind, const std::string& path) = 0;
  virtual void remove(VARIANTFILE_TYPE kind, std::size_t index) = 0;

  virtual void planInto(ChangePlan& plan) const = 0;
  // Throws a Failure unless the library has loaded what the store holds.
  virtual void requireLoaded(const ProjectView& project) const = 0;
};

// Throws a Failure for a profile that is not there, one of a layout that keeps none for profiles,
// and a list that cannot be read.
std::unique_ptr<VariantStore> variantStoreOf(CTervixProject& project, const VariantOwner& owner);

} // namespace tervix::tool
