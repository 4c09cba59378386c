#pragma once

#include <string>
#include <vector>

#include <CLI/App.hpp>

#include "tools/tervix/changes/ChangePlan.h"
#include "tools/tervix/commands/OpenOptions.h"

namespace tervix::tool {

// What every command that changes a project takes.
struct ChangeOptions : OpenOptions {
  bool dryRun = false;
  bool keepOld = false;
};

void addChangeOptions(CLI::App& command, ChangeOptions& options);
void addKeepOldOption(CLI::App& command, ChangeOptions& options);

// What is done before a command plans its change: an interrupted one is settled, or told of in a
// dry run. Gives true when it was the change that is asked for; it is then done, and printed.
bool settleBefore(const std::vector<std::string>& request, const ChangeOptions& options);

// Prints the plan, and unless this is a dry run carries it out first.
void finish(const ChangePlan& plan, const ChangeOptions& options);

} // namespace tervix::tool
