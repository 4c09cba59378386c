#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// `tervix files FILE`: where each file of the schematics and profiles lies, and what is there.
void addFilesCommand(CLI::App& app);

} // namespace tervix::tool
