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

bool isFull(const std::string& text) {
  return (!text.empty() && text.front() == '/') || (text.size() > 1 && text[1] == ':');
}

bool startsWith(const std::string& text, const char* prefix) {
  return text.rfind(prefix, 0) == 0;
}

} // namespace

std::string placeOf(const NamedPath& named) {
  const std::string text = forward(named.text);
  const std::string full = isFull(text) ? text : named.base + "/" + text;
  return fs::path(full).lexically_normal().generic_string();
}

std::string relativeToTheLibrary(const std::string& path) {
  const std::string text = forward(path);
  const bool looksFull = !isFull(text) && text.size() > 2 && text[2] == '/' &&
                         !startsWith(text, "../") && !startsWith(text, "./");
  const char* here = path.find('\\') != std::string::npos ? ".\\" : "./";
  return looksFull ? here + path : path;
}

std::string renamedText(const NamedPath& named, const std::string& newBase, const PathMap& map) {
  const std::string newPlace = map(placeOf(named));
  if (newPlace == placeOf({named.text, newBase}))
    return named.text;
  const std::string text = forward(named.text);
  std::string renamed = newPlace;
  if (!isFull(text)) {
    renamed = fs::path(newPlace).lexically_relative(newBase).generic_string();
    renamed = startsWith(text, "./") && !startsWith(renamed, "../") ? "./" + renamed
                                                                    : relativeToTheLibrary(renamed);
  }
  if (named.text.find('\\') != std::string::npos)
    std::replace(renamed.begin(), renamed.end(), '/', '\\');
  return renamed;
}

} // namespace tervix::tool
