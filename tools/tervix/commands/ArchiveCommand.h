#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// `tervix archive FILE FOLDER`.
void addArchiveCommand(CLI::App& app);

} // namespace tervix::tool
