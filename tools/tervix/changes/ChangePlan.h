#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tervix::tool {

// What a command is going to do to the files of a project, in full before any of it is done.
//
// The order of the lists is the order of the work: everything new is made and checked before
// anything that was there is rewritten, and that before anything is removed.
struct ChangePlan {
  // A file that comes to be: with this content, or as a copy of another file or link.
  struct Made {
    std::string path;
    std::string source; // empty when only the content counts
    std::string content;
    bool isCopy;
  };
  struct Rewritten {
    std::string path;
    std::string content;
  };

  // What the person has to know beside the steps: something that was found and is left as it is.
  struct Remark {
    std::string kind; // one word, for programs
    std::string path;
    std::string text;
  };

  std::string title; // "rename profile tran to ac"
  std::vector<std::string> madeFolders;
  std::vector<Made> made;
  std::vector<Rewritten> rewritten;
  std::vector<std::string> removed;        // files and links
  std::vector<std::string> removedFolders; // innermost first; one that holds anything stays

  // The library's own operations, between what is made with content and what is copied. They may
  // make any of the files of `made`; what they leave out is copied one by one.
  std::vector<std::function<void()>> libraryCalls;

  // Opens the project as it is to be; throws a Failure if it does not.
  std::function<void()> check;

  std::vector<Remark> remarks;

  // Told of each new file before its content is completed, which may take long.
  std::function<void(const Made&)> progress;

  // The project file from which the project opens afterwards, and the one from which it opens
  // before; empty when that is the same.
  std::string projectFile;
  std::string formerProjectFile;
  std::string designFolder; // where it differs from that of the project file

  // Of a deletion: the (schematic, profile) pairs whose files go; a schematic's own have no
  // profile.
  std::vector<std::pair<std::string, std::string>> deleted;

  // Nothing of the project is touched: all that is new lies elsewhere, where nothing was before.
  bool isElsewhere = false;

  // What was asked for, word by word.
  std::vector<std::string> request;

  bool isEmpty() const {
    return madeFolders.empty() && made.empty() && rewritten.empty() && removed.empty() &&
           removedFolders.empty();
  }
};

// A plan that comes out the same when it is made twice; otherwise throws a Failure. Opening a
// project leaves out what cannot be read, and a disk that fails for a moment would so have a part
// of the project forgotten.
ChangePlan steadyPlan(const std::function<ChangePlan()>& makePlan);

} // namespace tervix::tool
