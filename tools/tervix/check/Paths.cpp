#include "tools/tervix/check/Paths.h"

#include <algorithm>

#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/Names.h"

namespace tervix::tool {
namespace {

constexpr std::string_view kSeparators = "/\\";

// Goes one step on from a full path without a separator at its end.
void step(std::string& place, std::string_view part) {
  if (part.empty() || part == ".")
    return;
  if (part != "..")
    place.append("/").append(part);
  else if (const std::size_t end = place.rfind('/'); end != std::string::npos)
    place.erase(end);
}

} // namespace

std::string folderOf(const std::string& path) {
  const std::size_t end = path.rfind('/');
  return path.substr(0, end == std::string::npos ? 0 : std::max<std::size_t>(end, 1));
}

std::string nameOf(const std::string& path) {
  std::size_t begin = path.size();
  while (begin != 0 && path[begin - 1] != '/' && path[begin - 1] != '\\')
    --begin;
  return path.substr(begin);
}

std::string stemOf(const std::string& name) {
  return name.substr(0, name.rfind('.'));
}

std::string cutStemOf(const std::string& name) {
  return name.substr(0, name.find('.'));
}

bool endsWith(const std::string& text, std::string_view ending) {
  return text.size() >= ending.size() &&
         isSameName(std::string_view(text).substr(text.size() - ending.size()), ending);
}

std::string placeAt(const std::string& base, const std::string& text) {
  const bool hasDrive = text.size() > 1 && text[1] == ':';
  std::string_view rest = text;
  rest.remove_prefix(hasDrive ? 2 : 0);
  std::string place = hasDrive ? text.substr(0, 2) : isFullText(text) ? std::string() : base;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find_first_of(kSeparators), rest.size());
    step(place, rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return place;
}

bool liesBelow(std::string_view place, std::string_view folder) {
  return place.size() > folder.size() && place[folder.size()] == '/' &&
         place.compare(0, folder.size(), folder) == 0;
}

std::string seenIn(const std::string& folder, const std::string& path) {
  if (liesBelow(path, folder))
    return path.substr(folder.size() + 1);
  return path;
}

} // namespace tervix::tool
