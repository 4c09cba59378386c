#include "tools/tervix/changes/IncludeList.h"

#include <algorithm>
#include <array>

#include "tools/tervix/changes/QuotedLines.h"

namespace tervix::tool {
namespace {

constexpr std::size_t kLongestLine = 1023; // a longer one is loaded in pieces
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr std::string_view kBlanks = " \t\r\n";

// In the order in which the library writes them.
struct EntryForm {
  VARIANTFILE_TYPE kind;
  std::string_view keyword;
  std::string_view requiredInPath; // an entry without it, in this case, is not loaded
  const char* refusal;
};

constexpr std::array<EntryForm, 3> kForms = {
    {{VARIANTFILE_TYPE_INCLUDE, ".INC", ".inc",
      "the path of an include file of a profile must hold \".inc\", in lower case"},
     {VARIANTFILE_TYPE_LIBRARY, ".LIB", ".lib",
      "the path of a library of a profile must hold \".lib\", in lower case"},
     {VARIANTFILE_TYPE_STIMULUS, ".STMLIB", ".stl",
      "the path of a stimulus file of a profile must hold \".stl\", in lower case"}}};

const EntryForm* formOf(VARIANTFILE_TYPE kind) {
  return std::find_if(kForms.begin(), kForms.end(),
                      [&](const EntryForm& form) { return form.kind == kind; });
}

const EntryForm* formOf(std::string_view line) {
  const auto* const found = std::find_if(kForms.begin(), kForms.end(), [&](const EntryForm& form) {
    return beginsWith(line, form.keyword);
  });
  return found != kForms.end() ? found : nullptr;
}

bool holds(std::string_view text, std::string_view piece) {
  return text.find(piece) != std::string_view::npos;
}

std::string_view takePiece(std::string_view& text) {
  std::string_view head = text.substr(0, kLongestLine);
  const std::string_view piece = takeLine(head);
  text.remove_prefix(piece.size());
  return piece;
}

std::string_view behindQuotes(std::string_view line) {
  const auto place = quotedIn(line);
  const std::size_t end = place ? place->begin + place->length : line.size();
  return end < line.size() && line[end] == '"' ? line.substr(end + 1) : std::string_view();
}

std::string lineOf(const EntryForm& form, std::string path) {
  std::replace(path.begin(), path.end(), '/', '\\');
  return std::string(form.keyword).append("\t\"").append(path).append("\" ");
}

} // namespace

std::vector<IncludeList::Entry> IncludeList::entries() const {
  std::vector<Entry> entries;
  for (std::string_view rest = text_; !rest.empty();) {
    const std::size_t begin = text_.size() - rest.size();
    // deliberate: whole lines. A list with a longer one is not changed, as its pieces would move.
    const std::string_view line = takeLine(rest);
    const EntryForm* form = formOf(line);
    const std::size_t quote = line.find('"');
    if (form == nullptr || quote == std::string_view::npos)
      continue;
    // Up to the next quote; without one the library takes the line's end along.
    const std::string_view tail = line.substr(quote + 1);
    const std::string path(tail.substr(0, tail.find('"')));
    if (holds(path, form->requiredInPath))
      entries.push_back({form->kind, path, begin, begin + line.size()});
  }
  return entries;
}

std::vector<std::string> IncludeList::paths(VARIANTFILE_TYPE kind) const {
  std::vector<std::string> paths;
  for (const Entry& entry : entries())
    if (entry.kind == kind)
      paths.push_back(entry.path);
  return paths;
}

void IncludeList::add(VARIANTFILE_TYPE kind, const std::string& path) {
  const EntryForm* form = formOf(kind);
  const std::vector<Entry> present = entries();
  const auto before = std::find_if(present.rbegin(), present.rend(),
                                   [&](const Entry& entry) { return formOf(entry.kind) <= form; });
  std::size_t place = text_.size();
  if (before != present.rend())
    place = before->end;
  else if (!present.empty())
    place = present.front().begin;
  insertLine(place, lineOf(*form, path));
}

// Line ends are those of the text; a last line without one stays without.
void IncludeList::insertLine(std::size_t place, const std::string& line) {
  const std::size_t firstEnd = text_.find('\n');
  const bool hasCarriageReturns =
      firstEnd != std::string::npos && firstEnd > 0 && text_[firstEnd - 1] == '\r';
  const std::string lineEnd = hasCarriageReturns ? "\r\n" : "\n";
  const bool followsOpenLine = place > 0 && text_[place - 1] != '\n';
  text_.insert(place, followsOpenLine ? lineEnd + line : line + lineEnd);
}

void IncludeList::remove(VARIANTFILE_TYPE kind, std::size_t index) {
  for (const Entry& entry : entries()) {
    if (entry.kind != kind || index-- != 0)
      continue;
    const bool isOpenLine = text_[entry.end - 1] != '\n';
    text_.erase(entry.begin, entry.end - entry.begin);
    if (isOpenLine && !text_.empty()) {
      text_.pop_back();
      if (!text_.empty() && text_.back() == '\r')
        text_.pop_back();
    }
    return;
  }
}

void forEachLine(std::string_view includeList,
                 const std::function<void(const IncludeListLine&)>& tell) {
  for (std::size_t number = 1; !includeList.empty();) {
    const std::string_view line = takePiece(includeList);
    if (const EntryForm* form = formOf(line); form != nullptr)
      tell({number, form->kind, valueIn(line), behindQuotes(line)});
    else
      tell({number, std::nullopt, {}, line});
    if (line.back() == '\n')
      ++number;
  }
}

bool isBlankText(std::string_view text) {
  return text.find_first_not_of(kBlanks) == std::string_view::npos;
}

bool holdsEntry(std::string_view text) {
  if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark)
    text.remove_prefix(kByteOrderMark.size());
  while (!text.empty()) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    const std::size_t end = std::min(text.find('\r'), text.size());
    if (formOf(text) != nullptr && holds(text.substr(0, end), "\""))
      return true;
    text.remove_prefix(end);
  }
  return false;
}

const char* reasonAgainstEntry(VARIANTFILE_TYPE kind, const std::string& path) {
  const EntryForm* form = formOf(kind);
  if (!holds(path, form->requiredInPath))
    return form->refusal;
  // With its line end, which has two bytes on some systems.
  if (lineOf(*form, path).size() + 2 > kLongestLine)
    return "the path is too long for a line of an include list";
  return nullptr;
}

std::string
rewrittenIncludeList(std::string_view text,
                     const std::function<std::optional<std::string>(const std::string&)>& newPath) {
  return rewrittenLines(
      text, [&](std::string_view line, const std::string& value) -> std::optional<std::string> {
        return formOf(line) != nullptr ? newPath(value) : std::nullopt;
      });
}

} // namespace tervix::tool
