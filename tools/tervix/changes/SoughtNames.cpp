#include "tools/tervix/changes/SoughtNames.h"

#include <algorithm>
#include <cctype>

namespace tervix::tool {
namespace {

bool isOfWord(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-' || c == '_' || c == '.';
}

bool holdsWord(const std::string& text, const std::string& word) {
  for (std::size_t at = 0; (at = text.find(word, at)) != std::string::npos; ++at) {
    const std::size_t end = at + word.size();
    if ((at == 0 || !isOfWord(text[at - 1])) && (end == text.size() || !isOfWord(text[end])))
      return true;
  }
  return false;
}

} // namespace

void SoughtNames::add(const std::string& name) {
  const bool isWord = std::all_of(name.begin(), name.end(), isOfWord);
  (isWord ? words_ : others_).insert(name);
}

std::string SoughtNames::firstIn(const std::string& text) const {
  std::string first;
  const auto take = [&](const std::string& name) {
    if (first.empty() || name < first)
      first = name;
  };
  for (auto at = text.begin(); at != text.end();) {
    const auto begin = std::find_if(at, text.end(), isOfWord);
    at = std::find_if_not(begin, text.end(), isOfWord);
    if (const auto found = words_.find(std::string(begin, at)); found != words_.end())
      take(*found);
  }
  for (const std::string& name : others_)
    if (holdsWord(text, name))
      take(name);
  return first;
}

} // namespace tervix::tool
