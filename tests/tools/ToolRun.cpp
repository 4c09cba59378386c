#include "tests/tools/ToolRun.h"

#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

constexpr int kCannotRun = 127;

void setVariables(const std::map<std::string, std::string>& variables) {
  for (const auto& [name, value] : variables)
    value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
}

void redirect(const char* path, int flags, int target) {
  const int file = open(path, flags, 0600);
  if (file < 0 || dup2(file, target) < 0)
    _exit(kCannotRun);
  if (file != target)
    close(file);
}

void prepareChild(const RunOptions& options, const std::string& output, const std::string& errors) {
  setVariables(options.environment);
  redirect("/dev/null", O_RDONLY, STDIN_FILENO);
  redirect(errors.c_str(), O_WRONLY | O_CREAT, STDERR_FILENO);
  if (options.output == Output::kClosed)
    close(STDOUT_FILENO);
  else if (options.output == Output::kFullDevice)
    redirect("/dev/full", O_WRONLY, STDOUT_FILENO);
  else
    redirect(output.c_str(), O_WRONLY | O_CREAT, STDOUT_FILENO);
  if (options.largestFile) {
    const rlimit limit = {*options.largestFile, *options.largestFile};
    if (std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR || setrlimit(RLIMIT_FSIZE, &limit) != 0)
      _exit(kCannotRun);
  }
  if (!options.folder.empty() && chdir(options.folder.c_str()) != 0)
    _exit(kCannotRun);
}

int statusOf(pid_t child) {
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

void expectNoSanitizerReport(const std::string& text) {
  for (const char* sign : {"Sanitizer", "runtime error:"})
    EXPECT_EQ(text.find(sign), std::string::npos) << text;
}

ToolRun runCommand(std::vector<std::string> command, const RunOptions& options) {
  const TemporaryFolder kept;
  const std::string output = kept.file("output");
  const std::string errors = kept.file("errors");
  std::vector<char*> arguments;
  for (std::string& argument : command)
    arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    prepareChild(options, output, errors);
    execvp(arguments[0], arguments.data());
    _exit(kCannotRun);
  }
  ToolRun run;
  run.status = statusOf(child);
  run.output = contentOf(output);
  run.errors = contentOf(errors);
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

std::string inShellQuotes(const std::string& text) {
  std::string result = "'";
  for (const char c : text)
    result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

} // namespace

ToolRun runTool(const Arguments& arguments, const RunOptions& options) {
  return runCommand(commandOf(arguments), withDefaults(options));
}

ToolRun runToolOnTerminal(const Arguments& arguments, const RunOptions& options) {
  std::string line = "exec";
  for (const std::string& word : commandOf(arguments))
    line += " " + inShellQuotes(word);
  return runCommand({"script", "-qec", line, "/dev/null"}, withDefaults(options));
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
