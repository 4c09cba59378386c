#pragma once

#include <array>

#include "TervixFiles.h"

namespace tervix::tool {

// The kinds of model files, in the order in which they are shown, and what a person calls them.
struct VariantKind {
  VARIANTFILE_TYPE type;
  const char* name;
};

inline constexpr std::array<VariantKind, 3> kVariantKinds = {
    {{VARIANTFILE_TYPE_LIBRARY, "library"},
     {VARIANTFILE_TYPE_STIMULUS, "stimulus"},
     {VARIANTFILE_TYPE_INCLUDE, "include"}}};

inline const char* nameOf(VARIANTFILE_TYPE type) {
  return kVariantKinds.at(static_cast<std::size_t>(type)).name;
}

} // namespace tervix::tool
