#include "tools/tervix/changes/NamedPath.h"

#include <algorithm>
#include <filesystem>

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

std::string forward(std::string text) {
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

bool startsWith(const std::string& text, const char* prefix) {
  return text.rfind(prefix, 0) == 0;
}

std::string withSeparatorsOf(const std::string& like, std::string text) {
  if (like.find('\\') != std::string::npos)
    std::replace(text.begin(), text.end(), '/', '\\');
  return text;
}

} // namespace

bool isFullText(const std::string& text) {
  return (!text.empty() && (text.front() == '/' || text.front() == '\\')) ||
         (text.size() > 1 && text[1] == ':');
}

std::string placeOf(const NamedPath& named) {
  const std::string text = forward(named.text);
  const std::string full = isFullText(text) ? text : named.base + "/" + text;
  return fs::path(full).lexically_normal().generic_string();
}

std::string relativeToTheLibrary(const std::string& path) {
  const std::string text = forward(path);
  const bool looksFull = !isFullText(text) && text.size() > 2 && text[2] == '/' &&
                         !startsWith(text, "../") && !startsWith(text, "./");
  const char* here = path.find('\\') != std::string::npos ? ".\\" : "./";
  return looksFull ? here + path : path;
}

std::string relativeText(const std::string& place, const std::string& base, const std::string& like,
                         bool isNeverBare) {
  std::string text = fs::path(place).lexically_relative(base).generic_string();
  const bool isBare = isNeverBare && text.find('/') == std::string::npos;
  if (!startsWith(text, "../") && (startsWith(forward(like), "./") || isBare))
    text.insert(0, "./");
  return withSeparatorsOf(like, relativeToTheLibrary(text));
}

std::string renamedText(const NamedPath& named, const std::string& newBase, const PathMap& map) {
  const std::string newPlace = map(placeOf(named));
  if (newPlace == placeOf({named.text, newBase}))
    return named.text;
  return isFullText(named.text) ? withSeparatorsOf(named.text, newPlace)
                                : relativeText(newPlace, newBase, named.text);
}

} // namespace tervix::tool
