#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// `tervix project rename`.
void addProjectCommand(CLI::App& app);

} // namespace tervix::tool
