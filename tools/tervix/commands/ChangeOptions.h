#pragma once

#include <memory>
#include <optional>
#include <string>

#include <CLI/App.hpp>

#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// What every command that changes a project takes.
struct ChangeOptions {
  std::string file;
  std::optional<int> frontEnd;
  bool dryRun = false;
  bool asJson = false;
  bool keepOld = false;
};

void addChangeOptions(CLI::App& command, ChangeOptions& options);
void addKeepOldOption(CLI::App& command, ChangeOptions& options);

// Prints the plan, and unless this is a dry run carries it out first.
void finish(const ChangePlan& plan, const ChangeOptions& options);

} // namespace tervix::tool
