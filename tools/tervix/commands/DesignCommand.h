#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// `tervix design rename`.
void addDesignCommand(CLI::App& app);

} // namespace tervix::tool
