#include "Edit.h"

#include "ItemEdits.h"
#include "ListEdits.h"
#include "Mistake.h"
#include "Outline.h"
#include "ParseFile.h"
#include "QuotedText.h"
#include "Utf8.h"

#include <algorithm>

namespace tervix::formats {

namespace {

toml::array asArray(const std::vector<std::string>& texts) {
  toml::array array;
  for (const std::string& text : texts) {
    array.push_back(text);
  }
  return array;
}

std::string nameOf(const Item& list) {
  return "the list for " + inQuotes(list.name);
}

bool holds(std::string_view text, const toml::table& sections) {
  try {
    return parseText("", text) == sections;
  } catch (const Mistake&) {
    return false;
  }
}

} // namespace

std::vector<std::string> Edit::elements(const Item& list) const {
  const std::list<std::string> texts = document_.list(list.section, list.name, "names");
  return {texts.begin(), texts.end()};
}

std::size_t Edit::indexOf(const Item& list, std::string_view value) const {
  requireWritable(value);
  const std::vector<std::string> values = elements(list);
  const auto found = std::find(values.begin(), values.end(), value);
  if (found == values.end()) {
    refuse(nameOf(list) + " does not hold " + inQuotes(value));
  }
  return static_cast<std::size_t>(found - values.begin());
}

std::string Edit::setText(const Item& item, std::string_view value) const {
  const std::string before = document_.text(item.section, item.name);
  requireWritable(value);
  const std::optional<Range> place = findValue(text_, item.section, item.name);
  if (place && before == value) {
    return std::string(text_);
  }
  const Change change = place ? Change{*place, inQuotes(value)} : newItem(item, inQuotes(value));
  return checked({change}, item, std::string(value));
}

std::string Edit::add(const Item& list, const std::vector<std::string>& added) const {
  std::vector<std::string> values = elements(list);
  std::vector<std::string> written;
  for (const std::string& value : added) {
    requireWritable(value);
    values.push_back(value);
    written.push_back(inQuotes(value));
  }
  if (added.empty()) {
    return std::string(text_);
  }
  const std::optional<Range> place = findValue(text_, list.section, list.name);
  const std::vector<Change> changes =
      place ? addElements(text_, *place, written) : std::vector{newItem(list, newList(written))};
  return checked(changes, list, asArray(values));
}

std::string Edit::remove(const Item& list, std::size_t index) const {
  std::vector<std::string> values = elements(list);
  requireElement(list, values.size(), index);
  values.erase(values.begin() + static_cast<std::ptrdiff_t>(index));
  return checked(removeElement(text_, placeOf(list), index), list, asArray(values));
}

std::string Edit::replace(const Item& list, std::size_t index, std::string_view value) const {
  std::vector<std::string> values = elements(list);
  requireElement(list, values.size(), index);
  values[index] = value;
  return replaceAll(list, values);
}

std::string Edit::replaceAll(const Item& list, const std::vector<std::string>& values) const {
  const std::vector<std::string> former = elements(list);
  if (former.size() != values.size()) {
    refuse(nameOf(list) + " has " + std::to_string(former.size()) + " entries, and not " +
           std::to_string(values.size()));
  }
  for (const std::string& value : values) {
    requireWritable(value);
  }
  if (values == former) {
    return std::string(text_);
  }
  const std::vector<Element> places = elementsOf(text_, placeOf(list));
  std::vector<Change> changes;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (values[i] != former[i]) {
      changes.push_back({places.at(i).value, inQuotes(values[i])});
    }
  }
  return checked(changes, list, asArray(values));
}

void Edit::refuse(std::string reason) const {
  throw Mistake{file_, std::move(reason), 0, 0};
}

void Edit::requireWritable(std::string_view text) const {
  if (!isUtf8(text)) {
    refuse("the text is not valid UTF-8");
  }
  if (text.find('\0') != std::string_view::npos) {
    refuse("the text has a NUL in it");
  }
}

void Edit::requireElement(const Item& list, std::size_t count, std::size_t index) const {
  if (index >= count) {
    refuse(nameOf(list) + " has " + std::to_string(count) + " entries and none at place " +
           std::to_string(index));
  }
}

Range Edit::placeOf(const Item& item) const {
  const std::optional<Range> place = findValue(text_, item.section, item.name);
  if (!place) {
    refuse("no way is known to change " + inQuotes(item.name) + " where it stands");
  }
  return *place;
}

Change Edit::newItem(const Item& item, const std::string& value) const {
  requireWritable(item.section);
  requireWritable(item.name);
  return addItem(text_, item.section, item.name, value);
}

template <typename Value>
std::string Edit::checked(const std::vector<Change>& changes, const Item& item, Value value) const {
  // Parsed once more and not copied: copying ends the process when memory runs out.
  toml::table intended = parseText(file_, text_);
  const auto section = intended.insert(item.section, toml::table{}).first;
  section->second.as_table()->insert_or_assign(item.name, std::move(value));
  std::string text = changed(text_, changes);
  if (!holds(text, intended)) {
    refuse("this edit would change something else in the file");
  }
  return text;
}

} // namespace tervix::formats
