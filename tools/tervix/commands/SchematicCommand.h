#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// `tervix schematic add|rename|delete`.
void addSchematicCommand(CLI::App& app);

} // namespace tervix::tool
