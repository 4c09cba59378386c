#pragma once

#include <functional>
#include <string>
#include <vector>

#include "TervixFiles.h"
#include "readers/formats/EditableFile.h"

namespace tervix::tool {

// A project or design file in the open format, changed as text: comments and layout stay. Each
// operation throws a Failure when the file cannot be read or changed.
class OpenFormatFile {
public:
  explicit OpenFormatFile(const std::string& path);

  const std::string& text() const { return file_.text(); }

  // A design file: its schematics and its root.
  void renameSchematics(const std::function<std::string(const std::string&)>& newName);
  void addSchematic(const std::string& name);
  void removeSchematic(const std::string& name); // in any case

  // A project file: every file that it lists, and its output file.
  void renamePaths(const std::function<std::string(const std::string&)>& newPath);
  void renameActive(const std::function<std::string(const std::string&)>& newDisplayName);
  void setActive(const std::string& displayName);
  void addProfile(const std::string& file);
  void addProfiles(const std::vector<std::string>& files);
  // matches tells which of the registered files are meant.
  void removeProfiles(const std::function<bool(const std::string&)>& matches);
  void addProfileLike(const std::function<bool(const std::string&)>& matches,
                      const std::function<std::string(const std::string&)>& newFile);

  // A project file: the model files of the design.
  std::vector<std::string> modelFiles(VARIANTFILE_TYPE kind) const;
  void addModelFile(VARIANTFILE_TYPE kind, const std::string& file);
  void removeModelFile(VARIANTFILE_TYPE kind, std::size_t index);

private:
  void require(bool done) const;
  std::vector<std::string> list(const char* section, const char* item) const;
  void replaceAll(const char* section, const char* item,
                  const std::function<std::string(const std::string&)>& newText);
  void removeMatching(const char* section, const char* item,
                      const std::function<bool(const std::string&)>& matches);
  void replaceText(const char* section, const char* item,
                   const std::function<std::string(const std::string&)>& newText);

  std::string path_;
  formats::EditableFile file_;
};

} // namespace tervix::tool
