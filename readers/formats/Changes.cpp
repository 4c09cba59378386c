#include "Changes.h"

namespace tervix::formats {

std::string changed(std::string_view text, const std::vector<Change>& changes) {
  std::string result;
  std::size_t at = 0;
  for (const Change& change : changes) {
    result += pieceOf(text, {at, change.range.begin});
    result += change.text;
    at = change.range.end;
  }
  return result += text.substr(at);
}

} // namespace tervix::formats
