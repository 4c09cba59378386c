#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {

// One of the sample projects, and files of it from which it can be opened.
struct Sample {
  std::string name;   // of the files with what is expected
  std::string folder; // below the samples
  std::string project;
  std::vector<std::string> others; // ".sim" and ".aap" files
  std::string copyAsAnalysis; // an ".$ap" file that is made of the ".aap" file; none when empty
};

const std::vector<Sample>& allSamples();
std::ostream& operator<<(std::ostream& stream, const Sample& sample);

// A copy of a sample that a test may change.
class SampleCopy {
public:
  explicit SampleCopy(const Sample& sample, const std::string& place = "sample");

  std::string folder() const { return folder_.path(place_); }
  std::string path(const std::string& name) const { return folder() + "/" + name; }
  std::string project() const { return path(sample_.project); }
  // Every file from which the sample can be opened, its project file first.
  std::vector<std::string> openable() const;

private:
  const Sample& sample_;
  std::string place_;
  TemporaryFolder folder_;
};

// What the tool shows, without what differs from one run to the next: paths are given from folder
// on, and for front end 1 the profiles, which come as the file system lists them, in the order of
// their names.
nlohmann::ordered_json comparable(nlohmann::ordered_json json, const std::string& folder);
std::string comparable(const std::string& tree);

} // namespace tervix::testing
