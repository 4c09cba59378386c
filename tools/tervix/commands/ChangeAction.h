#pragma once

#include <string>

#include <CLI/App.hpp>

#include "CTervixProject.h"
#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// The names that a person gave with an action; empty without.
struct ChangedNames {
  std::string schematic;
  std::string name;
  std::string newName;
};

// One action that changes a project: `tervix profile rename` and the like.
struct ChangeAction {
  const char* name;
  const char* help;
  const char* nameHelp;    // what NAME is; null for an action without one
  const char* newNameHelp; // what NEW is; null for an action without one
  bool takesSchematic;
  bool removesFiles; // and so takes --keep-old
  ChangePlan (*plan)(CTervixProject&, const ChangedNames&);
};

// Makes the command of the action below that of what it changes.
void addChangeAction(CLI::App& command, const ChangeAction& action);

} // namespace tervix::tool
