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

std::vector<std::string>& listOf(Lists& lists, const EntryForm& form) {
  return lists.at(static_cast<std::size_t>(form.type));
}

void takeLine(std::string_view line, Lists& lists) {
  for (const EntryForm& form : kEntryForms) {
    if (!tervix::startsWithIgnoringCase(line, form.keyword))
      continue;
    const auto path = tervix::quotedValue(line);
    if (path && tervix::contains(*path, form.requiredInPath))
      listOf(lists, form).emplace_back(*path);
    return;
  }
}

void appendEntry(std::string& text, std::string_view keyword, const std::string& path) {
  text.append(keyword).append("\t\"").append(tervix::toBackslashes(path)).append("\" \n");
}

bool isKind(VARIANTFILE_TYPE type) {
  return type >= VARIANTFILE_TYPE_LIBRARY && type <= VARIANTFILE_TYPE_INCLUDE;
}

unsigned long refuseKind() {
  return tervix::raiseError(tervix::kInvalidProfileVariantType);
}

} // namespace

bool CTervixProfile::hasVariants() const {
  return tervix::isSimulation(*this);
}

// The caller has checked the type.
const std::vector<std::string>& CTervixProfile::listOf(VARIANTFILE_TYPE type) const {
  if (type == VARIANTFILE_TYPE_LIBRARY)
    return libraryFiles_;
  return type == VARIANTFILE_TYPE_STIMULUS ? stimulusFiles_ : includeFiles_;
}

std::vector<std::string>& CTervixProfile::listOf(VARIANTFILE_TYPE type) {
  return const_cast<std::vector<std::string>&>(std::as_const(*this).listOf(type));
}

unsigned long CTervixProfile::getTopProfileLevelFile(std::string& file, VARIANTFILE_TYPE type) {
  file.clear();
  if (!hasVariants())
    return 1;
  if (!isKind(type))
    return refuseKind();
  const auto& list = listOf(type);
  if (!list.empty()) {
    cursors_[type] = 0;
    file = list.front();
  }
  return 0;
}

unsigned long CTervixProfile::getNextProfileLevelFile(std::string& file, VARIANTFILE_TYPE type) {
  file.clear();
  if (!hasVariants())
    return 1;
  if (!isKind(type))
    return refuseKind();
  const auto& list = listOf(type);
  unsigned int& cursor = cursors_[type];
  if (list.size() > cursor && list.size() > ++cursor)
    file = list[cursor];
  return 0;
}

unsigned long CTervixProfile::findProfileLevelFile(bool& found, std::string*& entry,
                                                   std::string& file, VARIANTFILE_TYPE type) {
  found = false;
  if (!hasVariants())
    return 1;
  if (!isKind(type))
    return refuseKind();
  auto& list = listOf(type);
  for (std::string& listed : list)
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
    auto& list = listOf(type);
    list.insert(atFront ? list.begin() : list.end(), file);
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
    auto& list = listOf(type);
    list.erase(list.begin() + (entry - list.data()));
  }
  variantsUpdated_ = updated;
  return 0;
}

unsigned long CTervixProfile::deleteAllProfileLevelFiles(VARIANTFILE_TYPE type, bool updated) {
  if (!isKind(type))
    return refuseKind();
  auto& list = listOf(type);
  list.clear();
  variantsUpdated_ = updated;
  return 0;
}

unsigned long CTervixProfile::deleteAllProfileLevelFiles(bool updated) {
  for (const EntryForm& form : kEntryForms)
    deleteAllProfileLevelFiles(form.type, updated);
  variantFileUnread_ = false;
  return 0;
}

unsigned long CTervixProfile::numberOfProfileLevelFiles(int& count, VARIANTFILE_TYPE type) const {
  if (!isKind(type))
    return refuseKind();
  count = static_cast<int>(listOf(type).size());
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
    variantFileUnread_ = platform::isTaken(variantFilePath_);
    return tervix::raiseError(tervix::kFileDoesNotExist, variantFilePath_);
  }
  Lists lists;
  if (opening == platform::FileReader::Opening::kOpened)
    while (const auto line = file.next())
      takeLine(*line, lists);
  if (opening != platform::FileReader::Opening::kOpened || file.failed()) {
    variantFileUnread_ = true;
    return tervix::raiseError(tervix::kCannotReadFile, variantFilePath_);
  }
  for (const EntryForm& form : kEntryForms)
    listOf(form.type) = std::move(::listOf(lists, form));
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
  if (variantFileUnread_ && platform::isTaken(variantFilePath_))
    return tervix::raiseError(tervix::kCannotWriteFile, variantFilePath_);
  std::string text;
  for (const EntryForm& form : kEntryForms)
    for (const std::string& path : listOf(form.type))
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
