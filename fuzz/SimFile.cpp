// The readers of a ".sim" file and its rewriting, beside a plain reader: any bytes.

#include <algorithm>
#include <functional>
#include <vector>

#include "foundation/Text.h"
#include "fuzz/support/Workplace.h"
#include "model/SimFile.h"
#include "model/SimFileRewrite.h"

namespace {

using tervix::fuzz::require;
using Texts = std::vector<std::string>;

bool beginsWith(const std::string& line, const std::string& key) {
  return tervix::toLowerCase(line.substr(0, key.size())) == tervix::toLowerCase(key);
}

Texts linesOf(const std::string& content, std::size_t longest) {
  Texts lines;
  for (std::size_t at = 0; at < content.size(); at += lines.back().size()) {
    const std::size_t end = std::min(content.find('\n', at), content.size() - 1) + 1;
    lines.push_back(content.substr(at, std::min(end - at, longest)));
  }
  return lines;
}

// The value of each key, "(unset)" without one; none when there are not lines enough.
Texts plainlyRead(const std::string& content, const Texts& keys, bool& isWhole) {
  Texts values(keys.size(), "(unset)");
  std::size_t seen = 0;
  for (std::string line : linesOf(content, 1023)) {
    if (seen == keys.size())
      break;
    const auto key = std::find_if(keys.begin(), keys.end(),
                                  [&](const std::string& word) { return beginsWith(line, word); });
    if (key == keys.end())
      continue;
    ++seen;
    line = line.substr(0, line.find('\0'));
    const std::size_t quote = line.find('"');
    if (quote == std::string::npos)
      continue;
    const std::string value = line.substr(quote + 1, line.find('"', quote + 1) - quote - 1);
    if (!value.empty())
      values[static_cast<std::size_t>(key - keys.begin())] = value;
  }
  isWhole = seen == keys.size();
  return values;
}

using Read = std::function<unsigned long(Texts&, const tervix::SimFile&)>;

void checkReader(const std::string& content, const std::string& path, const Texts& keys,
                 const Read& read) {
  bool isWhole = false;
  const Texts expected = plainlyRead(content, keys, isWhole);
  Texts values(keys.size(), "(unset)");
  const tervix::SimFile file(path);
  const unsigned long status = read(values, file);
  require(status == (isWhole ? 0U : 10121U), "10121 when too few of the lines are there", content);
  require(values == expected, "the values are those between the quotes", content);
  // One object is asked several times.
  Texts again(keys.size(), "(unset)");
  require(read(again, file) == status && again == values, "asked again, it says the same", content);
}

std::string plainlyRewritten(const std::string& content) {
  std::string text;
  for (const std::string& line : linesOf(content, content.size()))
    text += beginsWith(line, "NetlistFile")   ? "NetlistFile= \"n.cir\" \n"
            : beginsWith(line, "ProjectFile") ? "ProjectFile= \"p.tvp\" \n"
                                              : line;
  return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string content = tervix::fuzz::textOf(data, size);
  const auto& folder = tervix::fuzz::emptyWorkplace();
  const std::string path = folder.file("tran.sim", content);

  checkReader(content, path, {"ProfileName", "RootSchematics"},
              [](Texts& values, const auto& file) {
                return tervix::readProfileNameAndRoot(values[1], values[0], file);
              });
  checkReader(content, path, {"DataFile", "OutFile"}, [](Texts& values, const auto& file) {
    return tervix::readDataAndOutFile(values[1], values[0], file);
  });
  checkReader(content, path,
              {"ProfileName", "ProfileFile", "DesignFile", "ProjectFile", "RootSchematics"},
              [](Texts& values, const auto& file) {
                tervix::SimProjectInfo info{values[0], values[1], values[2], values[3], values[4]};
                const unsigned long status = tervix::readSimProjectInfo(info, file);
                values = {info.profileName, info.profileFile, info.designFile, info.projectFile,
                          info.rootSchematic};
                return status;
              });
  const unsigned long valid = tervix::checkSimFile(path);
  require(valid == 0 || valid == 10121, "a readable file is valid or not", content);
  require(tervix::testing::contentOf(path) == content, "reading changes nothing", content);

  const std::vector<tervix::SimKeyValue> values = {{"NetlistFile", "n.cir"},
                                                   {"ProjectFile", "p.tvp"}};
  require(tervix::rewriteSimKeys(path, values) == 0, "any file can be rewritten", content);
  require(tervix::fuzz::filesIn(folder.path()) ==
              tervix::fuzz::Files{{"/tran.sim", plainlyRewritten(content)}},
          "only the lines of the keys change, and no backup stays", content);
  return 0;
}
