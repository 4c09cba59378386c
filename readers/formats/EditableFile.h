#ifndef TERVIX_FORMATS_EDITABLE_FILE_H
#define TERVIX_FORMATS_EDITABLE_FILE_H

#include "FormatsExport.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tervix::formats {

// A project or design file to change without disturbing what a person wrote into it: every byte
// that is not part of the change stays, with comments, order, blank lines, layout and line ends.
// New texts are put between double quotes.
//
// Whatever fails leaves text and file as they were and its reason in lastMistake(). An edit fails
// for a value that is not text or not a list of texts, for a new text that is not valid UTF-8 or
// has a NUL in it, and, should it be so, when the new text would not hold exactly what was asked
// for. As in reads, a section or item that the file does not have is empty.
class TERVIX_FORMATS_API EditableFile {
public:
  static std::optional<EditableFile> open(const std::string& file) noexcept;

  // All bytes, with the edits made so far.
  const std::string& text() const noexcept { return text_; }

  std::optional<std::string> textOf(std::string_view section, std::string_view item) const noexcept;
  std::optional<std::vector<std::string>> elementsOf(std::string_view section,
                                                     std::string_view item) const noexcept;

  // These make the section and the item when they are missing.
  bool setText(std::string_view section, std::string_view item, std::string_view value) noexcept;
  bool addToList(std::string_view section, std::string_view item, std::string_view value) noexcept;
  // As if added one by one, all or none.
  bool addAllToList(std::string_view section, std::string_view item,
                    const std::vector<std::string>& values) noexcept;

  // The first element that is exactly `value`. Names of one file may differ in case and separators:
  // whoever takes them for equal finds the element's index in elementsOf().
  bool removeFromList(std::string_view section, std::string_view item,
                      std::string_view value) noexcept;
  bool replaceInList(std::string_view section, std::string_view item, std::string_view value,
                     std::string_view newValue) noexcept;
  bool removeElement(std::string_view section, std::string_view item, std::size_t index) noexcept;
  bool replaceElement(std::string_view section, std::string_view item, std::size_t index,
                      std::string_view newValue) noexcept;
  // Each element by the new value of its place; one that stays the same keeps its spelling.
  bool replaceElements(std::string_view section, std::string_view item,
                       const std::vector<std::string>& newValues) noexcept;

  // Replaces the file as a whole or not at all, keeping its permissions; of a symbolic link, the
  // file that it leads to. Fails when the file is no longer what was opened or last saved. Without
  // a change the file is not touched.
  bool save() noexcept;

private:
  EditableFile(std::string file, std::string text);

  std::string file_;
  std::string saved_;
  std::string text_;
};

} // namespace tervix::formats

#endif
