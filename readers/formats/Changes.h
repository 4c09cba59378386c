#ifndef TERVIX_FORMATS_CHANGES_H
#define TERVIX_FORMATS_CHANGES_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tervix::formats {

// The bytes of a text from `begin` up to, but without, `end`.
struct Range {
  std::size_t begin = 0;
  std::size_t end = 0;
};

inline std::string_view pieceOf(std::string_view text, Range range) {
  return text.substr(range.begin, range.end - range.begin);
}

// What is to stand in a text in place of a range of it.
struct Change {
  Range range;
  std::string text;
};

// The text with the changes made; they are in the order of the text and do not overlap.
std::string changed(std::string_view text, const std::vector<Change>& changes);

} // namespace tervix::formats

#endif
