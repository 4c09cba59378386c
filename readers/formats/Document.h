#ifndef TERVIX_FORMATS_DOCUMENT_H
#define TERVIX_FORMATS_DOCUMENT_H

#include "Toml.h"

#include <list>
#include <map>
#include <string>
#include <string_view>

namespace tervix::formats {

// A file of sections that hold items. Every node of it knows where in the text it stands
// (toml::node::source(), in lines and characters from 1). Members throw a Mistake at the place of
// whatever is not what they were asked for; what is not there reads as empty.
class Document {
public:
  explicit Document(std::string file);
  Document(std::string file, std::string_view text);

  // `what` names in the plural what the list holds, for the mistake's text.
  std::list<std::string> list(std::string_view section, std::string_view item,
                              std::string_view what) const;
  std::string text(std::string_view section, std::string_view item) const;

  // For a document that is kept: its lists of texts take no more room than in the file.
  void compact();

private:
  void compact(toml::array& elements);
  const toml::node* find(std::string_view section, std::string_view item) const;
  std::string textOf(const toml::node& node, const std::string& expected) const;
  [[noreturn]] void refuse(const toml::node& node, const std::string& expected) const;

  std::string file_;
  toml::table sections_;
  // What the arrays held that are empty since; each text ends with a NUL, which none has in it.
  std::map<const toml::array*, std::string> compacted_;
};

} // namespace tervix::formats

#endif
