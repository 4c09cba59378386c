#include "tools/tervix/VariantListing.h"

#include "tools/tervix/Json.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/Table.h"

namespace tervix::tool {
namespace {

constexpr int kShapeVersion = 1;

void printFiles(std::ostream& out, const std::vector<FileView>& files, const Style& style) {
  Table table;
  for (const FileView& file : files) {
    table.add({{file.kind}, {printable(file.path)}, {printable(file.place)}});
    if (!file.exists)
      table.addToLast({"(missing)", &Style::problem});
  }
  if (files.empty())
    table.add({{"none", &Style::faint}});
  table.print(out, style);
}

Json jsonOfProfile(const VariantListing::OfProfile& profile) {
  return {{"name", profile.name},
          {"displayName", profile.displayName},
          {"schematic", profile.schematic},
          {"includeList", profile.includeList.empty() ? Json() : Json(profile.includeList)},
          {"profileLevelFiles", arrayOf(profile.files, jsonOfVariant)}};
}

} // namespace

void printListing(std::ostream& out, const VariantListing& listing, const Style& style) {
  bool isFirst = true;
  const auto startList = [&](const std::string& owner, const std::string& file) {
    out << (isFirst ? "" : "\n") << owner;
    if (!file.empty())
      out << style.faint("  in " + shownFrom(listing.projectFolder, file));
    out << "\n";
    isFirst = false;
  };
  if (listing.ofDesign) {
    startList(style.heading("design"), listing.projectFile);
    printFiles(out, *listing.ofDesign, style);
  }
  for (const VariantListing::OfProfile& profile : listing.ofProfiles) {
    startList("profile " + style.heading(printable(profile.displayName)), profile.includeList);
    printFiles(out, profile.files, style);
  }
}

std::string jsonOf(const VariantListing& listing) {
  return textOf(Json{
      {"version", kShapeVersion},
      {"project", listing.projectFile},
      {"designLevelFiles", listing.ofDesign ? arrayOf(*listing.ofDesign, jsonOfVariant) : Json()},
      {"profiles", arrayOf(listing.ofProfiles, jsonOfProfile)}});
}

} // namespace tervix::tool
