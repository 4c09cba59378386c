#include "tools/tervix/changes/VariantStore.h"

#include <algorithm>
#include <filesystem>

#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/VariantKinds.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/IncludeList.h"
#include "tools/tervix/changes/Lookup.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/OpenFormats.h"
#include "tools/tervix/changes/ProjectLayout.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

using Paths = std::vector<std::string>;

void requireSame(const VariantStore& store, VARIANTFILE_TYPE kind, const Paths& expected,
                 const std::vector<FileView>& loaded) {
  Paths found;
  for (const FileView& file : loaded)
    if (file.kind == nameOf(kind))
      found.push_back(file.path);
  if (found != expected)
    throw Failure("the changed project would not list the files of " + store.owner() +
                  " as it should");
}

// In the project file.
class DesignVariants : public VariantStore {
public:
  explicit DesignVariants(const ProjectLayout& layout)
      : layout_(layout), file_(layout.projectFile) {}

  std::string owner() const override { return "the design"; }
  std::string folder() const override { return layout_.folder; }
  Paths paths(VARIANTFILE_TYPE kind) const override { return file_.modelFiles(kind); }
  const char* reasonAgainst(VARIANTFILE_TYPE /*kind*/, const std::string& /*path*/) const override {
    return nullptr;
  }
  void add(VARIANTFILE_TYPE kind, const std::string& path) override {
    file_.addModelFile(kind, path);
  }
  void remove(VARIANTFILE_TYPE kind, std::size_t index) override {
    file_.removeModelFile(kind, index);
  }

  void planInto(ChangePlan& plan) const override {
    plan.rewritten.push_back({layout_.projectFile, file_.text()});
  }

  // Of names that differ in case only the library keeps the first.
  void requireLoaded(const ProjectView& project) const override {
    for (const VariantKind& kind : kVariantKinds) {
      Paths expected;
      for (const std::string& path : paths(kind.type))
        if (std::none_of(expected.begin(), expected.end(),
                         [&](const std::string& kept) { return isSameName(kept, path); }))
          expected.push_back(path);
      requireSame(*this, kind.type, expected, project.variants);
    }
  }

private:
  ProjectLayout layout_;
  OpenFormatFile file_;
};

bool isThere(const std::string& path) {
  std::error_code error;
  return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

// In the profile's include list, which is there only while it has something to say.
class ProfileVariants : public VariantStore {
public:
  ProfileVariants(const ProfilePlaces& places, const FoundProfile& found)
      : folder_(places.folder), path_(places.includeList), schematic_(found.schematic.name),
        profile_(found.profile.name), displayName_(found.profile.displayName),
        list_(isThere(path_) ? contentOf(path_) : std::string()) {}

  std::string owner() const override { return "profile " + displayName_; }
  std::string folder() const override { return folder_; }
  Paths paths(VARIANTFILE_TYPE kind) const override { return list_.paths(kind); }
  const char* reasonAgainst(VARIANTFILE_TYPE kind, const std::string& path) const override {
    return reasonAgainstEntry(kind, path);
  }
  void add(VARIANTFILE_TYPE kind, const std::string& path) override { list_.add(kind, path); }
  void remove(VARIANTFILE_TYPE kind, std::size_t index) override { list_.remove(kind, index); }

  void planInto(ChangePlan& plan) const override {
    if (!isThere(path_)) {
      if (!isThere(folder_))
        plan.madeFolders.push_back(folder_);
      plan.made.push_back({path_, "", list_.text(), false});
    } else if (!list_.text().empty()) {
      plan.rewritten.push_back({path_, list_.text()});
    } else {
      plan.removed.push_back(path_);
      if (std::distance(fs::directory_iterator(folder_), fs::directory_iterator()) == 1)
        plan.removedFolders.push_back(folder_);
    }
  }

  void requireLoaded(const ProjectView& project) const override {
    // A list that is to go is still there when the change is checked.
    if (list_.text().empty())
      return;
    const ProfileView& profile = profileNamed(project, schematic_, profile_).profile;
    for (const VariantKind& kind : kVariantKinds)
      requireSame(*this, kind.type, paths(kind.type), profile.variants);
  }

private:
  std::string folder_;
  std::string path_;
  std::string schematic_;
  std::string profile_;
  std::string displayName_;
  IncludeList list_;
};

} // namespace

std::unique_ptr<VariantStore> variantStoreOf(CTervixProject& project, const VariantOwner& owner) {
  const ProjectLayout layout = layoutOf(project);
  if (owner.isDesign)
    return std::make_unique<DesignVariants>(layout);
  const ProjectView view = viewOf(project);
  const FoundProfile found = profileNamed(view, owner.schematic, owner.profile);
  const ProfilePlaces places = layout.placesOf(found.schematic.name, found.profile.name);
  if (places.includeList.empty())
    throw Failure("profile " + inQuotes(found.profile.displayName) +
                  " has no list of its own: only projects with a folder for each profile keep "
                  "them\nUse --design for a file that all profiles see.");
  return std::make_unique<ProfileVariants>(places, found);
}

} // namespace tervix::tool
