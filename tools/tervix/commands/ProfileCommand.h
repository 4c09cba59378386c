#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// `tervix profile add|copy|rename|delete|activate`.
void addProfileCommand(CLI::App& app);

} // namespace tervix::tool
