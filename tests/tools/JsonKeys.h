#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace tervix::testing {

// Checks that a document of docs/ names every key of json between backticks.
void expectKeysDocumented(const nlohmann::ordered_json& json, const std::string& document);

} // namespace tervix::testing
