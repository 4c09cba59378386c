#include "ListEdits.h"

#include "Lines.h"
#include "Outline.h"

#include <algorithm>

namespace tervix::formats {

namespace {

Change insertion(std::size_t at, std::string text) {
  return {{at, at}, std::move(text)};
}

Change cut(std::size_t begin, std::size_t end) {
  return {{begin, end}, ""};
}

// With its comma, if it has one.
std::size_t endOf(const Element& element) {
  return element.comma ? *element.comma + 1 : element.value.end;
}

bool isGapBetween(std::string_view text, std::size_t begin, std::size_t end) {
  return isGap(pieceOf(text, {begin, end}));
}

bool isBlankBetween(std::string_view text, std::size_t begin, std::size_t end) {
  return isBlank(pieceOf(text, {begin, end}));
}

bool beginsLine(std::string_view text, std::size_t at) {
  return isBlankBetween(text, lineBegin(text, at), at);
}

bool isCommentNext(std::string_view text, std::size_t at) {
  return text.substr(skipBlanks(text, at), 1) == "#";
}

// Comments show how far elements are to be indented in a list that has none.
std::string indentInEmptyList(std::string_view text, Range list, std::size_t lastLine) {
  for (std::size_t line = lastLine; line > nextLine(text, list.begin);) {
    line = lineBegin(text, line - 1);
    if (isCommentNext(text, line)) {
      return indentTo(text, skipBlanks(text, line));
    }
  }
  const std::string indent = indentTo(text, list.end - 1);
  return indent + (indent.find('\t') == std::string::npos ? "  " : "\t");
}

std::string joined(const std::vector<std::string>& elements, std::string_view separator) {
  std::string text = elements.front();
  for (std::size_t i = 1; i < elements.size(); ++i) {
    text.append(1, ',').append(separator).append(elements[i]);
  }
  return text;
}

std::string joinedLines(std::string_view text, std::size_t at, const std::string& indent,
                        const std::vector<std::string>& elements) {
  return indent + joined(elements, std::string(lineBreakNear(text, at)) + indent);
}

Change addFirst(std::string_view text, Range list, const std::vector<std::string>& added) {
  const std::size_t end = list.end - 1;
  const std::size_t lastLine = lineBegin(text, end);
  if (lastLine <= list.begin) {
    return insertion(end, joined(added, " ") + std::string(pieceOf(text, {list.begin + 1, end})));
  }
  const std::string indent = indentInEmptyList(text, list, lastLine);
  return insertLine(text, lastLine, joinedLines(text, lastLine, indent, added) + ',');
}

// What parts the last two elements, as far as it can be repeated on their line.
std::string_view separator(std::string_view text, const std::vector<Element>& elements) {
  if (elements.size() > 1) {
    const Element& beforeLast = elements[elements.size() - 2];
    const std::string_view gap = pieceOf(text, {endOf(beforeLast), elements.back().value.begin});
    if (isBlank(gap)) {
      return gap;
    }
  }
  return " ";
}

std::vector<Change> addBehind(std::string_view text, const std::vector<Element>& elements,
                              const std::vector<std::string>& added) {
  const std::string between(separator(text, elements));
  const std::string parted = between + joined(added, between);
  const Element& last = elements.back();
  return {insertion(endOf(last), last.comma ? parted + ',' : ',' + parted)};
}

std::vector<Change> addLines(std::string_view text, Range list, const Element& last,
                             const std::string& indent, const std::vector<std::string>& added) {
  const std::size_t end = endOf(last);
  const std::string lines = joinedLines(text, end, indent, added);
  const std::string ending = last.comma ? "," : "";
  const std::string missing = last.comma ? "" : ",";
  if (nextLine(text, end) >= list.end) {
    return {insertion(end, missing + std::string(lineBreakNear(text, end)) + lines + ending)};
  }
  return {insertion(last.value.end, missing),
          insertLine(text, nextLine(text, end), lines + ending)};
}

const Element& firstOnLastLine(std::string_view text, const std::vector<Element>& elements) {
  const std::size_t line = lineBegin(text, elements.back().value.begin);
  return *std::find_if(elements.begin(), elements.end(),
                       [&](const Element& element) { return element.value.begin >= line; });
}

// The line of an element that shares it with nothing but its comma and a comment.
std::optional<Range> ownLine(std::string_view text, const Element& element) {
  const std::size_t end = endOf(element);
  const bool isAlone = beginsLine(text, element.value.begin) &&
                       isBlankBetween(text, element.value.end, element.comma.value_or(end)) &&
                       (isCommentNext(text, end) || isBlankBetween(text, end, lineEnd(text, end)));
  if (!isAlone) {
    return std::nullopt;
  }
  return Range{lineBegin(text, element.value.begin), nextLine(text, end)};
}

class Removal {
public:
  Removal(std::string_view text, const std::vector<Element>& elements, std::size_t index)
      : text_(text), element_(elements[index]),
        previous_(index > 0 ? &elements[index - 1] : nullptr),
        next_(index + 1 < elements.size() ? &elements[index + 1] : nullptr) {}

