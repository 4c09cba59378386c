#include "Texts.h"

#include "MistakeRecord.h"
#include "ParseFile.h"

#include <string_view>

namespace tervix::formats {

namespace {

class TextCollector {
public:
  void take(std::string_view section, std::string_view item, const toml::node& node) {
    if (const auto* const list = node.as_array()) {
      for (const toml::node& element : *list) {
        takeText(section, item, element);
      }
    } else {
      takeText(section, item, node);
    }
  }

  std::vector<PlacedText> texts;

private:
  void takeText(std::string_view section, std::string_view item, const toml::node& node) {
    if (const auto* const text = node.as_string()) {
      texts.push_back({std::string(section), std::string(item), text->get(),
                       static_cast<std::size_t>(node.source().begin.line)});
    }
  }
};

} // namespace

std::optional<std::vector<PlacedText>> readPlacedTexts(const std::string& file) noexcept {
  return rememberingMistakes(file, [&] {
    TextCollector collector;
    const toml::table sections = parseFile(file);
    for (const auto& [section, node] : sections) {
      if (const auto* const items = node.as_table()) {
        for (const auto& [item, value] : *items) {
          collector.take(section.str(), item.str(), value);
        }
      }
    }
    return std::move(collector.texts);
  });
}

} // namespace tervix::formats
