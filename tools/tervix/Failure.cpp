#include "tools/tervix/Failure.h"

#include "CTervixProject.h"
#include "foundation/ErrorTable.h"
#include "readers/formats/Mistake.h"
#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

// What our readers say of the file that they could not read; nothing when it was not them.
std::string placeOfMistake() {
  const auto mistake = formats::lastMistake();
  if (!mistake)
    return {};
  std::string place = "\n  " + printable(mistake->file);
  if (mistake->line != 0)
    place += ":" + std::to_string(mistake->line) + ":" + std::to_string(mistake->column);
  return place + ": " + printable(mistake->text);
}

std::string reasonFor(unsigned long code) {
  std::string reason = placeOfMistake();
  if (reason.empty() && code == kCannotReadDesign)
    reason = "\n  ZelDsnReader.dll was not found beside the library, or gave no reason.";
  return reason;
}

std::string lastErrorText(unsigned long& code) {
  CTervixProject any;
  std::string text;
  any.getLastErrorCode(code);
  any.getLastErrorString(text);
  return "error " + std::to_string(code) + ": " + printable(text);
}

} // namespace

Failure libraryFailure(unsigned long status, const std::string& what) {
  unsigned long code = 0;
  const std::string text = lastErrorText(code);
  // A bare status tells nothing of itself, and the last error is then an older one.
  return code == status ? Failure(text + reasonFor(code)) : Failure(what);
}

Failure failureWithLastError(const std::string& what) {
  unsigned long code = 0;
  const std::string text = lastErrorText(code);
  return Failure(code != 0 ? what + "\n  " + text : what);
}

} // namespace tervix::tool
