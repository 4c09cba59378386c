#include "tools/tervix/changes/NetlistText.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/QuotedLines.h"

namespace tervix::tool {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr std::array<std::string_view, 4> kIncludeWords = {".inc", ".include", ".lib", ".stmlib"};

std::string_view withoutLeadingBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

// What stands first: between quotes, of which the line's end may be the second, or up to a blank or
// a comment.
std::string_view nameAtFront(std::string_view text, bool isQuoted) {
  if (isQuoted) {
    const std::string_view rest = text.substr(1, text.find_first_of("\r\n") - 1);
    return rest.substr(0, rest.find(text.front()));
  }
  return text.substr(0, text.find_first_of(" \t\r\n;"));
}

std::optional<IncludedFile> includedBy(std::string_view line, std::size_t number) {
  if (number == 1 && line.substr(0, kByteOrderMark.size()) == kByteOrderMark)
    line.remove_prefix(kByteOrderMark.size());
  line = withoutLeadingBlanks(line.substr(0, line.find('\0')));
  if (line.empty() || line.front() != '.')
    return std::nullopt;
  const std::size_t end = std::min(line.find_first_of(" \t\r\n\"'"), line.size());
  const std::string_view word = line.substr(0, end);
  const auto isWord = [&](std::string_view include) { return isSameName(word, include); };
  if (std::none_of(kIncludeWords.begin(), kIncludeWords.end(), isWord))
    return std::nullopt;
  const std::string_view rest = withoutLeadingBlanks(line.substr(end));
  const bool isQuoted = !rest.empty() && (rest.front() == '"' || rest.front() == '\'');
  const std::string_view named = nameAtFront(rest, isQuoted);
  if (named.empty() || named.front() == '$')
    return std::nullopt;
  const bool isPlain = !isQuoted && named.find_first_of("./\\") == std::string_view::npos;
  return IncludedFile{number, std::string(named), isPlain && isSameName(word, ".lib")};
}

} // namespace

std::vector<IncludedFile> includedFiles(std::istream& netlist) {
  std::vector<IncludedFile> files;
  std::string line;
  for (std::size_t number = 1; std::getline(netlist, line); ++number)
    if (auto file = includedBy(line, number))
      files.push_back(std::move(*file));
  return files;
}

std::vector<IncludedFile> includedFiles(std::string_view netlist) {
  std::vector<IncludedFile> files;
  for (std::size_t number = 1; !netlist.empty(); ++number)
    if (auto file = includedBy(takeLine(netlist), number))
      files.push_back(std::move(*file));
  return files;
}

} // namespace tervix::tool
