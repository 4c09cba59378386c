#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunCommand.h"

namespace tervix::testing {
namespace {

void expectNoSanitizerReport(const std::string& text) {
  for (const char* sign : {"Sanitizer", "runtime error:"})
    EXPECT_EQ(text.find(sign), std::string::npos) << text;
}

ToolRun checkedRun(const std::vector<std::string>& command, const RunOptions& options) {
  const TemporaryFolder kept;
  const std::string output = kept.file("output");
  const std::string errors = kept.file("errors");
  ToolRun run;
  run.status = runCommand(command, options, output, errors);
  run.output = asText(contentOf(output));
  run.errors = asText(contentOf(errors));
  expectNoSanitizerReport(run.output + run.errors);
  return run;
}

// Colours as in a script that knows nothing of them, unless the test says otherwise.
RunOptions withDefaults(RunOptions options) {
  options.environment.insert({"TERM", "xterm"});
  options.environment.insert({"NO_COLOR", ""});
  return options;
}

std::vector<std::string> commandOf(const Arguments& arguments) {
  std::vector<std::string> command = {TERVIX_TOOL};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return command;
}

} // namespace

ToolRun runTool(const Arguments& arguments, const RunOptions& options) {
  return checkedRun(commandOf(arguments), withDefaults(options));
}

ToolRun runToolOnTerminal(const Arguments& arguments, const RunOptions& options) {
  return checkedRun(onTerminal(commandOf(arguments)), withDefaults(options));
}

std::string shown(const Arguments& arguments, const RunOptions& options) {
  Arguments all = {"show"};
  all.insert(all.end(), arguments.begin(), arguments.end());
  ToolRun run = runTool(all, options);
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
  return run.output;
}

nlohmann::ordered_json shownAsJson(const Arguments& arguments, const RunOptions& options) {
  Arguments all = arguments;
  all.emplace_back("--json");
  const std::string text = shown(all, options);
  EXPECT_TRUE(nlohmann::ordered_json::accept(text)) << text;
  return nlohmann::ordered_json::parse(text, nullptr, false);
}

void expectFailure(int status, const std::string& message, const Arguments& arguments,
                   const RunOptions& options) {
  const ToolRun run = runTool(arguments, options);
  EXPECT_EQ(run.status, status);
  EXPECT_EQ(run.errors, "tervix: " + message + "\n");
  EXPECT_EQ(run.output, "");
}

} // namespace tervix::testing
