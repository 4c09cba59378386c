#include "tools/tervix/changes/NetlistText.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "tools/tervix/changes/Names.h"

namespace tervix::tool {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::array<const char*, 4> kIncludeWords = {".inc", ".include", ".lib", ".stmlib"};

std::string_view withoutLeadingBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

std::optional<IncludedFile> includedBy(std::string_view line, std::size_t number) {
  line = withoutLeadingBlanks(line);
  const std::size_t end = std::min(line.find_first_of(" \t\r\n\"'"), line.size());
  const std::string word(line.substr(0, end));
  const auto isWord = [&](const char* include) { return isSameName(word, include); };
  if (std::none_of(kIncludeWords.begin(), kIncludeWords.end(), isWord))
    return std::nullopt;
  const std::string_view rest = withoutLeadingBlanks(line.substr(end));
  if (rest.empty())
    return std::nullopt;
  const bool isQuoted = rest.front() == '"' || rest.front() == '\'';
  const std::string_view named = isQuoted ? rest.substr(1, rest.substr(1).find(rest.front()))
                                          : rest.substr(0, rest.find_first_of(kBlanks));
  if (named.empty())
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

} // namespace tervix::tool
