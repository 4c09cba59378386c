#include "foundation/LineReader.h"

#include <algorithm>

namespace tervix {

// Called with less than one piece in the buffer: there is room behind it.
void LineReader::fill() {
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
            buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
  end_ -= begin_;
  begin_ = 0;
  while (!atEnd_ && end_ < kLongestPiece) {
    const auto count = file_.read(buffer_.data() + end_, buffer_.size() - end_);
    failed_ = !count;
    atEnd_ = !count || *count == 0;
    end_ += count.value_or(0);
  }
}

std::optional<std::string_view> LineReader::next() {
  const auto waiting = [this] {
    return std::string_view(buffer_.data() + begin_, std::min(end_ - begin_, kLongestPiece));
  };
  std::size_t lineEnd = waiting().find('\n');
  if (lineEnd == std::string_view::npos && end_ - begin_ < kLongestPiece) {
    fill();
    lineEnd = waiting().find('\n');
  }
  if (failed_ || begin_ == end_)
    return std::nullopt;
  const std::string_view piece =
      waiting().substr(0, lineEnd == std::string_view::npos ? std::string_view::npos : lineEnd + 1);
  begin_ += piece.size();
  return piece;
}

} // namespace tervix
