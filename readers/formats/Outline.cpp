#include "Outline.h"

#include "Lines.h"
#include "QuotedText.h"
#include "Toml.h"

#include <algorithm>

namespace tervix::formats {

namespace {

constexpr char nothing = '\0';

bool isQuote(char c) {
  return c == '"' || c == '\'';
}

std::string unquoted(std::string_view part) {
  if (!isQuote(part.front())) {
    return std::string(part);
  }
  const toml::parse_result parsed = toml::parse(std::string(part) + " = 0");
  return parsed && !parsed.table().empty() ? std::string(parsed.table().cbegin()->first.str())
                                           : std::string(part);
}

// Takes what comes next in the text. Text that is not TOML gives ranges of no use, but inside it.
class Scanner {
public:
  explicit Scanner(std::string_view text, std::size_t at) : text_(text), at_(at) {}

  std::size_t at() const { return at_; }
  char next() const { return at_ < text_.size() ? text_[at_] : nothing; }
  bool isAtEnd() const { return at_ >= text_.size(); }

  bool take(char c) {
    const bool taken = !isAtEnd() && text_[at_] == c;
    at_ += taken ? 1 : 0;
    return taken;
  }

  // To what is neither blank, nor line end, nor comment.
  void skipGap() {
    for (at_ = endOfRun(" \t\r\n"); next() == '#'; at_ = endOfRun(" \t\r\n")) {
      at_ = lineEnd(text_, at_);
    }
  }

  Key takeKey() {
    Key key;
    do {
      const Range part = takeKeyPart();
      if (key.parts.empty()) {
        key.first = part;
      }
      key.parts.push_back(unquoted(pieceOf(text_, part)));
      at_ = skipBlanks(text_, at_);
    } while (take('.') && !isAtEnd());
    return key;
  }

  KeyValue takeItem() {
    KeyValue item{takeKey(), {}};
    take('=');
    at_ = skipBlanks(text_, at_);
    item.value = takeValue();
    return item;
  }

  Range takeValue() {
    const std::size_t begin = at_;
    if (isQuote(next())) {
      at_ = endOfQuoted(text_, at_);
    } else if (next() == '[' || next() == '{') {
      skipBrackets();
    } else {
      skipBareValue();
    }
    return {begin, at_};
  }

private:
  std::size_t endOfRun(std::string_view characters) const {
    return std::min(text_.find_first_not_of(characters, at_), text_.size());
  }

  Range takeKeyPart() {
    at_ = skipBlanks(text_, at_);
    const std::size_t begin = std::min(at_, text_.size() - 1);
    at_ = isQuote(next()) ? endOfQuoted(text_, at_)
                          : std::min(text_.find_first_of(" \t.=]}#\r\n", begin + 1), text_.size());
    return {begin, at_};
  }

  void skipBrackets() {
    int depth = 0;
    do {
      skipGap();
      const char c = next();
      depth += c == '[' || c == '{' ? 1 : 0;
      depth -= c == ']' || c == '}' ? 1 : 0;
      at_ = isQuote(c) ? endOfQuoted(text_, at_) : std::min(at_ + 1, text_.size());
    } while (depth > 0 && !isAtEnd());
  }

  // A number, a date or the like; a date may have a blank before its time.
  void skipBareValue() {
    const std::size_t begin = at_;
    at_ = std::min(text_.find_first_of(",]}#\r\n", begin + 1), text_.size());
    while (at_ > begin && isBlank(text_.substr(at_ - 1, 1))) {
      --at_;
    }
  }

  std::string_view text_;
  std::size_t at_;
};

Table takeHeader(Scanner& scanner) {
  Table table;
  table.header.begin = scanner.at();
  scanner.take('[');
  scanner.take('[');
  table.name = scanner.takeKey();
  scanner.take(']');
  scanner.take(']');
  table.header.end = scanner.at();
  return table;
}

// What stands between the brackets of a list or an inline table, with its comments and commas.
template <typename Take> void takeEach(std::string_view text, Range brackets, Take take) {
  const std::string_view inside = text.substr(0, brackets.end - 1);
  Scanner scanner(inside, brackets.begin + 1);
  for (scanner.skipGap(); !scanner.isAtEnd(); scanner.skipGap()) {
    take(scanner);
  }
}

} // namespace

std::vector<Table> tablesOf(std::string_view text) {
  std::vector<Table> tables(1);
  Scanner scanner(text, lineBegin(text, 0));
  for (scanner.skipGap(); !scanner.isAtEnd(); scanner.skipGap()) {
    if (scanner.next() == '[') {
      tables.push_back(takeHeader(scanner));
    } else {
      tables.back().items.push_back(scanner.takeItem());
    }
  }
  return tables;
}

std::vector<KeyValue> itemsOf(std::string_view text, Range inlineTable) {
  std::vector<KeyValue> items;
  takeEach(text, inlineTable, [&](Scanner& scanner) {
    items.push_back(scanner.takeItem());
    scanner.skipGap();
    scanner.take(',');
  });
  return items;
}

std::vector<Element> elementsOf(std::string_view text, Range list) {
  std::vector<Element> elements;
  takeEach(text, list, [&](Scanner& scanner) {
    Element element{scanner.takeValue(), std::nullopt};
    scanner.skipGap();
    if (const std::size_t at = scanner.at(); scanner.take(',')) {
      element.comma = at;
    }
    elements.push_back(element);
  });
  return elements;
}

} // namespace tervix::formats
