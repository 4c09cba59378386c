#include "tools/tervix/changes/SimText.h"

#include <algorithm>
#include <array>

#include "tools/tervix/changes/QuotedLines.h"

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

const KeyWord* keyOf(std::string_view line) {
  const auto* const found =
      std::find_if(kKeyWords.begin(), kKeyWords.end(),
                   [&](const KeyWord& keyWord) { return beginsWith(line, keyWord.word); });
  return found != kKeyWords.end() ? found : nullptr;
}

} // namespace

std::string rewrittenSim(std::string_view text, const SimValue& newValue) {
  return rewrittenLines(text, [&](std::string_view line, const std::string& value) {
    const KeyWord* key = keyOf(line);
    return key != nullptr ? newValue(key->key, value) : std::nullopt;
  });
}

std::string
rewrittenOtherKeys(std::string_view text,
                   const std::function<std::optional<std::string>(const std::string&)>& newValue) {
  return rewrittenLines(
      text, [&](std::string_view line, const std::string& value) -> std::optional<std::string> {
        const bool hasKey = line.find_first_of(" \t#\"") != 0;
        return hasKey && keyOf(line) == nullptr ? newValue(value) : std::nullopt;
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

void forEachKey(std::string_view text, const SimKeyTold& tell) {
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::string_view line = takeLine(text);
    if (const KeyWord* key = keyOf(line); key != nullptr)
      tell(key->key, number, valueIn(line));
  }
}

std::string_view wordOf(SimKey key) {
  const auto* const found = std::find_if(kKeyWords.begin(), kKeyWords.end(),
                                         [&](const KeyWord& word) { return word.key == key; });
  return found->word;
}

std::string newSim(const std::function<std::string(SimKey)>& value) {
  std::string text;
  for (const KeyWord& keyWord : kKeyWords)
    text.append(keyWord.word).append(" = \"").append(value(keyWord.key)).append("\"\n");
  return text;
}

} // namespace tervix::tool
