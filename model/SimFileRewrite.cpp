#include "model/SimFileRewrite.h"

#include <algorithm>
#include <optional>

#include "foundation/LastError.h"
#include "foundation/LineReader.h"
#include "foundation/Text.h"
#include "foundation/platform/Platform.h"

namespace tervix {
namespace {

// The whole file, key lines replaced. A line that comes in pieces counts as one line.
std::optional<std::string> rewrittenContent(const std::string& simPath,
                                            const std::vector<SimKeyValue>& values) {
  LineReader file;
  if (file.open(simPath) != platform::FileReader::Opening::kOpened)
    return std::nullopt;
  std::string content;
  bool atLineStart = true;
  bool inReplacedLine = false;
  while (const auto piece = file.next()) {
    if (atLineStart) {
      const auto line = std::find_if(values.begin(), values.end(), [&](const SimKeyValue& value) {
        return startsWithIgnoringCase(*piece, value.key);
      });
      inReplacedLine = line != values.end();
      if (inReplacedLine)
        content.append(line->key).append("= \"").append(line->value).append("\" \n");
    }
    if (!inReplacedLine)
      content.append(*piece);
    atLineStart = piece->back() == '\n';
  }
  if (file.failed())
    return std::nullopt;
  return content;
}

} // namespace

unsigned long rewriteSimKeys(const std::string& simPath, const std::vector<SimKeyValue>& values) {
  const std::string backup = simPath + ".bak";
  const bool keepBackup = platform::isTaken(backup) && !platform::isFolder(backup);
  if (!keepBackup && platform::copyFile(simPath, backup) != platform::CopyResult::kCopied) {
    platform::removeFile(backup);
    return raiseError(kCannotCopyFile, simPath, backup);
  }
  const auto content = rewrittenContent(simPath, values);
  const bool isRewritten = content && platform::replaceFile(simPath, *content);
  if (!keepBackup)
    platform::removeFile(backup);
  return isRewritten ? 0 : 1;
}

} // namespace tervix
