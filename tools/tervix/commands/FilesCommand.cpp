#include "tools/tervix/commands/FilesCommand.h"

#include <iostream>
#include <memory>

#include "foundation/platform/Console.h"
#include "tools/tervix/FileListing.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/changes/Lookup.h"
#include "tools/tervix/commands/OpenOptions.h"

namespace tervix::tool {
namespace {

struct FilesOptions : OpenOptions {
  std::optional<std::string> schematic;
  std::optional<std::string> profile;
};

// What of a project a person asks for; everything without a word.
FileListing listingOf(const ProjectView& project, const FilesOptions& options) {
  FileListing listing{project, {}, {}};
  if (options.profile) {
    const auto [schematic, profile] =
        profileNamed(project, options.schematic.value_or(""), *options.profile);
    listing.profiles.push_back({schematic, profile});
    return listing;
  }
  const auto list = [&](const SchematicView& schematic) {
    listing.schematics.emplace_back(schematic);
    for (const ProfileView& profile : schematic.profiles)
      listing.profiles.push_back({schematic, profile});
  };
  if (options.schematic)
    list(schematicNamed(project, *options.schematic));
  else
    for (const SchematicView& schematic : project.schematics)
      list(schematic);
  return listing;
}

void listFiles(const FilesOptions& options) {
  const ProjectView project = viewOf(openProject(options.file, options.frontEnd));
  const FileListing listing = listingOf(project, options);
  if (options.asJson)
    std::cout << jsonOf(listing) << "\n";
  else
    printListing(std::cout, listing, Style(platform::standardOutputTakesColour()));
}

} // namespace

void addFilesCommand(CLI::App& app) {
  auto options = std::make_shared<FilesOptions>();
  CLI::App* command =
      app.add_subcommand("files", "List where the files of schematics and profiles lie");
  addOpenOptions(*command, *options);
  command->add_option("--schematic", options->schematic, "Only this schematic and its profiles")
      ->option_text("S");
  command->add_option("--profile", options->profile, "Only this profile, by either of its names")
      ->option_text("P");
  command->callback([options] { listFiles(*options); });
}

} // namespace tervix::tool
