#ifndef TERVIX_FORMATS_EDIT_H
#define TERVIX_FORMATS_EDIT_H

#include "Changes.h"
#include "Document.h"

namespace tervix::formats {

struct Item {
  std::string_view section;
  std::string_view name;
};

// One edit of a file's text. Each gives the new text, after that has been parsed and found to hold
// what it should; otherwise a Mistake is thrown.
class Edit {
public:
  Edit(const std::string& file, std::string_view text)
      : file_(file), text_(text), document_(file, text) {}

  std::vector<std::string> elements(const Item& list) const;
  std::size_t indexOf(const Item& list, std::string_view value) const;

  std::string setText(const Item& item, std::string_view value) const;
  std::string add(const Item& list, const std::vector<std::string>& added) const;
  std::string remove(const Item& list, std::size_t index) const;
  std::string replace(const Item& list, std::size_t index, std::string_view value) const;
  std::string replaceAll(const Item& list, const std::vector<std::string>& values) const;

private:
  [[noreturn]] void refuse(std::string reason) const;
  void requireWritable(std::string_view text) const;
  void requireElement(const Item& list, std::size_t count, std::size_t index) const;
  Range placeOf(const Item& item) const;
  Change newItem(const Item& item, const std::string& value) const;
  template <typename Value>
  std::string checked(const std::vector<Change>& changes, const Item& item, Value value) const;

  const std::string& file_;
  std::string_view text_;
  Document document_;
};

} // namespace tervix::formats

#endif
