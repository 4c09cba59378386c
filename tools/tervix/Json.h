#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tools/tervix/ProjectView.h"

namespace tervix::tool {

// Keys in the order in which they are written.
using Json = nlohmann::ordered_json;

template <class Value, class Convert>
Json arrayOf(const std::vector<Value>& values, Convert convert) {
  Json array = Json::array();
  for (const Value& value : values)
    array.push_back(convert(value));
  return array;
}

Json jsonOfVariant(const FileView& file);

// The text to print. A name may hold any bytes; those that are no UTF-8 are replaced, and control
// characters escaped.
std::string textOf(const Json& json);

} // namespace tervix::tool
