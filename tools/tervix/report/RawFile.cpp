#include "tools/tervix/report/RawFile.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include "foundation/Text.h"
#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

constexpr std::size_t kLongestLine = 4096; // the rest of a longer one is passed over
constexpr std::size_t kLongestWord = 80;
constexpr std::uint64_t kMostVariables = 20000;
constexpr std::size_t kLongestName = 120;
constexpr std::string_view kFirstField = "title:";
constexpr std::string_view kBlanks = " \t\r";

std::string_view trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos)
    return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

std::vector<std::string> wordsOf(std::string_view text) {
  std::vector<std::string> words;
  for (text = trimmed(text); !text.empty();) {
    const std::size_t end = std::min(text.find_first_of(kBlanks), text.size());
    words.emplace_back(text.substr(0, end));
    text = trimmed(text.substr(end));
  }
  return words;
}

bool toCount(std::string_view text, std::uint64_t& count) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
  return error == std::errc() && end == text.data() + text.size();
}

// Also "nan" and "inf", in whatever way a system spells them.
bool toNumber(std::string_view text, double& number) {
  if (!text.empty() && text.front() == '+')
    text.remove_prefix(1);
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc::result_out_of_range)
    number = text.find('-', 1) == std::string_view::npos ? HUGE_VAL : 0; // by its exponent
  else if (error != std::errc())
    return false;
  if (end != text.data() + text.size() && *end == '#')
    number = std::numeric_limits<double>::quiet_NaN();
  else if (end != text.data() + text.size())
    return false;
  return true;
}

bool isLogGrid(std::string_view word) {
  return word == "grid=2" || word == "grid=3"; // both axes, the scale's axis
}

} // namespace

bool isRawOutput(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  std::string begin(kFirstField.size(), '\0');
  stream.read(begin.data(), static_cast<std::streamsize>(begin.size()));
  return stream && toLowerCase(begin) == kFirstField;
}

RawFile::RawFile(const std::string& path) : stream_(path, std::ios::binary) {
  if (!stream_)
    fail("it cannot be opened");
}

bool RawFile::fail(const std::string& mistake) {
  if (mistake_.empty())
    mistake_ = mistake;
  return false;
}

bool RawFile::endEarly() {
  if (plot_.points == 0)
    return fail("it ends within point " + std::to_string(rowsRead_));
  return fail("it ends after " + std::to_string(rowsRead_) + " of the " +
              std::to_string(plot_.points) + " points that its header tells of");
}

bool RawFile::nextPlot() {
  if (!mistake_.empty())
    return false;
  // Lines of other kinds, as empty ones, may stand between two plots.
  int next = stream_.peek();
  while (next == '\n' || next == '\r') {
    stream_.get();
    next = stream_.peek();
  }
  if (next == std::ifstream::traits_type::eof())
    return false;
  plot_ = RawPlot();
  variables_ = 0;
  rowsRead_ = 0;
  if (!readHeader())
    return false;
  rows_ = stream_.tellg();
  return true;
}

void RawFile::rewind() {
  stream_.clear();
  stream_.seekg(rows_);
  rowsRead_ = 0;
  mistake_.clear();
}

bool RawFile::readHeader() {
  std::string line;
  bool isFirst = true;
  while (readLine(line)) {
    const std::size_t colon = line.find(':');
    const std::string name = toLowerCase(std::string_view(line).substr(0, colon));
    if (colon == std::string::npos || (isFirst && name + ":" != kFirstField))
      return fail(isFirst ? "what follows is no plot" : "a line of a header is none");
    isFirst = false;
    const std::string_view value = trimmed(std::string_view(line).substr(colon + 1));
    if (name == "variables") {
      if (!readVariables(std::string(value), variables_))
        return false;
    } else if (name == "values" || name == "binary") {
      plot_.isBinary = name == "binary";
      return !plot_.variables.empty() || fail("a header has no variables");
    } else if (!readField(name, value)) {
      return false;
    }
  }
  return fail("it ends within a header");
}

bool RawFile::readField(std::string_view name, std::string_view value) {
  if (name == "title") {
    plot_.title = value;
  } else if (name == "plotname") {
    plot_.name = value;
  } else if (name == "flags") {
    const std::string flags = toLowerCase(value);
    plot_.isComplex = flags.find("complex") != std::string::npos;
    if (flags.find("unpadded") != std::string::npos)
      return fail("its vectors are of different lengths (unpadded)");
  } else if (name == "no. variables") {
    if (!toCount(value, variables_) || variables_ == 0 || variables_ > kMostVariables)
      return fail("its number of variables is " + inQuotes(value));
  } else if (name == "no. points") {
    if (!toCount(value, plot_.points))
      return fail("its number of points is " + inQuotes(value));
  }
  return true; // others, as the date, are not needed
}

