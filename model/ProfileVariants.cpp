#include <array>
#include <utility>

#include "CTervixProfile.h"
#include "foundation/LastError.h"
#include "foundation/LineReader.h"
#include "foundation/QuotedValue.h"
#include "foundation/Text.h"
#include "foundation/platform/Platform.h"
#include "model/NodeFields.h"

namespace platform = tervix::platform;

namespace {

// The include list, one kind of entry a row, in the order in which a save writes them.
struct EntryForm {
  VARIANTFILE_TYPE type;
  std::string_view keyword;
  std::string_view requiredInPath; // deliberate: an entry without it, in this case, is dropped
};

constexpr std::array<EntryForm, 3> kEntryForms = {{
    {VARIANTFILE_TYPE_INCLUDE, ".INC", ".inc"},
    {VARIANTFILE_TYPE_LIBRARY, ".LIB", ".lib"},
    {VARIANTFILE_TYPE_STIMULUS, ".STMLIB", ".stl"},
}};

using Lists = std::array<std::vector<std::string>, 3>;

void takeLine(std::string_view line, Lists& lists) {
  for (const EntryForm& form : kEntryForms) {
    if (!tervix::startsWithIgnoringCase(line, form.keyword))
      continue;
    const auto path = tervix::quotedValue(line);
    if (path && tervix::contains(*path, form.requiredInPath))
      lists[form.type].emplace_back(*path);
    return;
  }
}

void appendEntry(std::string& text, std::string_view keyword, const std::string& path) {
  text.append(keyword).append("\t\"").append(tervix::toBackslashes(path)).append("\" \n");
}

} // namespace

bool CTervixProfile::hasVariants() const {
  return tervix::isSimulation(*this);
}

std::vector<std::string>* CTervixProfile::listOf(VARIANTFILE_TYPE type) {
  switch (static_cast<int>(type)) {
  case VARIANTFILE_TYPE_LIBRARY:
    return &libraryFiles_;
  case VARIANTFILE_TYPE_STIMULUS:
    return &stimulusFiles_;
  case VARIANTFILE_TYPE_INCLUDE:
    return &includeFiles_;
  default:
    tervix::raiseError(tervix::kInvalidProfileVariantType);
    return nullptr;
  }
}

unsigned long CTervixProfile::getTopProfileLevelFile(std::string& file, VARIANTFILE_TYPE type) {
  file.clear();
  if (!hasVariants())
    return 1;
  const auto* const list = listOf(type);
  if (list == nullptr)
    return tervix::kInvalidProfileVariantType;
  if (!list->empty()) {
    cursors_[type] = 0;
    file = list->front();
  }
  return 0;
}

unsigned long CTervixProfile::getNextProfileLevelFile(std::string& file, VARIANTFILE_TYPE type) {
  file.clear();
  if (!hasVariants())
    return 1;
  const auto* const list = listOf(type);
  if (list == nullptr)
    return tervix::kInvalidProfileVariantType;
  unsigned int& cursor = cursors_[type];
  if (list->size() > cursor && list->size() > ++cursor)
    file = (*list)[cursor];
  return 0;
}

unsigned long CTervixProfile::findProfileLevelFile(bool& found, std::string*& entry,
                                                   std::string& file, VARIANTFILE_TYPE type) {
  found = false;
  if (!hasVariants())
    return 1;
  auto* const list = listOf(type);
  if (list == nullptr)
    return tervix::kInvalidProfileVariantType;
  for (std::string& listed : *list)
    if (tervix::equalsAsPath(listed, file)) {
      found = true;
      entry = &listed;
      return 0;
    }
  return 0;
}

unsigned long CTervixProfile::addProfileLevelFile(std::string& file, VARIANTFILE_TYPE type,
                                                  bool updated, bool atFront) {
  bool found = false;
  std::string* entry = nullptr;
  if (const unsigned long status = findProfileLevelFile(found, entry, file, type); status != 0)
    return status;
  if (!found) {
    auto* const list = listOf(type);
    list->insert(atFront ? list->begin() : list->end(), file);
  }
  variantsUpdated_ = updated;
  return 0;
}