  std::vector<Change> changes() const {
    if (const std::optional<Range> line = ownLine(text_, element_)) {
      return withUnusedComma(cut(line->begin, line->end));
    }
    const std::size_t begin = element_.value.begin;
    const std::size_t end = endOf(element_);
    if (element_.comma && !isGapBetween(text_, element_.value.end, *element_.comma)) {
      return {cut(begin, element_.value.end), cut(*element_.comma, end)};
    }
    if (next_ == nullptr || !beginsOwnLine()) {
      if (const std::optional<std::size_t> from = endOfPrevious()) {
        return {cut(*from, end)};
      }
    }
    if (next_ != nullptr && isGapBetween(text_, end, next_->value.begin)) {
      return {cut(begin, next_->value.begin)};
    }
    return withUnusedComma(cut(begin, skipBlanks(text_, end)));
  }

private:
  // The comma before the last element, when none follows that.
  std::vector<Change> withUnusedComma(Change change) const {
    if (element_.comma || previous_ == nullptr) {
      return {std::move(change)};
    }
    return {cut(*previous_->comma, *previous_->comma + 1), std::move(change)};
  }

  bool beginsOwnLine() const {
    return previous_ == nullptr || lineBegin(text_, element_.value.begin) >= endOf(*previous_);
  }

  // From where a cut to the element's end leaves one comma less, if no comment is in the way.
  std::optional<std::size_t> endOfPrevious() const {
    if (previous_ == nullptr) {
      return std::nullopt;
    }
    const std::size_t comma = *previous_->comma;
    const std::size_t from = element_.comma ? comma + 1 : previous_->value.end;
    const bool isClear = isGapBetween(text_, from, std::max(from, comma)) &&
                         isGapBetween(text_, comma + 1, element_.value.begin);
    return isClear ? std::make_optional(from) : std::nullopt;
  }

  std::string_view text_;
  const Element& element_;
  const Element* previous_;
  const Element* next_;
};

} // namespace

std::vector<Change> addElements(std::string_view text, Range list,
                                const std::vector<std::string>& added) {
  const std::vector<Element> elements = elementsOf(text, list);
  if (elements.empty()) {
    return {addFirst(text, list, added)};
  }
  const Element& last = elements.back();
  const Element& first = firstOnLastLine(text, elements);
  const bool isAlone = &first == &last && beginsLine(text, last.value.begin);
  if (isAlone || isCommentNext(text, endOf(last))) {
    return addLines(text, list, last, indentTo(text, first.value.begin), added);
  }
  return addBehind(text, elements, added);
}

std::string newList(const std::vector<std::string>& elements) {
  return '[' + joined(elements, " ") + ']';
}

std::vector<Change> removeElement(std::string_view text, Range list, std::size_t index) {
  const std::vector<Element> elements = elementsOf(text, list);
  return Removal(text, elements, index).changes();
}

} // namespace tervix::formats
