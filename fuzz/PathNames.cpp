// The functions on path names: any two texts.

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>

#include "TervixFiles.h"
#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "fuzz/support/Workplace.h"

namespace {

using tervix::fuzz::require;

bool holds(const std::string& text, const char* piece) {
  return text.find(piece) != std::string::npos;
}
bool endsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}
bool isMarker(const std::string& name) {
  return endsWith(tervix::toLowerCase(name), "-default.mrk");
}

using OneToOne = unsigned long (*)(std::string&, std::string&);
using TwoToOne = unsigned long (*)(std::string&, std::string&, std::string&);

struct Answer {
  unsigned long status;
  std::string text;
};

// The input stays, and an output may be the very same object.
Answer answerOf(OneToOne ask, const std::string& text) {
  std::string input = text;
  Answer answer{0, "what stood there before"};
  answer.status = ask(input, answer.text);
  require(input == text, "an input is left as it is", text);
  require(ask(input, input) == answer.status && input == answer.text,
          "input and output may be one object", text);
  return answer;
}

Answer answerOf(TwoToOne ask, const std::string& first, const std::string& second) {
  std::string a = first;
  std::string b = second;
  Answer answer{0, "what stood there before"};
  answer.status = ask(a, b, answer.text);
  require(a == first && b == second, "inputs are left as they are", first);
  require(ask(a, b, a) == answer.status && a == answer.text,
          "output and first input may be one object", first);
  a = first;
  require(ask(a, b, b) == answer.status && b == answer.text,
          "output and second input may be one object", second);
  return answer;
}

void checkParts(const std::string& path) {
  const Answer folder = answerOf(getFilePathFromFileNamePath, path);
  const Answer name = answerOf(getFileNameFromFileNamePath, path);
  const std::size_t separator = path.find_last_of("/\\");
  const bool hasFolder = separator != std::string::npos;
  require(folder.status == (hasFolder ? 0U : 1U) && name.status == folder.status,
          "the status tells whether there is a separator", path);
  require(hasFolder ? folder.text + path[separator] + name.text == path
                    : folder.text.empty() && name.text == path,
          "folder and file name make up the path", path);
}

void checkExtension(const std::string& name) {
  const Answer extension = answerOf(getExtensionFromFileName, name);
  const Answer stem = answerOf(removeExtensionFromFileName, name);
  if (!holds(name, ".")) {
    require(extension.status == 1 && extension.text.empty(), "no dot, no extension", name);
    require(stem.status == 1 && stem.text == name, "no dot, the name is the stem", name);
    return;
  }
  require(extension.status == 0 && stem.status == 0, "a dot makes an extension", name);
  if (name == "." || name == "..")
    require(extension.text.empty(), "a folder itself has no extension", name);
  else if (isMarker(name))
    require(stem.text + name.substr(stem.text.size(), 1) +
                    name.substr(name.size() - std::string("default.mrk").size()) ==
                name,
            "a marker's stem ends at its dash", name);
  else
    require(stem.text + "." + extension.text == name, "stem and extension make up the name", name);
}

void checkRelative(const std::string& path) {
  std::string first = path;
  bool isRelative = true;
  require(isRelativePathName(first, isRelative) == 0, "isRelativePathName gives 0", path);
  require(isRelative || first == path, "a path that is not relative stays", path);
  std::string second = first;
  bool again = !isRelative;
  isRelativePathName(second, again);
  require(again == isRelative && second == first, "asked again, it says the same", path);
  const std::string normal = tervix::toForwardSlashes(first);
  require(!isRelative || normal.rfind("./", 0) == 0 || normal.rfind("../", 0) == 0,
          "a relative path begins with a dot", path);
}

void checkPair(const std::string& path, const std::string& base) {
  const std::string normal = tervix::toForwardSlashes(path);
  const std::string folder = tervix::toForwardSlashes(base);
  const Answer relative = answerOf(getRelativePathName, path, base);
  require(relative.status == (normal.find(folder) != std::string::npos ? 0U : 1U),
          "relative when the base occurs", path);
  require(relative.status == 0 ? relative.text.rfind("./", 0) == 0 : relative.text.empty(),
          "begins with ./, or is empty", path);
  const Answer absolute = answerOf(getAbsolutePathName, path, base);
  require(absolute.status == 0 || absolute.text.empty(), "empty when it cannot be made", path);
  require(!holds(absolute.text, "\\"), "an absolute path has forward slashes", path);
  const bool liesBelow = normal.rfind(folder + "/", 0) == 0;
  if (liesBelow && holds(folder, "/") && folder.back() != '/') {
    const Answer back = answerOf(getAbsolutePathName, relative.text, folder);
    require(back.status == 0 && back.text == normal, "there and back again", path);
  }
  const auto resolved = tervix::resolvedAgainst(base, path);
  require(!resolved || !holds(*resolved, "\\"), "a resolved path has forward slashes", path);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const std::string path = input.ConsumeRandomLengthString();
  const std::string rest = input.ConsumeRemainingBytesAsString();
  for (const std::string& text : {path, rest}) {
    checkParts(text);
    checkExtension(text);
    checkRelative(text);
  }
  checkPair(path, rest);
  checkPair(rest + "/" + path, rest);
  return 0;
}
