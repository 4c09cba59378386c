#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// A hidden option --command-tree that prints every command with its options as JSON. Man page and
// shell completions are made from it, so they cannot miss what --help tells.
void addCommandTreeOption(CLI::App& app);

} // namespace tervix::tool
