#pragma once

#include <string>
#include <string_view>

#include "tools/tervix/Json.h"

namespace tervix::tool {

// The page with all that it needs in it: style, script and data. Only its own script and style may
// run, by their hashes, and it can ask for nothing from anywhere.
std::string pageOf(const Json& data, const std::string& title);

// How every such page begins.
std::string_view pageBeginning();

// Text for the content of an HTML element.
std::string inHtml(std::string_view text);
// JSON for the content of a script element: in ASCII, and without what could end or open one.
std::string inScript(const Json& json);

} // namespace tervix::tool
