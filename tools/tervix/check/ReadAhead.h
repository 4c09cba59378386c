#pragma once

#include <atomic>
#include <future>
#include <string>
#include <vector>

#include "tools/tervix/check/FolderIndex.h"

namespace tervix::tool {

// Fetches what a check is going to ask the disk for while the library opens the project: the
// folders of its files, and the small files of profiles there.
class ReadAhead {
public:
  // For a file that is none of a project there is nothing to fetch.
  explicit ReadAhead(const std::string& projectFile);
  ~ReadAhead();
  ReadAhead(const ReadAhead&) = delete;
  ReadAhead& operator=(const ReadAhead&) = delete;

  // What there is by now; the rest is faster fetched by several threads.
  FolderIndex::Folders take();

private:
  void stop();
  void fetch(std::size_t mostSteps);
  bool step();
  void list(std::string path);
  void look(FolderIndex::Entry& entry);

  std::string projectFolder_;
  FolderIndex::Folders fetched_;
  std::vector<std::string> toList_;
  FolderIndex::Folders::value_type* current_ = nullptr; // whose entries are looked at
  std::size_t looked_ = 0;                              // how many of them were
  std::size_t textSize_ = 0;
  std::atomic<bool> isStopped_{false};
  std::future<void> rest_;
};

} // namespace tervix::tool