unsigned long CTervixProfile::deleteProfileLevelFile(std::string& file, VARIANTFILE_TYPE type,
                                                     bool updated) {
  bool found = false;
  std::string* entry = nullptr;
  if (const unsigned long status = findProfileLevelFile(found, entry, file, type); status != 0)
    return status;
  if (found) {
    auto* const list = listOf(type);
    list->erase(list->begin() + (entry - list->data()));
  }
  variantsUpdated_ = updated;
  return 0;
}

unsigned long CTervixProfile::deleteAllProfileLevelFiles(VARIANTFILE_TYPE type, bool updated) {
  auto* const list = listOf(type);
  if (list == nullptr)
    return tervix::kInvalidProfileVariantType;
  list->clear();
  variantsUpdated_ = updated;
  return 0;
}

unsigned long CTervixProfile::deleteAllProfileLevelFiles(bool updated) {
  for (const EntryForm& form : kEntryForms)
    deleteAllProfileLevelFiles(form.type, updated);
  variantsUnread_ = false;
  return 0;
}

unsigned long CTervixProfile::numberOfProfileLevelFiles(int& count, VARIANTFILE_TYPE type) const {
  // The list is only read; a const twin of listOf would say its table twice.
  const auto* const list = const_cast<CTervixProfile*>(this)->listOf(type);
  if (list == nullptr)
    return tervix::kInvalidProfileVariantType;
  count = static_cast<int>(list->size());
  return 0;
}

unsigned long CTervixProfile::readProfileLevelVariants() {
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  if (const unsigned long status = getProjectType(type); status != 0)
    return status;
  if (type != PROJECT_TYPE_SIMULATION)
    return 0;
  deleteAllProfileLevelFiles(true);
  if (variantFilePath_.empty())
    return 1;
  tervix::LineReader file;
  const auto opening = file.open(variantFilePath_);
  if (opening == platform::FileReader::Opening::kNoReadableFile) {
    variantsUnread_ = platform::exists(variantFilePath_);
    return tervix::raiseError(tervix::kFileDoesNotExist, variantFilePath_);
  }
  Lists lists;
  if (opening == platform::FileReader::Opening::kOpened)
    while (const auto line = file.next())
      takeLine(*line, lists);
  variantsUnread_ = opening != platform::FileReader::Opening::kOpened || file.failed();
  if (variantsUnread_)
    return tervix::raiseError(tervix::kCannotReadFile, variantFilePath_);
  for (const EntryForm& form : kEntryForms)
    *listOf(form.type) = std::move(lists[form.type]);
  return 0;
}

unsigned long CTervixProfile::writeProfileLevelVariants() {
  if (!variantsUpdated_)
    return 0;
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  if (const unsigned long status = getProjectType(type); status != 0)
    return status;
  if (type != PROJECT_TYPE_SIMULATION) {
    variantsUpdated_ = false;
    return 0;
  }
  if (variantFilePath_.empty())
    return 1;
  if (variantsUnread_ && platform::exists(variantFilePath_))
    return tervix::raiseError(tervix::kCannotReadFile, variantFilePath_);
  std::string text;
  for (const EntryForm& form : kEntryForms)
    for (const std::string& path : *listOf(form.type))
      appendEntry(text, form.keyword, path);
  // A list without entries is removed, not emptied first: it stays whole if that fails.
  const bool isWritten = (text.empty() && platform::isWritableFile(variantFilePath_)) ||
                         platform::replaceFile(variantFilePath_, text);
  if (!isWritten)
    return tervix::raiseError(tervix::kCannotWriteFile, variantFilePath_);
  if (text.empty() && !platform::removeFile(variantFilePath_))
    return tervix::raiseError(tervix::kCannotDeleteFile, variantFilePath_);
  variantsUpdated_ = false;
  return 0;
}
