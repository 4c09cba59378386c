#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace tervix::testing {

using Arguments = std::vector<std::string>;

enum class Output { kCaptured, kClosed, kFullDevice };

// How the tool is run, where it is not as in a script: in the current folder, output in a pipe.
struct RunOptions {
  std::string folder;
  std::map<std::string, std::string> environment; // beyond that of the test; "" removes a variable
  Output output = Output::kCaptured;
  std::optional<unsigned long> largestFile =
      std::nullopt; // in bytes; a write beyond fails, as on a full disk
};

struct ToolRun {
  int status = -1; // as the shell gives it: 128 and more for a signal
  std::string output;
  std::string errors;
};

// Runs the tool with arguments. A report of a sanitizer fails the test.
ToolRun runTool(const Arguments& arguments, const RunOptions& options = RunOptions());

// Runs it with output on a terminal of the type that TERM names.
ToolRun runToolOnTerminal(const Arguments& arguments, const RunOptions& options = RunOptions());

// `tervix show` with arguments, which has to succeed without a word on standard error: its output.
std::string shown(const Arguments& arguments, const RunOptions& options = RunOptions());
nlohmann::ordered_json shownAsJson(const Arguments& arguments,
                                   const RunOptions& options = RunOptions());

// Runs the tool, which has to end with status and with message, after its name, as its only output.
void expectFailure(int status, const std::string& message, const Arguments& arguments,
                   const RunOptions& options = RunOptions());

} // namespace tervix::testing
