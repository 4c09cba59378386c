#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/TemporaryFolder.h"
#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

namespace tervix::testing {

// A healthy sample that a test breaks, and what the check then finds.
class CheckedSample {
public:
  explicit CheckedSample(std::size_t sample) : copy_(allSamples().at(sample)) {}

  std::string folder() const { return copy_.folder(); } // of the whole sample
  std::string project() const { return project_.empty() ? copy_.project() : project_; }
  std::vector<std::string> openable() const { return copy_.openable(); }
  // Full path of what a name means, seen from the project file's folder.
  std::string path(const std::string& name) const;
  std::string content(const std::string& name) const { return contentOf(path(name)); }

  void write(const std::string& name, const std::string& content) const;
  void append(const std::string& name, const std::string& text) const;
  void replace(const std::string& name, const std::string& from, const std::string& to) const;
  void makeFolder(const std::string& name) const;
  void remove(const std::string& name) const; // with all that lies in it
  void rename(const std::string& name, const std::string& newName) const;
  void renameProject(const std::string& name);

  ToolRun check(const Arguments& options = {}) const;
  nlohmann::ordered_json checkedAsJson(const Arguments& options = {}) const;

private:
  SampleCopy copy_;
  std::string project_;
};

// Each finding as "code path:line", without a line for a whole file, in the order told.
std::vector<std::string> findingsIn(const nlohmann::ordered_json& json);

} // namespace tervix::testing
