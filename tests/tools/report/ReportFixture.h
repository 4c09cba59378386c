#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "tests/support/TemporaryFolder.h"
#include "tests/tools/ToolRun.h"

namespace tervix::testing {

// Pages in a folder of their own, beside no project.
class ReportFolder {
public:
  std::string path(const std::string& name = "page.html") const { return folder_.path(name); }
  std::string file(const std::string& name, const std::string& content) const {
    return folder_.file(name, content);
  }

  // The page of a project, which has to be written without a word.
  std::string pageOf(const std::string& project) const;
  // What its script reads.
  nlohmann::json dataOf(const std::string& project) const;

private:
  TemporaryFolder folder_;
};

nlohmann::json dataIn(const std::string& page);

} // namespace tervix::testing
