#pragma once

#include <string>
#include <vector>

#include "tests/tools/ToolRun.h"

namespace tervix::testing {

// Runs a command with its output and errors in these files; the status is as in ToolRun.
int runCommand(std::vector<std::string> command, const RunOptions& options,
               const std::string& output, const std::string& errors);

// The command that runs this one on a terminal.
std::vector<std::string> onTerminal(const std::vector<std::string>& command);

} // namespace tervix::testing
