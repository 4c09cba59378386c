#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// `tervix show FILE`: opens a project and prints its tree.
void addShowCommand(CLI::App& app);

} // namespace tervix::tool
