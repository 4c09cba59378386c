#include "ParseFile.h"

#include "FileText.h"
#include "HostileText.h"
#include "Mistake.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tervix::formats {

namespace {

struct Explanation {
  std::string_view sign;
  const char* text;
};

// The mistakes that people make most, in words for those who never heard of the parser. It also
// misquotes the name in what it says of a second definition.
constexpr std::array<Explanation, 3> explanations = {{
    {"cannot redefine", "this name has already been given a value or a table"},
    {"unescaped control character",
     "text in quotes must end on its line and hold no control character"},
    {"unknown escape sequence",
     "between double quotes a backslash must be doubled; between single quotes it stands alone"},
}};

// The parser quotes pieces of the file, which may hold line ends and worse, and names macros.
std::string onOneLine(std::string_view description) {
  std::string text(description.substr(0, description.find(" (TOML_")));
  std::replace_if(
      text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
  return text;
}

std::string explain(std::string_view description) {
  for (const Explanation& known : explanations) {
    if (description.find(known.sign) != std::string_view::npos) {
      return known.text;
    }
  }
  return onOneLine(description);
}

} // namespace

toml::table parseFile(const std::string& file) {
  return parseText(file, readFileBytes(file));
}

toml::table parseText(const std::string& file, std::string_view text) {
  const std::string_view content = withoutByteOrderMark(text);
  refuseHostileText(file, content);
  toml::parse_result result = toml::parse(content);
  if (!result) {
    const toml::parse_error& error = result.error();
    const toml::source_position place = error.source().begin;
    throw Mistake{file, explain(error.description()), place.line, place.column};
  }
  return std::move(result).table();
}

} // namespace tervix::formats
