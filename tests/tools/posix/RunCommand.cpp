#include "tests/tools/RunCommand.h"

#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

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

std::string inShellQuotes(const std::string& text) {
  std::string result = "'";
  for (const char c : text)
    result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

} // namespace

int runCommand(std::vector<std::string> command, const RunOptions& options,
               const std::string& output, const std::string& errors) {
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
  return statusOf(child);
}

std::vector<std::string> onTerminal(const std::vector<std::string>& command) {
  std::string line = "exec";
  for (const std::string& word : command)
    line += " " + inShellQuotes(word);
  return {"script", "-qec", line, "/dev/null"};
}

} // namespace tervix::testing
