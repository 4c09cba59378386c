#include "tools/tervix/Json.h"

#include "tools/tervix/Printable.h"

namespace tervix::tool {

Json jsonOfVariant(const FileView& file) {
  return {{"kind", file.kind}, {"name", file.path}, {"path", file.place}, {"exists", file.exists}};
}

std::string textOf(const Json& json) {
  return withControlsEscaped(json.dump(2, ' ', false, Json::error_handler_t::replace));
}

} // namespace tervix::tool
