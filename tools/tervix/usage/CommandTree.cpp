#include "tools/tervix/usage/CommandTree.h"

#include <iostream>
#include <string>

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <nlohmann/json.hpp>

namespace tervix::tool {
namespace {

using Json = nlohmann::ordered_json;

// A hidden option has no group.
bool isShown(const CLI::Option& option) {
  return !option.get_group().empty();
}

Json optionTree(const CLI::Option& option) {
  Json names = Json::array();
  for (const std::string& name : option.get_snames())
    names.push_back("-" + name);
  for (const std::string& name : option.get_lnames())
    names.push_back("--" + name);
  Json tree{{"names", names}, {"help", option.get_description()}};
  if (names.empty())
    tree["positional"] = option.get_name(true);
  tree["required"] = option.get_required();
  tree["repeats"] = option.get_expected_max() == CLI::detail::expected_max_vector_size;
  if (option.get_expected_max() > 0) {
    tree["value"] = option.get_option_text();
    tree["type"] = option.get_type_name();
  }
  return tree;
}

Json commandTree(const CLI::App& command) {
  Json tree{{"name", command.get_name()},
            {"help", command.get_description()},
            {"footer", command.get_footer()},
            {"options", Json::array()},
            {"commands", Json::array()}};
  for (const CLI::Option* option : command.get_options())
    if (isShown(*option))
      tree["options"].push_back(optionTree(*option));
  for (const CLI::App* sub : command.get_subcommands(nullptr))
    if (!sub->get_group().empty())
      tree["commands"].push_back(commandTree(*sub));
  return tree;
}

} // namespace

void addCommandTreeOption(CLI::App& app) {
  app.add_flag_callback("--command-tree",
                        [&app] {
                          std::cout << commandTree(app).dump(2) << "\n";
                          throw CLI::Success();
                        })
      ->group("");
}

} // namespace tervix::tool
