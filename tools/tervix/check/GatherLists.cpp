#include <array>
#include <string_view>

#include "readers/formats/Texts.h"
#include "tools/tervix/check/Gathering.h"
#include "tools/tervix/check/Paths.h"

namespace tervix::tool {
namespace {

// What the project file says about files; front end 1 reads the resources alone.
struct Item {
  std::string_view section;
  std::string_view item;
  Role role;
  bool isForFrontEnd1;
};

constexpr std::array<Item, 6> kItems = {
    {{"Design Resources", "Files", Role::kResource, false},
     {"Design Resources", "TERVIX_Output_File", Role::kOutput, false},
     {"Simulation Profiles", "Files", Role::kProfile, false},
     {"Tervix Resources", "Model Libraries", Role::kLibrary, true},
     {"Tervix Resources", "Stimulus Files", Role::kStimulus, true},
     {"Tervix Resources", "Include Files", Role::kInclude, true}}};

using Texts = std::vector<formats::PlacedText>;

void takeReference(ProjectFacts& facts, const formats::PlacedText& text) {
  for (const Item& item : kItems) {
    const bool isMeant = text.section == item.section && text.item == item.item &&
                         (item.isForFrontEnd1 || facts.isFrontEnd2());
    if (!isMeant || text.text.empty())
      continue;
    // Of the design's files the first ".dsn" file is the design.
    const bool isDesign =
        item.role == Role::kResource && facts.designFile.empty() && endsWith(text.text, ".dsn");
    const Reference& reference = facts.refer(isDesign ? Role::kDesign : item.role,
                                             {facts.layout.projectFile, text.line}, text.text);
    if (isDesign)
      facts.designFile = reference.target;
  }
}

void takeDesign(ProjectFacts& facts, const Texts& design) {
  for (const formats::PlacedText& text : design) {
    const Place place{facts.designFile, text.line};
    if (text.section != "Design")
      continue;
    if (text.item == "Schematics" && !text.text.empty()) // none can be without a name
      facts.addSchematic(text.text, place);
    if (text.item == "Root") {
      facts.rootSchematic = text.text;
      facts.rootPlace = place;
    }
  }
}

} // namespace

void gatherLists(ProjectFacts& facts, const std::vector<formats::PlacedText>& project) {
  for (const formats::PlacedText& text : project) {
    takeReference(facts, text);
    if (facts.isFrontEnd2() && text.section == "Simulation Profiles" && text.item == "Active") {
      facts.activeProfile = text.text;
      facts.activePlace = {facts.layout.projectFile, text.line};
    }
  }
  if (!facts.isFrontEnd2())
    facts.addSchematic(facts.layout.design, {});
  else if (!facts.designFile.empty() && facts.index.isFile(facts.designFile)) {
    if (const auto texts = formats::readPlacedTexts(facts.designFile))
      takeDesign(facts, *texts);
    else
      facts.unread.push_back({facts.designFile, 0});
  }
}

} // namespace tervix::tool
