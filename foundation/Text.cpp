#include "foundation/Text.h"

#include <algorithm>

namespace tervix {
namespace {

char separatorFolded(char c) {
  return c == '\\' ? '/' : c;
}

template <class Map> std::string mapped(std::string_view text, Map map) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), map);
  return result;
}

} // namespace

char toLowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string toLowerCase(std::string_view text) {
  return mapped(text, [](char c) { return toLowerCase(c); });
}

std::string toForwardSlashes(std::string_view path) {
  return mapped(path, separatorFolded);
}

std::string toBackslashes(std::string_view path) {
  return mapped(path, [](char c) { return c == '/' ? '\\' : c; });
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return toLowerCase(x) == toLowerCase(y); });
}

bool startsWithIgnoringCase(std::string_view text, std::string_view prefix) {
  return equalsIgnoringCase(text.substr(0, prefix.size()), prefix);
}

bool endsWithIgnoringCase(std::string_view text, std::string_view suffix) {
  return text.size() >= suffix.size() &&
         equalsIgnoringCase(text.substr(text.size() - suffix.size()), suffix);
}

bool contains(std::string_view text, std::string_view piece) {
  return text.find(piece) != std::string_view::npos;
}

bool equalsAsPath(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return toLowerCase(separatorFolded(x)) == toLowerCase(separatorFolded(y));
  });
}

std::optional<std::string_view> stripPrefix(std::string_view text, std::string_view prefix) {
  if (!startsWithIgnoringCase(text, prefix))
    return std::nullopt;
  return text.substr(prefix.size());
}

std::optional<std::string_view> stripSuffix(std::string_view text, std::string_view suffix) {
  if (!endsWithIgnoringCase(text, suffix))
    return std::nullopt;
  return text.substr(0, text.size() - suffix.size());
}

std::optional<std::pair<std::string_view, std::string_view>>
splitAtFirstOf(std::string_view text, std::string_view delimiters) {
  const std::size_t place = text.find_first_of(delimiters);
  if (place == std::string_view::npos)
    return std::nullopt;
  return std::pair{text.substr(0, place), text.substr(place + 1)};
}

std::string_view withoutLast(std::string_view text, std::size_t count) {
  return text.substr(0, text.size() - std::min(count, text.size()));
}

bool replaceFirst(std::string& text, std::string_view piece, std::string_view by) {
  const std::size_t place = text.find(piece);
  if (place == std::string::npos)
    return false;
  text.replace(place, piece.size(), by);
  return true;
}

} // namespace tervix
