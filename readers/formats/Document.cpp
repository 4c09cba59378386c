#include "Document.h"

#include "Mistake.h"
#include "ParseFile.h"

#include <cstddef>
#include <utility>

namespace tervix::formats {

namespace {

[[noreturn]] void refuseAt(const toml::source_position& place, const std::string& file,
                           std::string text) {
  throw Mistake{file, std::move(text), place.line, place.column};
}

std::string_view kindOf(const toml::node& node) {
  switch (node.type()) {
  case toml::node_type::table:
    return "a table";
  case toml::node_type::array:
    return node.is_array_of_tables() ? "a list of tables" : "a list";
  case toml::node_type::string:
    return "text";
  case toml::node_type::integer:
    return "an integer";
  case toml::node_type::floating_point:
    return "a number";
  case toml::node_type::boolean:
    return "true or false";
  case toml::node_type::date:
    return "a date";
  case toml::node_type::time:
    return "a time";
  case toml::node_type::date_time:
    return "a date and time";
  default:
    return "something else";
  }
}

std::string quoted(std::string_view name) {
  return '"' + std::string(name) + '"';
}

} // namespace

Document::Document(std::string file) : file_(std::move(file)), sections_(parseFile(file_)) {}

Document::Document(std::string file, std::string_view text)
    : file_(std::move(file)), sections_(parseText(file_, text)) {}

void Document::compact() {
  for (auto&& [sectionName, section] : sections_) {
    if (toml::table* const items = section.as_table(); items != nullptr) {
      for (auto&& [itemName, item] : *items) {
        if (toml::array* const elements = item.as_array(); elements != nullptr) {
          compact(*elements);
        }
      }
    }
  }
}

void Document::compact(toml::array& elements) {
  std::size_t size = 0;
  for (const toml::node& element : elements) {
    const auto* const text = element.as_string();
    if (text == nullptr || text->get().find('\0') != std::string::npos) {
      return;
    }
    size += text->get().size() + 1;
  }
  std::string texts;
  texts.reserve(size);
  for (const toml::node& element : elements) {
    texts.append(element.as_string()->get()).push_back('\0');
  }
  elements.clear();
  elements.shrink_to_fit();
  compacted_.emplace(&elements, std::move(texts));
}

std::list<std::string> Document::list(std::string_view section, std::string_view item,
                                      std::string_view what) const {
  std::list<std::string> texts;
  const toml::node* const node = find(section, item);
  if (node == nullptr) {
    return texts;
  }
  const toml::array* const elements = node->as_array();
  if (elements == nullptr) {
    refuse(*node, "a list of " + std::string(what) + " for " + quoted(item));
  }
  if (const auto compacted = compacted_.find(elements); compacted != compacted_.end()) {
    const std::string& all = compacted->second;
    for (std::size_t start = 0; start < all.size(); start += texts.back().size() + 1) {
      texts.emplace_back(all.c_str() + start);
    }
    return texts;
  }
  const std::string expected = "only " + std::string(what) + " in the list for " + quoted(item);
  for (const toml::node& element : *elements) {
    texts.push_back(textOf(element, expected));
  }
  return texts;
}

std::string Document::text(std::string_view section, std::string_view item) const {
  const toml::node* const node = find(section, item);
  return node == nullptr ? std::string() : textOf(*node, "text in quotes for " + quoted(item));
}

const toml::node* Document::find(std::string_view section, std::string_view item) const {
  if (section.data() == nullptr || item.data() == nullptr) {
    const char* const missing = section.data() == nullptr ? "a section" : "an item";
    throw Mistake{file_, "asked for " + std::string(missing) + " without a name", 0, 0};
  }
  const toml::node* const node = sections_.get(section);
  if (node == nullptr) {
    return nullptr;
  }
  const toml::table* const items = node->as_table();
  if (items == nullptr) {
    refuse(*node, "a table for " + quoted(section));
  }
  return items->get(item);
}

// Names go on to be paths, which end at a NUL: what follows one would be lost unseen.
std::string Document::textOf(const toml::node& node, const std::string& expected) const {
  const auto* const text = node.as_string();
  if (text == nullptr) {
    refuse(node, expected);
  }
  if (text->get().find('\0') != std::string::npos) {
    refuseAt(node.source().begin, file_, "expected " + expected + ", found text with a NUL in it");
  }
  return text->get();
}

void Document::refuse(const toml::node& node, const std::string& expected) const {
  refuseAt(node.source().begin, file_,
           "expected " + expected + ", found " + std::string(kindOf(node)));
}

} // namespace tervix::formats
