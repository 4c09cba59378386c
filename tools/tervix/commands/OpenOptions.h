#pragma once

#include <optional>
#include <string>

#include <CLI/App.hpp>

namespace tervix::tool {

// What every command that opens a project takes.
struct OpenOptions {
  std::string file;
  std::optional<int> frontEnd;
  bool asJson = false;
};

// The file and the front end alone, for a command that prints nothing.
void addProjectOptions(CLI::App& command, OpenOptions& options);
void addOpenOptions(CLI::App& command, OpenOptions& options);

} // namespace tervix::tool
