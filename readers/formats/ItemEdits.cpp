#include "ItemEdits.h"

#include "Lines.h"
#include "Outline.h"
#include "QuotedText.h"

#include <algorithm>

namespace tervix::formats {

namespace {

using Names = std::vector<std::string_view>;

bool isNamed(const Key& key, const Names& names) {
  return std::equal(key.parts.begin(), key.parts.end(), names.begin(), names.end());
}

const KeyValue* findItem(const std::vector<KeyValue>& items, const Names& names) {
  const auto found = std::find_if(items.begin(), items.end(),
                                  [&](const KeyValue& item) { return isNamed(item.key, names); });
  return found == items.end() ? nullptr : &*found;
}

const KeyValue* findInlineTable(std::string_view text, const Table& top, std::string_view section) {
  const KeyValue* const found = findItem(top.items, {section});
  return found != nullptr && text[found->value.begin] == '{' ? found : nullptr;
}

const Table* findTable(const std::vector<Table>& tables, std::string_view section) {
  const auto found = std::find_if(tables.begin(), tables.end(), [&](const Table& table) {
    return isNamed(table.name, {section});
  });
  return found == tables.end() ? nullptr : &*found;
}

// A line after that of `neighbour`, indented as that is.
Change addBelow(std::string_view text, Range neighbour, const std::string& line) {
  return insertLine(text, nextLine(text, neighbour.end), indentTo(text, neighbour.begin) + line);
}

Change addToTable(std::string_view text, const Table& table, const std::string& assignment) {
  if (table.items.empty()) {
    return addBelow(text, table.header, assignment);
  }
  const KeyValue& last = table.items.back();
  return addBelow(text, {last.key.first.begin, last.value.end}, assignment);
}

Change addToInlineTable(std::string_view text, Range table, const std::string& assignment) {
  const std::vector<KeyValue> items = itemsOf(text, table);
  if (items.empty()) {
    return {{table.begin + 1, table.end - 1}, ' ' + assignment + ' '};
  }
  const std::size_t end = items.back().value.end;
  return {{end, end}, ", " + assignment};
}

std::optional<Change> addWithDottedKey(std::string_view text, const Table& top,
                                       std::string_view section, const std::string& assignment) {
  const auto last = std::find_if(top.items.rbegin(), top.items.rend(), [&](const KeyValue& item) {
    return item.key.parts.size() > 1 && item.key.parts.front() == section;
  });
  if (last == top.items.rend()) {
    return std::nullopt;
  }
  const std::string_view sectionAsWritten = pieceOf(text, last->key.first);
  return addBelow(text, {last->key.first.begin, last->value.end},
                  std::string(sectionAsWritten) + '.' + assignment);
}

// A blank line parts it from what is before.
Change addTable(std::string_view text, std::string_view section, const std::string& assignment) {
  const std::string lineBreak(lineBreakNear(text, text.size()));
  const std::string lines = '[' + asKey(section) + ']' + lineBreak + assignment;
  const std::size_t lastLine = lineBegin(text, text.size());
  const bool isFirst = text.size() == lineBegin(text, 0);
  const bool isParted =
      isFirst ||
      (lastLine == text.size() && isGap(pieceOf(text, {lineBegin(text, lastLine - 1), lastLine})));
  return insertLine(text, text.size(), isParted ? lines : lineBreak + lines);
}

} // namespace

std::optional<Range> findValue(std::string_view text, std::string_view section,
                               std::string_view item) {
  const std::vector<Table> tables = tablesOf(text);
  const Table* const table = findTable(tables, section);
  const KeyValue* found = table == nullptr ? findItem(tables.front().items, {section, item})
                                           : findItem(table->items, {item});
  if (found != nullptr) {
    return found->value;
  }
  const KeyValue* const inlineTable = findInlineTable(text, tables.front(), section);
  if (inlineTable == nullptr) {
    return std::nullopt;
  }
  const std::vector<KeyValue> items = itemsOf(text, inlineTable->value);
  found = findItem(items, {item});
  return found == nullptr ? std::nullopt : std::make_optional(found->value);
}

Change addItem(std::string_view text, std::string_view section, std::string_view item,
               const std::string& value) {
  const std::string assignment = asKey(item) + " = " + value;
  const std::vector<Table> tables = tablesOf(text);
  if (const Table* const table = findTable(tables, section)) {
    return addToTable(text, *table, assignment);
  }
  if (const KeyValue* const table = findInlineTable(text, tables.front(), section)) {
    return addToInlineTable(text, table->value, assignment);
  }
  if (const auto change = addWithDottedKey(text, tables.front(), section, assignment)) {
    return *change;
  }
  return addTable(text, section, assignment);
}

} // namespace tervix::formats
