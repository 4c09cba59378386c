#include "tools/tervix/changes/Names.h"

#include <algorithm>
#include <array>

#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

constexpr std::array<const char*, 22> kDeviceNames = {
    "con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4", "com5", "com6", "com7",
    "com8", "com9", "lpt1", "lpt2", "lpt3", "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9"};
constexpr std::size_t kLongestName = 200; // leaves room for the suffixes of the files

char lowered(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

const char* reasonAgainst(const std::string& name) {
  if (name.empty())
    return "it is empty";
  if (name.find_first_of("/\\") != std::string::npos)
    return "it holds a separator";
  // A dot ends the stem of every file name that the library composes from the name.
  if (name.find('.') != std::string::npos)
    return "it holds a dot";
  if (name.find_first_of("<>:\"|?*") != std::string::npos)
    return "it holds one of < > : \" | ? *";
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; };
  if (std::any_of(name.begin(), name.end(), isControl))
    return "it holds a control character";
  // Project and design files hold text, and JSON too.
  if (!isUtf8(name))
    return "it is no valid UTF-8";
  if (name.front() == ' ' || name.back() == ' ')
    return "it begins or ends with a blank";
  if (name.size() > kLongestName)
    return "it is longer than 200 characters";
  const auto isName = [&](const char* device) { return isSameName(name, device); };
  if (std::any_of(kDeviceNames.begin(), kDeviceNames.end(), isName))
    return "some systems keep it for a device";
  return nullptr;
}

} // namespace

bool isSameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lowered(x) == lowered(y); });
}

void requireUsableName(const std::string& name, const char* what) {
  if (const char* reason = reasonAgainst(name))
    throw Failure("a " + std::string(what) + " cannot be named " + inQuotes(name) + ": " + reason);
}

} // namespace tervix::tool
