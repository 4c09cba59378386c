#include "EditableFile.h"

#include "Edit.h"
#include "FileText.h"
#include "MistakeRecord.h"
#include "ReplaceFile.h"

namespace tervix::formats {

namespace {

// Runs an edit of the text, which takes effect if all of it succeeds.
template <typename Run> bool edit(const std::string& file, std::string& text, Run run) noexcept {
  auto edited = rememberingMistakes(file, [&] { return run(Edit(file, text)); });
  if (edited) {
    text.swap(*edited);
  }
  return edited.has_value();
}

} // namespace

EditableFile::EditableFile(std::string file, std::string text)
    : file_(std::move(file)), saved_(std::move(text)), text_(saved_) {}

std::optional<EditableFile> EditableFile::open(const std::string& file) noexcept {
  return rememberingMistakes(file, [&] {
    EditableFile opened(file, readFileBytes(file));
    const Document mustBeReadable(file, opened.text_);
    return opened;
  });
}

std::optional<std::string> EditableFile::textOf(std::string_view section,
                                                std::string_view item) const noexcept {
  return rememberingMistakes(file_, [&] { return Document(file_, text_).text(section, item); });
}

std::optional<std::vector<std::string>>
EditableFile::elementsOf(std::string_view section, std::string_view item) const noexcept {
  return rememberingMistakes(file_, [&] { return Edit(file_, text_).elements({section, item}); });
}

bool EditableFile::setText(std::string_view section, std::string_view item,
                           std::string_view value) noexcept {
  return edit(file_, text_, [&](const Edit& edit) { return edit.setText({section, item}, value); });
}

bool EditableFile::addToList(std::string_view section, std::string_view item,
                             std::string_view value) noexcept {
  return edit(file_, text_, [&](const Edit& edit) {
    return edit.add({section, item}, {std::string(value)});
  });
}

bool EditableFile::addAllToList(std::string_view section, std::string_view item,
                                const std::vector<std::string>& values) noexcept {
  return edit(file_, text_, [&](const Edit& edit) { return edit.add({section, item}, values); });
}

bool EditableFile::removeFromList(std::string_view section, std::string_view item,
                                  std::string_view value) noexcept {
  return edit(file_, text_, [&](const Edit& edit) {
    const Item list{section, item};
    return edit.remove(list, edit.indexOf(list, value));
  });
}

bool EditableFile::replaceInList(std::string_view section, std::string_view item,
                                 std::string_view value, std::string_view newValue) noexcept {
  return edit(file_, text_, [&](const Edit& edit) {
    const Item list{section, item};
    return edit.replace(list, edit.indexOf(list, value), newValue);
  });
}

bool EditableFile::removeElement(std::string_view section, std::string_view item,
                                 std::size_t index) noexcept {
  return edit(file_, text_, [&](const Edit& edit) { return edit.remove({section, item}, index); });
}

bool EditableFile::replaceElement(std::string_view section, std::string_view item,
                                  std::size_t index, std::string_view newValue) noexcept {
  return edit(file_, text_, [&](const Edit& edit) {
    return edit.replace({section, item}, index, newValue);
  });
}

bool EditableFile::replaceElements(std::string_view section, std::string_view item,
                                   const std::vector<std::string>& newValues) noexcept {
  return edit(file_, text_, [&](const Edit& edit) {
    return edit.replaceAll({section, item}, newValues);
  });
}

bool EditableFile::save() noexcept {
  return rememberingMistakes(file_,
                             [&] {
                               if (text_ != saved_) {
                                 std::string saved = text_;
                                 requireUnchanged(file_, saved_);
                                 replaceFile(file_, text_);
                                 saved_.swap(saved);
                               }
                               return true;
                             })
      .has_value();
}

} // namespace tervix::formats
