#pragma once

#include <functional>
#include <string>
#include <vector>

#include <CLI/App.hpp>

#include "foundation/platform/FolderLock.h"
#include "tools/tervix/changes/ChangePlan.h"
#include "tools/tervix/commands/OpenOptions.h"

namespace tervix::tool {

// What every command that changes a project takes.
struct ChangeOptions : OpenOptions {
  bool dryRun = false;
  bool keepOld = false;
  platform::FolderLock lock; // held from before the project is read until the command ends
};

void addChangeOptions(CLI::App& command, ChangeOptions& options);
void addKeepOldOption(CLI::App& command, ChangeOptions& options);

// What is done before a command opens the project: changes by other processes are waited for, and
// an interrupted one is settled; a dry run tells of it. Gives true when it was the change that is
// asked for; it is then done, and printed.
bool settleBefore(const std::vector<std::string>& request, ChangeOptions& options);

// Prints the plan, and unless this is a dry run carries it out first, with runPlan or as the
// command does it.
void finish(const ChangePlan& plan, const ChangeOptions& options,
            const std::function<void()>& run = nullptr);

} // namespace tervix::tool
