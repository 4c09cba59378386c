#pragma once

#include <functional>
#include <map>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {

using Files = std::map<std::string, std::string>;

// A folder that is brought back to the same content for run after run.
class FaultyTree {
public:
  const std::string& path() const { return folder_.path(); }
  Files files() const { return snapshotOf(folder_.path()); }

  // Gives what prepare makes. The files are made once more in a fixed order: a folder may be
  // listed in the order in which its entries came.
  Files fill(const std::function<void(const TemporaryFolder&)>& prepare) const;
  void reset(const Files& files) const;

private:
  void make(const Files& files) const;

  TemporaryFolder folder_;
};

// What differs, a line for each file: for a message.
std::string differences(const Files& before, const Files& after);

} // namespace tervix::testing
