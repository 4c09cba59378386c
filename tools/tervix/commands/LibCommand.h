#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// `tervix lib list|add|remove`: the libraries, stimulus and include files of a design or profile.
void addLibCommand(CLI::App& app);

} // namespace tervix::tool
