#include "tools/tervix/FileListing.h"

#include <algorithm>

#include "tools/tervix/Json.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/Table.h"
#include "tools/tervix/UtcTime.h"

namespace tervix::tool {
namespace {

constexpr int kShapeVersion = 1;

Json jsonOfFile(const FileView& file) {
  const auto details = detailsOf(file);
  return {{"type", file.kind},
          {"path", file.place},
          {"exists", file.exists},
          {"size", details ? Json(details->size) : Json()},
          {"modified", details ? Json(utcTime(details->lastModified)) : Json()}};
}

Json jsonOfSchematic(const SchematicView& schematic) {
  return {{"name", schematic.name},
          {"root", schematic.root},
          {"folder", schematic.folder},
          {"files", arrayOf(schematic.files, jsonOfFile)}};
}

Json jsonOfProfile(const FoundProfile& found) {
  const ProfileView& profile = found.profile;
  return {{"name", profile.name},
          {"displayName", profile.displayName},
          {"schematic", found.schematic.name},
          {"active", profile.active},
          {"folder", profile.folder},
          {"files", arrayOf(profile.files, jsonOfFile)}};
}

class ListingPrinter {
public:
  ListingPrinter(std::ostream& out, const FileListing& listing, const Style& style)
      : out_(out), listing_(listing), style_(style) {}

  // A schematic of which only profiles are asked for has no table.
  void print() {
    std::size_t profile = 0;
    const auto& profiles = listing_.profiles;
    for (const SchematicView& schematic : listing_.schematics) {
      printSchematic(schematic);
      for (; profile < profiles.size() && &profiles[profile].schematic == &schematic; ++profile)
        printProfile(profiles[profile].profile);
    }
    for (; profile < profiles.size(); ++profile)
      printProfile(profiles[profile].profile);
  }

private:
  void printSchematic(const SchematicView& schematic) {
    startTable("schematic ", schematic.name);
    out_ << (schematic.root ? "  " + style_.accent("root") : "") << "\n";
    printFiles(schematic.files);
  }

  void printProfile(const ProfileView& profile) {
    startTable("profile ", profile.displayName);
    out_ << (profile.active ? "  " + style_.accent("active") : "") << "\n";
    printFiles(profile.files);
  }

  void startTable(const char* kind, const std::string& name) {
    out_ << (isFirst_ ? "" : "\n") << kind << style_.heading(printable(name));
    isFirst_ = false;
  }

  void printFiles(const std::vector<FileView>& files) {
    Table table;
    table.add({{"type", &Style::faint},
               {"size", &Style::faint, true},
               {"modified", &Style::faint},
               {"file", &Style::faint}});
    for (const FileView& file : files) {
      const auto details = detailsOf(file);
      const Table::Mark mark = details ? nullptr : &Style::faint;
      table.add({{file.kind, mark},
                 {details ? std::to_string(details->size) : "-", mark, true},
                 {details ? utcTime(details->lastModified) : "-", mark},
                 {shownFrom(listing_.project.folder, file.place), mark}});
    }
    table.print(out_, style_);
  }

  std::ostream& out_;
  const FileListing& listing_;
  const Style& style_;
  bool isFirst_ = true;
};

} // namespace

std::optional<platform::FileDetails> detailsOf(const FileView& file) {
  return file.exists ? platform::detailsOf(file.place) : std::nullopt;
}

void printListing(std::ostream& out, const FileListing& listing, const Style& style) {
  ListingPrinter(out, listing, style).print();
}

std::string jsonOf(const FileListing& listing) {
  return textOf(Json{{"version", kShapeVersion},
                     {"project", listing.project.path},
                     {"schematics", arrayOf(listing.schematics, jsonOfSchematic)},
                     {"profiles", arrayOf(listing.profiles, jsonOfProfile)}});
}

} // namespace tervix::tool
