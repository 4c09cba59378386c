#ifndef TERVIX_FORMATS_MISTAKE_RECORD_H
#define TERVIX_FORMATS_MISTAKE_RECORD_H

#include "Mistake.h"

#include <new>
#include <utility>

namespace tervix::formats {

void forgetMistake() noexcept;
void rememberMistake(Mistake mistake) noexcept;
void rememberMistake(const std::string& file, const char* text) noexcept;

// Runs a read or an edit that throws a Mistake where it has to give up. Callers across the
// library's border see no exception of any kind, only that nothing was read.
template <typename Read>
auto rememberingMistakes(const std::string& file, Read read) noexcept
    -> std::optional<decltype(read())> {
  forgetMistake();
  try {
    return read();
  } catch (Mistake& mistake) {
    rememberMistake(std::move(mistake));
  } catch (const std::bad_alloc&) {
    rememberMistake(file, "out of memory");
  } catch (...) {
    rememberMistake(file, "the file cannot be handled");
  }
  return std::nullopt;
}

} // namespace tervix::formats

#endif
