#include "tests/tools/JsonKeys.h"

#include <set>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

void collectKeys(const nlohmann::ordered_json& json, std::set<std::string>& keys) {
  if (json.is_object())
    for (const auto& element : json.items())
      keys.insert(element.key());
  if (json.is_structured())
    for (const auto& element : json)
      collectKeys(element, keys);
}

} // namespace

void expectKeysDocumented(const nlohmann::ordered_json& json, const std::string& document) {
  const std::string text = contentOf(std::string(TERVIX_TOOL_DOCUMENTS) + "/" + document);
  std::set<std::string> keys;
  collectKeys(json, keys);
  EXPECT_GE(keys.size(), 4U);
  for (const std::string& key : keys)
    EXPECT_NE(text.find("`" + key + "`"), std::string::npos) << key;
}

} // namespace tervix::testing
