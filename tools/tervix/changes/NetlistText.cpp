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

// What follows the name, unless it is a comment.
std::string_view sectionBehind(std::string_view text) {
  text = withoutLeadingBlanks(text.substr(std::min(text.find_first_of(" \t"), text.size())));
  if (!text.empty() && (text.front() == '"' || text.front() == '\''))
    return nameAtFront(text, true);
  const std::string_view word = nameAtFront(text, false);
  return word.substr(0, word.find('$'));
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
  const bool isLib = isSameName(word, ".lib");
  // A quoted name may hold blanks.
  const std::string_view behind =
      rest.substr(std::min(named.size() + (isQuoted ? 2 : 0), rest.size()));
  const std::string_view section = isLib ? sectionBehind(behind) : std::string_view();
  return IncludedFile{
      number, std::string(named), isPlain && isLib && section.empty(), std::string(section), {}};
}

bool endsSection(std::string_view line) {
  constexpr std::string_view kEnd = ".endl";
  line = withoutLeadingBlanks(line);
  return isSameName(line.substr(0, kEnd.size()), kEnd);
}

// Line by line, with the section in which each stands.
class Reader {
public:
  void take(std::string_view line) {
    if (endsSection(line))
      section_.clear();
    auto file = includedBy(line, ++number_);
    if (!file)
      return;
    if (file->maybeSection)
      section_ = file->text;
    file->within = section_;
    files_.push_back(std::move(*file));
  }

  std::vector<IncludedFile> files() { return std::move(files_); }

private:
  std::size_t number_ = 0;
  std::string section_;
  std::vector<IncludedFile> files_;
};

} // namespace

std::vector<IncludedFile> includedFiles(std::istream& netlist) {
  Reader reader;
  for (std::string line; std::getline(netlist, line);)
    reader.take(line);
  return reader.files();
}

std::vector<IncludedFile> includedFiles(std::string_view netlist) {
  Reader reader;
  while (!netlist.empty())
    reader.take(takeLine(netlist));
  return reader.files();
}

} // namespace tervix::tool
