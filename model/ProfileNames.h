#pragma once

#include <string>
#include <string_view>

#include "foundation/Text.h"

namespace tervix {

// How the names of a profile's files are composed.

constexpr const char* kSimEnding = ".sim";
constexpr const char* kMarkerEnding = ".mrk";
constexpr std::size_t kEndingLength = 4; // of either
constexpr const char* kFilesFolderEnding = "-TervixFiles";

// DESIGN-SCHEMATIC-PROFILE, the name of a profile among the files of its design.
inline std::string longNameOf(const std::string& design, const std::string& schematic,
                              const std::string& profile) {
  return joined({design, "-", schematic, "-", profile});
}

// The netlist-side files of a profile that has no folder of its own are named after its ".sim"
// file, all others after the profile.
inline std::string fileBesideSim(const std::string& stem, std::string_view suffix) {
  const bool isNetlistSide = equalsIgnoringCase(suffix, "1op") ||
                             equalsIgnoringCase(suffix, "cir") || equalsIgnoringCase(suffix, "mif");
  return joined({stem, isNetlistSide ? ".sim." : ".", suffix});
}

inline std::string fileInFolder(const std::string& stem, std::string_view suffix) {
  return joined({stem, ".", suffix});
}

inline std::string includeListIn(const std::string& folder, const std::string& stem) {
  return joined({folder, "/", stem, "_profile.inc"});
}

// The folder of a project's files, for a project named or based on stem.
inline std::string filesFolder(const std::string& stem) {
  return stem + kFilesFolderEnding;
}

} // namespace tervix
