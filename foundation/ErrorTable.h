#pragma once

#include <string>
#include <string_view>

namespace tervix {

// The codes that operations record, in the order of their message templates.
enum ErrorCode : unsigned long {
  kInvalidErrorCode = 10101,
  kCannotCreateDirectory,
  kCannotOpenDirectory,
  kFileDoesNotExist,
  kCannotReadFile,
  kCannotWriteFile,
  kCannotDeleteFile,
  kCannotCopyFile,
  kInvalidFileSyntax,
  kCannotReadDesign,
  kNodeNotInitialized,
  kInvalidProfileVariantType,
  kInvalidProfileFileType,
  kInvalidProfileFileSuffix,
  kCannotAddProfile,
  kNoActiveProfile,
  kNotRootSchematic,
  kInvalidSchematicFileType,
  kCannotAddSchematic,
  kInvalidDesignVariantType,
  kInvalidSimFile,
  kNoProfilesDirectory,
  kCannotCopyDirectory,
  kNoValidDesign
};

// Finds the row of a code: category 1 and the index from 10101 on, status 0. Any other code
// gives category 1, index 0 and status 1.
unsigned long lookupErrorTemplate(unsigned long code, long& category, long& index);

// text becomes the message template of code; empty, with status 1, when it has none.
unsigned long getErrorTemplate(std::string& text, long& category, unsigned long code);

} // namespace tervix
