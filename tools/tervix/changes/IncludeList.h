#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "TervixFiles.h"

namespace tervix::tool {

// A profile's include list, changed as text: other lines, order and layout stay, which the
// library's own save does not keep.
class IncludeList {
public:
  explicit IncludeList(std::string text) : text_(std::move(text)) {}

  const std::string& text() const { return text_; }

  // The paths of a kind, as the library loads them.
  std::vector<std::string> paths(VARIANTFILE_TYPE kind) const;

  // The entry goes behind the others of its kind, where and as the library would write it.
  void add(VARIANTFILE_TYPE kind, const std::string& path);
  // Takes out the entry that paths() gives at index.
  void remove(VARIANTFILE_TYPE kind, std::size_t index);

private:
  struct Entry {
    VARIANTFILE_TYPE kind;
    std::string path;
    std::size_t begin; // of its line
    std::size_t end;
  };
  std::vector<Entry> entries() const;
  void insertLine(std::size_t place, const std::string& line);

  std::string text_;
};

// A line of an include list, from 1, or a piece of one: the library loads longer lines in pieces.
struct IncludeListLine {
  std::size_t line;
  std::optional<VARIANTFILE_TYPE> kind; // of an entry; none on any other line
  std::string_view value;               // of an entry; empty without one
  std::string_view rest;                // what follows the value's second quote, or the whole line
};

void forEachLine(std::string_view includeList,
                 const std::function<void(const IncludeListLine&)>& tell);
bool isBlankText(std::string_view text);
// Whether text has what looks like an entry behind blanks, a byte order mark or a carriage return.
bool holdsEntry(std::string_view text);

// Why the library would not load an entry for such a path; null when it would.
const char* reasonAgainstEntry(VARIANTFILE_TYPE kind, const std::string& path);

// The text with new paths in the entries for which newPath gives one; every other byte stays.
std::string
rewrittenIncludeList(std::string_view text,
                     const std::function<std::optional<std::string>(const std::string&)>& newPath);

} // namespace tervix::tool
