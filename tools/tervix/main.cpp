#include <exception>
#include <iostream>
#include <new>
#include <sstream>
#include <string>
#include <vector>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/ShowCommand.h"
#include "tools/tervix/commands/ArchiveCommand.h"
#include "tools/tervix/commands/CheckCommand.h"
#include "tools/tervix/commands/DesignCommand.h"
#include "tools/tervix/commands/FilesCommand.h"
#include "tools/tervix/commands/LibCommand.h"
#include "tools/tervix/commands/ProfileCommand.h"
#include "tools/tervix/commands/ProjectCommand.h"
#include "tools/tervix/commands/ReportCommand.h"
#include "tools/tervix/commands/SchematicCommand.h"
#include "tools/tervix/usage/CommandTree.h"
#include "tools/tervix/usage/HelpLayout.h"

namespace {

using namespace tervix::tool;

void finishOutput() {
  std::cout.flush();
  if (!std::cout)
    throw Failure("the output could not be written");
}

// Printable but for its line ends: what is told of wrong usage repeats what the person typed.
std::string printableLines(const std::string& text) {
  std::string result;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);)
    result += printable(line) + "\n";
  return result;
}

// Help and version come this way too; they are no mistake.
int answer(const CLI::App& app, const CLI::ParseError& error) {
  std::ostringstream mistake;
  if (app.exit(error, std::cout, mistake) == 0) {
    finishOutput();
    return kDone;
  }
  const CLI::App* command = &app;
  std::string name;
  while (!command->get_subcommands().empty()) {
    command = command->get_subcommands().front();
    name += command->get_name() + " ";
  }
  const std::vector<std::string> unknown = app.remaining(true);
  if (command->get_require_subcommand_min() > 0 && !unknown.empty() &&
      unknown.front().rfind('-', 0) != 0)
    throw Failure("there is no command " + inQuotes(name + unknown.front()) +
                      "\nRun with --help for more information.",
                  kWrongUsage);
  std::cerr << "tervix: " << printableLines(mistake.str());
  return kWrongUsage;
}

int run(int argc, char** argv) {
  CLI::App app("Look into and change circuit-simulation projects", "tervix");
  app.allow_windows_style_options(false); // "/x" and "//server/x" are paths everywhere
  setHelpLayout(app);
  app.set_version_flag("--version", "tervix " TERVIX_VERSION, "Print the version");
  app.require_subcommand(1);
  addCommandTreeOption(app);
  addShowCommand(app);
  addFilesCommand(app);
  addLibCommand(app);
  addProfileCommand(app);
  addSchematicCommand(app);
  addDesignCommand(app);
  addProjectCommand(app);
  addArchiveCommand(app);
  addCheckCommand(app);
  addReportCommand(app);
  try {
    app.parse(argc, argv);
  } catch (const CLI::RuntimeError& done) {
    finishOutput();
    return done.get_exit_code(); // what a command found
  } catch (const CLI::ParseError& error) {
    return answer(app, error);
  }
  finishOutput();
  return kDone;
}

} // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const Failure& failure) {
    std::cerr << "tervix: " << failure.what() << "\n";
    return failure.status();
  } catch (const std::bad_alloc&) {
    std::cerr << "tervix: there is not enough memory\n";
    return kFailed;
  } catch (const std::exception& error) {
    std::cerr << "tervix: " << printable(error.what()) << "\n";
    return kFailed;
  }
}
