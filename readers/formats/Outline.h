#ifndef TERVIX_FORMATS_OUTLINE_H
#define TERVIX_FORMATS_OUTLINE_H

#include "Changes.h"

#include <optional>

namespace tervix::formats {

// Where things stand in a text that has been parsed, and so is known to be TOML. The parser tells
// where a value begins, in characters; who edits has to know to the byte where it ends, and where
// commas, keys and table headers are.

// The parts of a dotted key, unquoted, and where the first stands.
struct Key {
  std::vector<std::string> parts;
  Range first;
};

struct KeyValue {
  Key key;
  Range value;
};

// A header, [name] or [[name]], with the items below it; the first table of a file has no header
// and no name.
struct Table {
  Key name;
  Range header;
  std::vector<KeyValue> items;
};

struct Element {
  Range value;
  std::optional<std::size_t> comma;
};

std::vector<Table> tablesOf(std::string_view text);
std::vector<KeyValue> itemsOf(std::string_view text, Range inlineTable);
std::vector<Element> elementsOf(std::string_view text, Range list);

} // namespace tervix::formats

#endif
