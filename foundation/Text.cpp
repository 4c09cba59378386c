#include "foundation/Text.h"

#include <algorithm>
#include <cstring>

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

// Texts are compared and hashed eight characters at a time.
using Word = std::uint64_t;

constexpr Word everyByte(unsigned char byte) {
  return 0x0101010101010101U * byte;
}

// The next word of text, padded with zeros at its end.
Word takeWord(std::string_view& text) {
  Word word = 0;
  if (text.size() >= sizeof word) {
    std::memcpy(&word, text.data(), sizeof word);
    text.remove_prefix(sizeof word);
  } else {
    std::memcpy(&word, text.data(), text.size());
    text = {};
  }
  return word;
}

// Makes every "A" to "Z" a small letter.
Word foldCase(Word word) {
  const Word sevenBits = word & everyByte(0x7F);
  const Word fromA = sevenBits + everyByte(0x80 - 'A');
  const Word beyondZ = sevenBits + everyByte(0x7F - 'Z');
  const Word isCapital = (fromA ^ beyondZ) & ~word & everyByte(0x80);
  return word | (isCapital >> 2);
}

// Makes every backslash a "/", too.
Word foldPath(Word word) {
  const Word difference = word ^ everyByte('\\');
  const Word differs = ((difference & everyByte(0x7F)) + everyByte(0x7F)) | difference;
  const Word isBackslash = (~differs & everyByte(0x80)) >> 7;
  return foldCase(word ^ isBackslash * ('\\' ^ '/'));
}

template <class Fold> bool equalsFolded(std::string_view a, std::string_view b, Fold fold) {
  if (a.size() != b.size())
    return false;
  while (!a.empty()) {
    const Word x = takeWord(a);
    const Word y = takeWord(b);
    if (x != y && fold(x) != fold(y))
      return false;
  }
  return true;
}

template <class Fold> std::uint64_t hashFolded(std::string_view text, Fold fold) {
  constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15U;
  constexpr unsigned int kHalf = 32;
  std::uint64_t hash = text.size();
  while (!text.empty()) {
    hash = (hash ^ fold(takeWord(text))) * kMultiplier;
    hash ^= hash >> kHalf;
  }
  return hash;
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
  return equalsFolded(a, b, foldCase);
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
  return equalsFolded(a, b, foldPath);
}

std::uint64_t hashIgnoringCase(std::string_view text) {
  return hashFolded(text, foldCase);
}

std::uint64_t hashAsPath(std::string_view path) {
  return hashFolded(path, foldPath);
}

std::string joined(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces)
    size += piece.size();
  std::string text;
  text.reserve(size);
  for (const std::string_view piece : pieces)
    text += piece;
  return text;
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
