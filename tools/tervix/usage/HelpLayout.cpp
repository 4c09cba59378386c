#include "tools/tervix/usage/HelpLayout.h"

#include <memory>

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

namespace tervix::tool {

void setHelpLayout(CLI::App& app) {
  auto layout = std::make_shared<CLI::Formatter>();
  layout->column_width(24);
  layout->label("Positionals", "Arguments");
  layout->label("REQUIRED", ""); // the usage line shows it
  app.formatter(layout);
  app.set_help_flag("-h,--help", "Print this help");
  app.footer("Exit status: 0 done, 1 failed, 2 wrong usage. `man tervix` tells more.");
}

} // namespace tervix::tool
