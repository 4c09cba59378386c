#include <exception>
#include <iostream>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "tools/tervix/Failure.h"
#include "tools/tervix/ShowCommand.h"

namespace {

using namespace tervix::tool;

int run(int argc, char** argv) {
  CLI::App app("Look into and change circuit-simulation projects", "tervix");
  app.set_version_flag("--version", "tervix " TERVIX_VERSION);
  app.require_subcommand(1);
  app.footer("Exit status: 0 done, 1 failed, 2 wrong usage.");
  addShowCommand(app);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    // Help and version come this way too, with status 0.
    return app.exit(error) == 0 ? kDone : kWrongUsage;
  }
  std::cout.flush();
  if (!std::cout)
    throw Failure("the output could not be written");
  return kDone;
}

} // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const Failure& failure) {
    std::cerr << "tervix: " << failure.what() << "\n";
    return failure.status();
  } catch (const std::exception& error) {
    std::cerr << "tervix: " << error.what() << "\n";
    return kFailed;
  }
}
