#ifndef TERVIX_FORMATS_MISTAKE_H
#define TERVIX_FORMATS_MISTAKE_H

#include "FormatsExport.h"

#include <optional>
#include <string>

namespace tervix::formats {

// Why a file could not be read or edited, for the person who has to put it right. Line and column
// count from 1, the column in characters; both are 0 when the mistake is the file itself, such as
// one that does not exist.
struct Mistake {
  std::string file;
  std::string text;
  unsigned line = 0;
  unsigned column = 0;
};

// The mistake of this process's last read or edit of a project or design file; none when that
// succeeded. Like reads and edits, for one thread at a time.
TERVIX_FORMATS_API std::optional<Mistake> lastMistake();

} // namespace tervix::formats

#endif
