#include "foundation/LineReader.h"

#include <algorithm>

namespace tervix {

platform::FileReader::Opening LineReader::open(const std::string& path) {
  begin_ = end_ = 0;
  std::optional<std::size_t> count = 0;
  const auto opening = file_.open(path, buffer_.data(), buffer_.size(), count);
  take(count);
  holdsBeginning_ = opening == platform::FileReader::Opening::kOpened;
  return opening;
}

void LineReader::take(const std::optional<std::size_t>& count) {
  failed_ = !count;
  end_ += count.value_or(0);
  atEnd_ = !count || *count == 0 || file_.isAtEnd();
}

bool LineReader::rewind() {
  if (holdsBeginning_)
    begin_ = 0;
  return holdsBeginning_;
}

// Called with less than one piece in the buffer: there is room behind it.
void LineReader::fill() {
  holdsBeginning_ = false;
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
            buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
  end_ -= begin_;
  begin_ = 0;
  while (!atEnd_ && end_ < kLongestPiece)
    take(file_.read(buffer_.data() + end_, buffer_.size() - end_));
}

std::optional<std::string_view> LineReader::next() {
  const auto waiting = [this] {
    return std::string_view(buffer_.data() + begin_, std::min(end_ - begin_, kLongestPiece));
  };
  std::size_t lineEnd = waiting().find('\n');
  if (lineEnd == std::string_view::npos && end_ - begin_ < kLongestPiece && !atEnd_) {
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
