#include "tools/tervix/commands/LibCommand.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>

#include "foundation/platform/Console.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/VariantKinds.h"
#include "tools/tervix/VariantListing.h"
#include "tools/tervix/changes/Lookup.h"
#include "tools/tervix/changes/ProjectLayout.h"
#include "tools/tervix/changes/VariantChanges.h"
#include "tools/tervix/commands/ChangeOptions.h"

namespace tervix::tool {
namespace {

// What tells whose files are meant, and of which kind.
struct OwnerOptions {
  bool isDesign = false;
  std::optional<std::string> schematic;
  std::string kind;
};

CLI::Option* addOwnerOptions(CLI::App& command, OwnerOptions& options) {
  command.add_flag("--design", options.isDesign, "The files of the whole design, no profile's");
  command.add_option("--schematic", options.schematic, "The schematic that holds the profile")
      ->excludes("--design")
      ->option_text("S");
  std::vector<std::string> kinds;
  std::transform(kVariantKinds.begin(), kVariantKinds.end(), std::back_inserter(kinds),
                 [](const VariantKind& kind) { return kind.name; });
  return command.add_option("--kind", options.kind, "library, stimulus or include")
      ->check(CLI::IsMember(kinds))
      ->option_text("K");
}

VARIANTFILE_TYPE kindNamed(const std::string& name) {
  return std::find_if(kVariantKinds.begin(), kVariantKinds.end(),
                      [&](const VariantKind& kind) { return kind.name == name; })
      ->type;
}

struct ListOptions : OpenOptions, OwnerOptions {
  std::optional<std::string> profile;
};

std::vector<FileView> ofKind(const std::vector<FileView>& files, const std::string& kind) {
  std::vector<FileView> chosen;
  std::copy_if(files.begin(), files.end(), std::back_inserter(chosen),
               [&](const FileView& file) { return kind.empty() || file.kind == kind; });
  return chosen;
}

// The library takes a list that it cannot read for an empty one.
void requireReadable(const std::string& includeList) {
  namespace fs = std::filesystem;
  std::error_code error;
  std::string path = includeList;
  bool isFile = false;
  filePathExists(path, isFile);
  if (!isFile && fs::symlink_status(includeList, error).type() != fs::file_type::not_found)
    throw Failure("the include list " + inQuotes(includeList) + " could not be read");
}

VariantListing::OfProfile ofProfile(const ProjectLayout& layout, const FoundProfile& found,
                                    const std::string& kind) {
  const auto& [schematic, profile] = found;
  const std::string includeList = layout.placesOf(schematic.name, profile.name).includeList;
  if (!includeList.empty())
    requireReadable(includeList);
  return {schematic.name, profile.name, profile.displayName, includeList,
          ofKind(profile.variants, kind)};
}

std::vector<FoundProfile> profilesFor(const ProjectView& project, const ListOptions& options) {
  if (options.isDesign)
    return {};
  if (options.profile)
    return {profileNamed(project, options.schematic.value_or(""), *options.profile)};
  const SchematicView* only =
      options.schematic ? &schematicNamed(project, *options.schematic) : nullptr;
  std::vector<FoundProfile> profiles;
  for (const SchematicView& schematic : project.schematics)
    if (only == nullptr || only == &schematic)
      for (const ProfileView& profile : schematic.profiles)
        profiles.push_back({schematic, profile});
  return profiles;
}

void listVariants(const ListOptions& options) {
  CTervixProject& project = openProject(options.file, options.frontEnd);
  const ProjectView view = viewOf(project);
  const ProjectLayout layout = layoutOf(project);
  VariantListing listing{view.path, view.folder, std::nullopt, {}};
  if (options.isDesign || (!options.profile && !options.schematic))
    listing.ofDesign = ofKind(view.variants, options.kind);
  for (const FoundProfile& found : profilesFor(view, options))
    listing.ofProfiles.push_back(ofProfile(layout, found, options.kind));
  if (options.asJson)
    std::cout << jsonOf(listing) << "\n";
  else
    printListing(std::cout, listing, Style(platform::standardOutputTakesColour()));
}

// With --design the path comes where the profile stands otherwise.
struct EditOptions : ChangeOptions, OwnerOptions {
  std::string first;
  std::optional<std::string> second;

  VariantOwner owner() const {
    if (!isDesign && !second)
      throw Failure("name the profile and then the PATH, or give --design and the PATH alone",
                    kWrongUsage);
    if (isDesign && second)
      throw Failure("with --design no profile is named, only the PATH", kWrongUsage);
    return {isDesign, schematic.value_or(""), isDesign ? "" : first};
  }
  const std::string& path() const { return isDesign ? first : *second; }
  std::vector<std::string> request(const char* what) const {
    return {what, kind, schematic.value_or(""), isDesign ? "" : first, path()};
  }
};

void addVariant(EditOptions& options) {
  const VariantOwner owner = options.owner();
  if (settleBefore(options.request("lib add"), options))
    return;
  VariantAddition addition;
  addition.plan = steadyPlan([&] {
    addition = planVariantAdd(openProject(options.file, options.frontEnd), owner,
                              kindNamed(options.kind), options.path());
    return addition.plan;
  });
  addition.plan.request = options.request("lib add");
  finish(addition.plan, options);
  if (!addition.warning.empty())
    std::cerr << "tervix: warning: " << addition.warning << "\n";
}

void removeVariant(EditOptions& options) {
  const VariantOwner owner = options.owner();
  if (settleBefore(options.request("lib remove"), options))
    return;
  ChangePlan plan = steadyPlan([&] {
    return planVariantRemove(openProject(options.file, options.frontEnd), owner,
                             kindNamed(options.kind), options.path());
  });
  plan.request = options.request("lib remove");
  finish(plan, options);
}

void addEdit(CLI::App& command, const char* name, const char* help, void (*edit)(EditOptions&)) {
  auto options = std::make_shared<EditOptions>();
  CLI::App* sub = command.add_subcommand(name, help);
  addChangeOptions(*sub, *options);
  addOwnerOptions(*sub, *options)->required();
  sub->add_option("PROFILE", options->first, "The profile; with --design, the PATH comes here")
      ->required()
      ->type_name("");
  sub->add_option("PATH", options->second,
                  "The file as it is to be written: a relative path starts from the profile's own "
                  "folder, with --design from the project's")
      ->type_name("");
  sub->callback([options, edit] { edit(*options); });
}

void addList(CLI::App& command) {
  auto options = std::make_shared<ListOptions>();
  CLI::App* sub = command.add_subcommand("list", "List the files that design and profiles name");
  addOpenOptions(*sub, *options);
  addOwnerOptions(*sub, *options);
  sub->add_option("PROFILE", options->profile, "Only this profile's files")
      ->excludes("--design")
      ->type_name("");
  sub->callback([options] { listVariants(*options); });
}

} // namespace

void addLibCommand(CLI::App& app) {
  CLI::App* command =
      app.add_subcommand("lib", "List, add, remove library, stimulus and include files");
  command->require_subcommand(1);
  addList(*command);
  addEdit(*command, "add", "Add a file to those of a profile or the design", addVariant);
  addEdit(*command, "remove", "Remove a file from those of a profile or the design; it stays",
          removeVariant);
}

} // namespace tervix::tool
