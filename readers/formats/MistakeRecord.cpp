#include "MistakeRecord.h"

namespace tervix::formats {

namespace {

std::optional<Mistake>& record() noexcept {
  static std::optional<Mistake> last;
  return last;
}

} // namespace

std::optional<Mistake> lastMistake() {
  return record();
}

void forgetMistake() noexcept {
  record().reset();
}

void rememberMistake(Mistake mistake) noexcept {
  record() = std::move(mistake);
}

void rememberMistake(const std::string& file, const char* text) noexcept {
  Mistake mistake;
  try {
    mistake.text = text;
    mistake.file = file;
  } catch (const std::bad_alloc&) {
    // Even then there is a mistake to ask for, if one that says less.
  }
  rememberMistake(std::move(mistake));
}

} // namespace tervix::formats
