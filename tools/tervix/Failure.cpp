#include "tools/tervix/Failure.h"

#include "CTervixProject.h"
#include "readers/formats/Mistake.h"

namespace tervix::tool {
namespace {

std::string placeOfMistake() {
  const auto mistake = formats::lastMistake();
  if (!mistake)
    return {};
  std::string place = "\n  " + mistake->file;
  if (mistake->line != 0)
    place += ":" + std::to_string(mistake->line) + ":" + std::to_string(mistake->column);
  return place + ": " + mistake->text;
}

} // namespace

Failure libraryFailure(unsigned long status, const std::string& what) {
  CTervixProject any;
  unsigned long code = 0;
  any.getLastErrorCode(code);
  // A bare status tells nothing of itself, and the last error is then an older one.
  if (code != status)
    return Failure(what);
  std::string text;
  any.getLastErrorString(text);
  return Failure("error " + std::to_string(code) + ": " + text + placeOfMistake());
}

} // namespace tervix::tool
