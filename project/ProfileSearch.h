#pragma once

#include <string>

#include "CTervixProject.h"

namespace tervix {

// The first profile in tree order with that name, or with that path for its ".sim" file; null when
// there is none.
CTervixProfile* profileNamed(const CTervixProject& project, const std::string& name);
CTervixProfile* profileWithPath(const CTervixProject& project, const std::string& simPath);

} // namespace tervix
