#pragma once

#include <map>
#include <string>

namespace tervix::testing {

// A folder of its own for one test, removed with all it holds.
class TemporaryFolder {
public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  // Its full path with forward slashes; with a name, the path of an entry in it.
  const std::string& path() const { return path_; }
  std::string path(const std::string& name) const { return path_ + "/" + name; }

  // Make a file with its folders, or a folder. Both give its full path.
  std::string file(const std::string& name, const std::string& content = "") const;
  std::string folder(const std::string& name) const;

private:
  std::string path_;
};

bool isFile(const std::string& path);
bool isFolder(const std::string& path);
std::string contentOf(const std::string& path); // fails the test when it cannot be read
void writeFile(const std::string& path, const std::string& content);

// Every file below a folder: its path relative to the folder, and its content. A folder without
// entries is listed as "name/".
std::map<std::string, std::string> snapshotOf(const std::string& folder);

} // namespace tervix::testing
