#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// `tervix check FILE`: tells what breaks a project, and with --fix repairs what loses nothing.
void addCheckCommand(CLI::App& app);

} // namespace tervix::tool
