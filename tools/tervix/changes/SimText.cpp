#include "tools/tervix/changes/SimText.h"

#include <algorithm>
#include <array>

namespace tervix::tool {
namespace {

struct KeyWord {
  std::string_view word;
  SimKey key;
};

constexpr std::array<KeyWord, 8> kKeyWords = {{{"ProfileName", SimKey::kProfileName},
                                               {"ProfileFile", SimKey::kProfileFile},
                                               {"RootSchematics", SimKey::kRootSchematics},
                                               {"DesignFile", SimKey::kDesignFile},
                                               {"ProjectFile", SimKey::kProjectFile},
                                               {"NetlistFile", SimKey::kNetlistFile},
                                               {"DataFile", SimKey::kDataFile},
                                               {"OutFile", SimKey::kOutFile}}};

char lowered(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool beginsWith(std::string_view line, std::string_view word) {
  if (line.size() < word.size())
    return false;
  for (std::size_t i = 0; i < word.size(); ++i)
    if (lowered(line[i]) != lowered(word[i]))
      return false;
  return true;
}

constexpr std::array<std::string_view, 3> kEntryWords = {".INC", ".LIB", ".STMLIB"};

// Where a line has what stands between its quotes; none without an opening quote.
struct Place {
  std::size_t begin;
  std::size_t length;
};

std::optional<Place> quotedIn(std::string_view line) {
  const std::size_t quote = line.find('"');
  if (quote == std::string_view::npos)
    return std::nullopt;
  const std::size_t end = std::min(line.find_first_of("\"\r\n", quote + 1), line.size());
  return Place{quote + 1, end - quote - 1};
}

const KeyWord* keyOf(std::string_view line) {
  const auto* const found =
      std::find_if(kKeyWords.begin(), kKeyWords.end(),
                   [&](const KeyWord& keyWord) { return beginsWith(line, keyWord.word); });
  return found != kKeyWords.end() ? found : nullptr;
}

std::string_view takeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line =
      text.substr(0, end == std::string_view::npos ? text.size() : end + 1);
  text.remove_prefix(line.size());
  return line;
}

// Puts a new value between the quotes of each line for which newValue gives one.
template <class NewValue> std::string rewrittenLines(std::string_view text, NewValue newValue) {
  std::string result;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    const auto place = quotedIn(line);
    const auto changed = place
                             ? newValue(line, std::string(line.substr(place->begin, place->length)))
                             : std::nullopt;
    if (changed)
      result.append(line.substr(0, place->begin))
          .append(*changed)
          .append(line.substr(place->begin + place->length));
    else
      result.append(line);
  }
  return result;
}

} // namespace

std::string rewrittenSim(std::string_view text, const SimValue& newValue) {
  return rewrittenLines(text, [&](std::string_view line, const std::string& value) {
    const KeyWord* key = keyOf(line);
    return key != nullptr ? newValue(key->key, value) : std::nullopt;
  });
}

std::string
rewrittenIncludeList(std::string_view text,
                     const std::function<std::optional<std::string>(const std::string&)>& newPath) {
  return rewrittenLines(
      text, [&](std::string_view line, const std::string& value) -> std::optional<std::string> {
        for (const std::string_view word : kEntryWords)
          if (beginsWith(line, word))
            return newPath(value);
        return std::nullopt;
      });
}

std::string simValueOf(std::string_view text, SimKey key) {
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    const KeyWord* found = keyOf(line);
    const auto place = quotedIn(line);
    if (found != nullptr && found->key == key && place)
      return std::string(line.substr(place->begin, place->length));
  }
  return {};
}

std::string newSim(const std::function<std::string(SimKey)>& value) {
  std::string text;
  for (const KeyWord& keyWord : kKeyWords)
    text.append(keyWord.word).append(" = \"").append(value(keyWord.key)).append("\"\n");
  return text;
}

} // namespace tervix::tool
