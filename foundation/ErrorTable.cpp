#include "foundation/ErrorTable.h"

#include <array>

namespace tervix {
namespace {

constexpr std::array<std::string_view, 24> kTemplates = {
    "Invalid error code",
    "Failed to create directory \"%s\". Check write permissions on the parent directory.",
    "Failed to open directory \"%s\". Check its existence on the disk.",
    "File \"%s\" does not exist.",
    "Failed to open file \"%s\" for reading. Check its access permissions and existence on the "
    "disk.",
    "Failed to open file \"%s\" for writing. Check disk space and write permissions on the parent "
    "directory.",
    "Failed to delete file \"%s\".",
    "Failed to copy file \"%s\" to file \"%s\". Check disk space and access permissions.",
    "Failed to read file \"%s\". Check the file syntax.",
    "Failed to read the design file \"%s\".",
    "Node not initialized properly.",
    "Invalid profile level variant type.",
    "Invalid profile based file type.",
    "Invalid profile based file type \"%s\".",
    "Failed to add profile \"%s\".",
    "Active profile is not associated with schematic \"%s\".",
    "\"%s\" is not the root schematic. Active profile can only be associated with the root.",
    "Invalid schematic based file type.",
    "Failed to add schematic \"%s\".",
    "Invalid design level variant type.",
    "Invalid simulation profile \"%s\".",
    "Profiles directory does not exist.",
    "Failed to copy contents of directory \"%s\" to directory \"%s\". Check disk space and access "
    "permissions.",
    "Project file \"%s\" does not contain any valid design."};

constexpr unsigned long kLastCodeWithoutCategory = 10100;
constexpr unsigned long kCategoryBase = 10000;
constexpr unsigned long kCodesPerCategory = 100;
constexpr long kOnlyCategory = 1;

} // namespace

unsigned long lookupErrorTemplate(unsigned long code, long& category, long& index) {
  index = -1;
  category = code <= kLastCodeWithoutCategory
                 ? 0
                 : static_cast<long>((code - kCategoryBase) / kCodesPerCategory);
  // 10200 belongs to the next hundred, 10101 opens the only category there is.
  if (category == kOnlyCategory) {
    index = static_cast<long>(code - kInvalidErrorCode);
    return 0;
  }
  category = kOnlyCategory;
  index = 0;
  return 1;
}

unsigned long getErrorTemplate(std::string& text, long& category, unsigned long code) {
  text.clear();
  long index = -1;
  if (lookupErrorTemplate(code, category, index) != 0)
    return 1;
  if (static_cast<std::size_t>(index) >= kTemplates.size())
    return 1;
  text = kTemplates[static_cast<std::size_t>(index)];
  return 0;
}

} // namespace tervix
