#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "TervixFiles.h"
#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "foundation/platform/Platform.h"

namespace {

constexpr std::string_view kSeparators = "/\\";
constexpr std::string_view kHere = "./";
constexpr std::string_view kAbove = "../";
constexpr std::string_view kMarkerExtension = "mrk";
constexpr std::string_view kDefaultMarker = "default.mrk";

bool startsWith(std::string_view text, std::string_view prefix) {
  return text.substr(0, prefix.size()) == prefix;
}

bool startsWithPath(std::string_view path, std::string_view prefix) {
  return tervix::equalsAsPath(path.substr(0, prefix.size()), prefix);
}

// The folder above base, which may end in a separator; none when base does not tell.
std::optional<std::string_view> folderAbove(std::string_view base) {
  if (!base.empty() && base.back() == '/')
    base.remove_suffix(1);
  const std::size_t slash = base.rfind('/');
  if (slash == std::string_view::npos)
    return std::nullopt;
  return base.substr(0, slash);
}

// The path that a relative one stands for as seen from a folder, all with forward slashes.
std::optional<std::string> absoluteFrom(std::string_view folder, std::string_view relative) {
  if (startsWith(relative, kHere)) {
    if (!tervix::contains(folder, "/"))
      return std::nullopt;
    const char* separator = folder.back() == '/' ? "" : "/";
    return tervix::joined({folder, separator, relative.substr(kHere.size())});
  }
  const auto above = folderAbove(folder);
  if (!above)
    return std::nullopt;
  return tervix::joined({*above, "/", relative.substr(kAbove.size())});
}

// What a file name holds behind its last dash when it is the marker file of a whole design, such
// as "design-default.mrk"; otherwise empty.
std::string_view defaultMarkerOf(std::string_view name) {
  const std::size_t dash = name.rfind('-');
  if (dash == std::string_view::npos ||
      !tervix::equalsIgnoringCase(name.substr(dash + 1), kDefaultMarker))
    return {};
  return name.substr(dash + 1);
}

} // namespace

unsigned long getVariantFileType(std::string& suffix, VARIANTFILE_TYPE type) {
  static constexpr std::array<const char*, 3> kSuffixes = {"lib", "stl", "inc"};
  suffix.clear();
  const auto index = static_cast<unsigned>(type);
  if (index >= kSuffixes.size())
    return 1;
  suffix = kSuffixes[index];
  return 0;
}

unsigned long isRelativePathName(std::string& path, bool& isRelative) {
  isRelative = false;
  if (startsWithPath(path, "//"))
    return 0;
  if (startsWithPath(path, kHere) || startsWithPath(path, kAbove)) {
    isRelative = true;
    return 0;
  }
  std::string normal = tervix::toForwardSlashes(path);
  const bool hasDrive = normal.size() > 1 && normal[1] == ':';
  if (hasDrive || (normal.size() > 2 && normal[2] == '/'))
    return 0;
  isRelative = true;
  path = normal.insert(0, kHere);
  return 0;
}

unsigned long getRelativePathName(std::string& path, std::string& base, std::string& relative) {
  const std::string normal = tervix::toForwardSlashes(path);
  const std::string folder = tervix::toForwardSlashes(base);
  relative.clear();
  if (!tervix::contains(normal, folder))
    return 1;
  relative = kHere;
  if (normal.size() > folder.size())
    relative += std::string_view(normal).substr(folder.size() + 1);
  return 0;
}

unsigned long getAbsolutePathName(std::string& relative, std::string& base, std::string& absolute) {
  std::string path = tervix::toForwardSlashes(relative);
  const std::string folder = tervix::toForwardSlashes(base);
  absolute.clear();
  bool isRelative = false;
  isRelativePathName(path, isRelative);
  auto found = isRelative ? absoluteFrom(folder, path) : std::nullopt;
  if (!found)
    return 1;
  absolute = std::move(*found);
  return 0;
}

unsigned long getFileNameFromFileNamePath(std::string& path, std::string& fileName) {
  const bool hasFolder = path.find_last_of(kSeparators) != std::string::npos;
  fileName = tervix::fileNameOf(path);
  return hasFolder ? 0 : 1;
}

unsigned long getFilePathFromFileNamePath(std::string& path, std::string& folder) {
  const auto found = tervix::folderOf(path);
  folder = found.value_or(std::string());
  return found ? 0 : 1;
}

unsigned long getExtensionFromFileName(std::string& fileName, std::string& extension) {
  const bool isFolderItself = fileName == "." || fileName == "..";
  const std::size_t dot = fileName.find('.');
  if (isFolderItself || dot == std::string::npos) {
    extension.clear();
    return isFolderItself ? 0 : 1;
  }
  const std::string_view rest = std::string_view(fileName).substr(dot + 1);
  const std::string_view marker = defaultMarkerOf(fileName);
  const bool isMarker = !marker.empty() && tervix::equalsIgnoringCase(rest, kMarkerExtension);
  extension = std::string(isMarker ? marker : rest);
  return 0;
}

unsigned long removeExtensionFromFileName(std::string& fileName, std::string& stem) {
  const std::size_t dot = fileName.find('.');
  // Deliberate: unlike the extension, the stem may hold dots before the marker's dash.
  const std::string_view marker = defaultMarkerOf(fileName);
  const bool isMarker = dot != std::string::npos && !marker.empty();
  stem = isMarker ? std::string(tervix::withoutLast(fileName, marker.size() + 1))
                  : fileName.substr(0, dot);
  return dot == std::string::npos ? 1 : 0;
}

namespace tervix {

std::optional<std::string> folderOf(std::string_view path) {
  const std::size_t separator = path.find_last_of(kSeparators);
  if (separator == std::string_view::npos)
    return std::nullopt;
  return std::string(path.substr(0, separator));
}

std::string fileNameOf(std::string_view path) {
  return std::string(path.substr(path.find_last_of(kSeparators) + 1));
}

std::string stemOf(std::string_view path) {
  std::string name = fileNameOf(path);
  removeExtensionFromFileName(name, name);
  return name;
}

std::optional<std::string> resolvedAgainst(std::string_view folder, std::string_view path) {
  std::string named = toForwardSlashes(path);
  if (platform::isRooted(named))
    return named;
  bool isRelative = false;
  isRelativePathName(named, isRelative);
  if (!isRelative)
    return named;
  return absoluteFrom(toForwardSlashes(folder), named);
}

} // namespace tervix
