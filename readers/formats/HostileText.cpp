#include "HostileText.h"

#include "Mistake.h"
#include "QuotedText.h"
#include "Utf8.h"

#include <algorithm>
#include <cstddef>

namespace tervix::formats {

namespace {

constexpr int mostDotsInKey = 32;

[[noreturn]] void refuseAt(std::size_t offset, std::string_view text, const std::string& file,
                           const char* reason) {
  const std::string_view before = text.substr(0, offset);
  const std::string_view line = before.substr(before.rfind('\n') + 1);
  throw Mistake{
      file, reason, static_cast<unsigned>(1 + std::count(before.begin(), before.end(), '\n')),
      static_cast<unsigned>(1 + std::count_if(line.begin(), line.end(), startsCharacter))};
}

bool isForbidden(unsigned char c) {
  return c == 0x7F || (c < ' ' && c != '\t' && c != '\n' && c != '\r');
}

// Steps over what is quoted or commented out, to find the dots that part a key.
class KeyScanner {
public:
  explicit KeyScanner(std::string_view text) : text_(text) {}

  // The first dot too many, or npos.
  std::size_t findOverlongKey() {
    int dots = 0;
    while (at_ < text_.size()) {
      const char c = text_[at_];
      if (c == '"' || c == '\'') {
        at_ = endOfQuoted(text_, at_);
        continue;
      }
      if (c == '#') {
        at_ = std::min(text_.find('\n', at_), text_.size());
        continue;
      }
      if (c == '.' && ++dots > mostDotsInKey) {
        return at_;
      }
      if (std::string_view("\n=,[]{}").find(c) != std::string_view::npos) {
        dots = 0;
      }
      ++at_;
    }
    return std::string_view::npos;
  }

private:
  std::string_view text_;
  std::size_t at_ = 0;
};

} // namespace

void refuseHostileText(const std::string& file, std::string_view text) {
  const char* const end = text.data() + text.size();
  const char* const control = std::find_if(text.data(), end, isForbidden);
  if (control != end) {
    refuseAt(static_cast<std::size_t>(control - text.data()), text, file,
             "found a control character, which has no place in a text file");
  }
  if (const std::size_t dot = KeyScanner(text).findOverlongKey(); dot != std::string_view::npos) {
    refuseAt(dot, text, file, "found a key of too many dotted parts");
  }
}

} // namespace tervix::formats
