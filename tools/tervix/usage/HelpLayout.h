#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// How --help is laid out, for the program and each of its commands. Commands made later take it
// over, so this comes first.
void setHelpLayout(CLI::App& app);

} // namespace tervix::tool
