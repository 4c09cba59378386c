#ifndef TERVIX_FORMATS_TEXTS_H
#define TERVIX_FORMATS_TEXTS_H

#include "FormatsExport.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tervix::formats {

// A text that an item of a section holds, alone or in its list, and the line where it stands.
struct PlacedText {
  std::string section;
  std::string item;
  std::string text;
  std::size_t line;
};

// Every such text of a project or design file, the elements of a list in their order. What is
// neither a text nor a list of texts is passed over. Nothing, with the reason in lastMistake(),
// when the file cannot be read.
TERVIX_FORMATS_API std::optional<std::vector<PlacedText>>
readPlacedTexts(const std::string& file) noexcept;

} // namespace tervix::formats

#endif
