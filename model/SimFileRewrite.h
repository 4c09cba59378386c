#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tervix {

struct SimKeyValue {
  std::string_view key;
  std::string value;
};

// Gives the lines of a ".sim" file that begin with one of the keys, in any case, their new
// values; every other byte of the file stays. A backup "simPath.bak" is made first and removed at
// the end; one that was there before is left alone.
// 10108, recorded, when the backup cannot be made; 1 when the file cannot be read or written.
// Either way the file is as it was.
unsigned long rewriteSimKeys(const std::string& simPath, const std::vector<SimKeyValue>& values);

} // namespace tervix
