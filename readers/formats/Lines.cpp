#include "Lines.h"

#include "FileText.h"
#include "Utf8.h"

#include <algorithm>

namespace tervix::formats {

namespace {

constexpr std::string_view blanks = " \t";
constexpr auto npos = std::string_view::npos;

} // namespace

std::size_t lineBegin(std::string_view text, std::size_t at) {
  const std::size_t before = text.substr(0, at).rfind('\n');
  return before == npos ? text.size() - withoutByteOrderMark(text).size() : before + 1;
}

std::size_t lineEnd(std::string_view text, std::size_t at) {
  const std::size_t end = text.find('\n', at);
  if (end == npos) {
    return text.size();
  }
  return end > at && text[end - 1] == '\r' ? end - 1 : end;
}

std::size_t nextLine(std::string_view text, std::size_t at) {
  const std::size_t end = text.find('\n', at);
  return end == npos ? text.size() : end + 1;
}

std::string_view lineBreakNear(std::string_view text, std::size_t at) {
  std::size_t end = text.substr(0, at).rfind('\n');
  if (end == npos) {
    end = text.find('\n');
  }
  const bool isDouble = end != npos && end > 0 && text[end - 1] == '\r';
  return isDouble ? "\r\n" : "\n";
}

std::string indentTo(std::string_view text, std::size_t at) {
  std::string indent;
  for (const char c : pieceOf(text, {lineBegin(text, at), at})) {
    if (startsCharacter(c)) {
      indent += c == '\t' ? '\t' : ' ';
    }
  }
  return indent;
}

std::size_t skipBlanks(std::string_view text, std::size_t at) {
  return std::min(text.find_first_not_of(blanks, at), text.size());
}

bool isBlank(std::string_view piece) {
  return piece.find_first_not_of(blanks) == npos;
}

bool isGap(std::string_view piece) {
  return piece.find_first_not_of(" \t\r\n") == npos;
}

Change insertLine(std::string_view text, std::size_t at, const std::string& line) {
  const std::string lineBreak(lineBreakNear(text, at));
  const bool beginsLine = at == lineBegin(text, at);
  return {{at, at}, beginsLine ? line + lineBreak : lineBreak + line};
}

} // namespace tervix::formats
