#include "tools/tervix/changes/Names.h"

#include <algorithm>
#include <array>

#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

// The six with bytes are com1 to lpt3 with a raised digit.
constexpr std::array<const char*, 30> kDeviceNames = {
    "conin$",      "conout$",     "com\xc2\xb9", "com\xc2\xb2", "com\xc2\xb3", "lpt\xc2\xb9",
    "lpt\xc2\xb2", "lpt\xc2\xb3", "con",         "prn",         "aux",         "nul",
    "com1",        "com2",        "com3",        "com4",        "com5",        "com6",
    "com7",        "com8",        "com9",        "lpt1",        "lpt2",        "lpt3",
    "lpt4",        "lpt5",        "lpt6",        "lpt7",        "lpt8",        "lpt9"};
constexpr const char* kForbidden = "<>:\"|?*";
constexpr const char* kReasonForbidden = "it holds one of < > : \" | ? *";
constexpr const char* kReasonControl = "it holds a control character";
constexpr const char* kReasonDevice = "some systems keep it for a device";
constexpr std::size_t kLongestName = 200; // leaves room for the suffixes of the files

char lowered(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isDeviceName(const std::string& name) {
  return std::any_of(kDeviceNames.begin(), kDeviceNames.end(),
                     [&](const char* device) { return isSameName(name, device); });
}

bool holdsControl(const std::string& name) {
  // U+0080 to U+009F are control characters, too.
  for (std::size_t at = name.find('\xc2'); at != std::string::npos; at = name.find('\xc2', at + 1))
    if (at + 1 < name.size() && static_cast<unsigned char>(name[at + 1]) < 0xa0)
      return true;
  return std::any_of(name.begin(), name.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; });
}

const char* reasonAgainst(const std::string& name) {
  if (name.empty())
    return "it is empty";
  if (name.find_first_of("/\\") != std::string::npos)
    return "it holds a separator";
  // A dot ends the stem of every file name that the library composes from the name.
  if (name.find('.') != std::string::npos)
    return "it holds a dot";
  if (name.find_first_of(kForbidden) != std::string::npos)
    return kReasonForbidden;
  if (holdsControl(name))
    return kReasonControl;
  // Project and design files hold text, and JSON too.
  if (!isUtf8(name))
    return "it is no valid UTF-8";
  if (name.front() == ' ' || name.back() == ' ')
    return "it begins or ends with a blank";
  if (name.size() > kLongestName)
    return "it is longer than 200 characters";
  if (isDeviceName(name))
    return kReasonDevice;
  return nullptr;
}

} // namespace

bool isSameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lowered(x) == lowered(y); });
}

int compareNames(std::string_view a, std::string_view b) {
  const std::size_t both = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < both; ++i) {
    const auto x = static_cast<unsigned char>(lowered(a[i]));
    const auto y = static_cast<unsigned char>(lowered(b[i]));
    if (x != y)
      return x - y;
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

std::string lowered(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    c = lowered(c);
  return result;
}

void requireUsableName(const std::string& name, const char* what) {
  if (const char* reason = reasonAgainst(name))
    throw Failure("a " + std::string(what) + " cannot be named " + inQuotes(name) + ": " + reason);
}

const char* reasonAgainstOnWindows(const std::string& fileName) {
  for (const char c : fileName) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
      return kReasonControl;
    if (c == '\\') // which separates there
      return "it holds a separator";
    // Nearly all characters of a name are letters, and need no closer look.
    if (c < 'A' && std::string_view(kForbidden).find(c) != std::string_view::npos)
      return kReasonForbidden;
    if (c == '|')
      return kReasonForbidden;
  }
  if (!fileName.empty() && (fileName.back() == ' ' || fileName.back() == '.'))
    return "it ends with a dot or a blank";
  // A device keeps its name whatever ending follows.
  const std::size_t stem = std::min(fileName.find('.'), fileName.size());
  const bool mayBeDevice = stem >= 3 && stem <= 7;
  return mayBeDevice && isDeviceName(fileName.substr(0, stem)) ? kReasonDevice : nullptr;
}

} // namespace tervix::tool
