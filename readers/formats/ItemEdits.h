#ifndef TERVIX_FORMATS_ITEM_EDITS_H
#define TERVIX_FORMATS_ITEM_EDITS_H

#include "Changes.h"

#include <optional>

namespace tervix::formats {

// Where the value of an item stands, in whichever way the file writes it: below the section's
// header, with a dotted key or in an inline table.
std::optional<Range> findValue(std::string_view text, std::string_view section,
                               std::string_view item);

// Adds an item that the file does not have, after those of its section; a section that the file
// does not have either goes to the file's end. `value` is as it is to be written.
Change addItem(std::string_view text, std::string_view section, std::string_view item,
               const std::string& value);

} // namespace tervix::formats

#endif
