#pragma once

#include <set>
#include <string>

namespace tervix::tool {

// Names of files to be found in texts: each costs what the text costs, however many names there
// are. A name counts where no character of a file name extends it.
class SoughtNames {
public:
  void add(const std::string& name);

  // The first of the names, in alphabetical order, that a text holds; empty when it holds none.
  std::string firstIn(const std::string& text) const;

private:
  std::set<std::string> words_;
  std::set<std::string> others_; // with blanks, or letters that are not ASCII
};

} // namespace tervix::tool
