#include "tests/faults/FaultyTree.h"

#include <filesystem>

namespace tervix::testing {

namespace fs = std::filesystem;

Files FaultyTree::fill(const std::function<void(const TemporaryFolder&)>& prepare) const {
  prepare(folder_);
  Files made = files();
  make(made);
  return made;
}

void FaultyTree::reset(const Files& former) const {
  if (files() != former)
    make(former);
}

void FaultyTree::make(const Files& files) const {
  for (const auto& entry : fs::directory_iterator(path()))
    fs::remove_all(entry.path());
  for (const auto& [name, content] : files)
    name.back() == '/' ? folder_.folder(name.substr(0, name.size() - 1))
                       : folder_.file(name, content);
}

std::string differences(const Files& before, const Files& after) {
  std::string text;
  for (const auto& [name, content] : before)
    if (const auto place = after.find(name); place == after.end())
      text += "\n  gone: " + name;
    else if (place->second != content)
      text += "\n  other: " + name + " (" + std::to_string(content.size()) + " bytes, then " +
              std::to_string(place->second.size()) + ")";
  for (const auto& [name, content] : after)
    if (before.count(name) == 0)
      text += "\n  new: " + name;
  return text.empty() ? "the same" : text;
}

} // namespace tervix::testing