// The first one may stand on the line of the field itself.
bool RawFile::readVariables(std::string line, std::uint64_t count) {
  for (std::uint64_t number = 0; number < count; ++number, line.clear()) {
    if (line.empty() && !readLine(line))
      return fail("it ends within a header");
    const std::vector<std::string> words = wordsOf(line);
    std::uint64_t told = 0;
    if (words.size() < 3 || !toCount(words[0], told))
      return fail("its header tells of " + std::to_string(count) + " variables and names " +
                  std::to_string(number));
    plot_.variables.push_back({words[1].substr(0, kLongestName), words[2].substr(0, kLongestName),
                               std::any_of(words.begin() + 3, words.end(), isLogGrid)});
  }
  return true;
}

bool RawFile::nextRow(std::vector<double>& row) {
  if (!mistake_.empty() || (plot_.points != 0 && rowsRead_ == plot_.points))
    return false;
  row.resize(plot_.width());
  if (plot_.points == 0 && isAtNextPlot())
    return false;
  if (!(plot_.isBinary ? readBinaryRow(row) : readAsciiRow(row)))
    return false;
  ++rowsRead_;
  return true;
}

bool RawFile::readBinaryRow(std::vector<double>& row) {
  const std::size_t size = row.size() * sizeof(double);
  bytes_.resize(size);
  stream_.read(bytes_.data(), static_cast<std::streamsize>(size));
  if (stream_.gcount() == 0 && plot_.points == 0)
    return false;
  if (static_cast<std::size_t>(stream_.gcount()) != size)
    return endEarly();
  std::memcpy(row.data(), bytes_.data(), size);
  return true;
}

// The number of the point, and then a word for each variable: "1.5", or "1.5,-2" for a complex one.
bool RawFile::readAsciiRow(std::vector<double>& row) {
  std::uint64_t number = 0;
  if (!readWord(word_))
    return plot_.points == 0 ? false : endEarly();
  if (!toCount(word_, number))
    return fail("point " + std::to_string(rowsRead_) + " begins with " + inQuotes(word_));
  const std::size_t parts = plot_.isComplex ? 2 : 1;
  for (std::size_t at = 0; at < row.size(); at += parts) {
    if (!readWord(word_))
      return endEarly();
    const std::string_view word = word_;
    const std::size_t comma = plot_.isComplex ? std::min(word.find(','), word.size()) : word.size();
    const bool isRead = toNumber(word.substr(0, comma), row[at]) &&
                        (!plot_.isComplex ||
                         (comma < word.size() && toNumber(word.substr(comma + 1), row[at + 1])));
    if (!isRead)
      return fail("a value of point " + std::to_string(rowsRead_) + " is " + inQuotes(word));
  }
  // The line ends here, so that the next plot begins with a line.
  if (stream_.peek() == '\r')
    stream_.get();
  if (stream_.peek() == '\n')
    stream_.get();
  return true;
}

// Where a header does not tell of its points, as one of no points does not, the next one ends them.
bool RawFile::isAtNextPlot() {
  while (!plot_.isBinary && (stream_.peek() == '\n' || stream_.peek() == '\r'))
    stream_.get();
  if (stream_.peek() != 'T' && stream_.peek() != 't')
    return false; // at once, as there may be a great many rows
  const std::streampos here = stream_.tellg();
  std::string begin(kFirstField.size(), '\0');
  stream_.read(begin.data(), static_cast<std::streamsize>(begin.size()));
  stream_.clear();
  stream_.seekg(here);
  return toLowerCase(begin) == kFirstField;
}

bool RawFile::readLine(std::string& line) {
  line.clear();
  std::streambuf& buffer = *stream_.rdbuf();
  for (int c = buffer.sbumpc(); c != std::char_traits<char>::eof(); c = buffer.sbumpc()) {
    if (c == '\n')
      return true;
    if (line.size() < kLongestLine)
      line += static_cast<char>(c);
  }
  return !line.empty();
}

bool RawFile::readWord(std::string& word) {
  word.clear();
  std::streambuf& buffer = *stream_.rdbuf();
  int c = buffer.sgetc();
  while (c == ' ' || c == '\t' || c == '\n' || c == '\r')
    c = buffer.snextc();
  for (; c > ' ' && word.size() < kLongestWord; c = buffer.snextc())
    word += static_cast<char>(c);
  return !word.empty() && c != std::char_traits<char>::eof(); // which may be but its beginning
}

} // namespace tervix::tool
