#pragma once

#include <optional>
#include <string>

#include "tools/tervix/changes/ChangeRecord.h"

namespace tervix::tool {

// A record as text that a person can read: JSON, in which a byte of a name or a file that JSON
// cannot hold is spelt "%E9", and "%" itself "%25".
std::string textOf(const ChangeRecord& record);

// Nothing for a text that textOf did not make.
std::optional<ChangeRecord> recordIn(const std::string& text);

} // namespace tervix::tool
