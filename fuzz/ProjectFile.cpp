// The reader of project files, and edits of them: any bytes.

#include <fuzzer/FuzzedDataProvider.h>

#include <list>
#include <vector>

#include "EditableFile.h"
#include "Mistake.h"
#include "ProjectFile.h"
#include "fuzz/support/Workplace.h"
#include "readers/tvx_wobj/tvx_wobj.h"

namespace {

using tervix::formats::EditableFile;
using tervix::fuzz::require;
using Texts = std::list<std::string>;

const char* const kSections[] = {"Design Resources", "Tervix Resources", "Simulation Profiles"};
const char* const kItems[] = {"Files", "Model Libraries", "Include Files", "Active"};

// A failure leaves outputs as they were, and success appends.
void checkLists(const std::string& file) {
  for (const char* section : kSections)
    for (const char* item : kItems) {
      Texts files = {"there before"};
      Texts second;
      const int status = readProjectFiles(file, section, item, files, second, false);
      require(!files.empty() && files.front() == "there before", "a list is appended to");
      require(status == 0 || files.size() == 1, "a failure adds nothing");
      const auto read = tervix::formats::readFileList(file, section, item);
      require(read.has_value() == (status == 0), "both ways to read say the same");
      files.pop_front();
      require(!read || *read == files, "both ways to read give the same");
    }
}

void checkTexts(const std::string& file) {
  for (const char* section : kSections) {
    std::string value = "there before";
    const int status = readItemFromProject(file, section, "Active", value);
    require(status == 0 || value == "there before", "a failure leaves the value");
  }
  Texts profiles;
  Texts second;
  std::string active = "there before";
  const int status = readSimProfiles(file, profiles, second, active, false);
  require(status == 0 || (profiles.empty() && active == "there before"),
          "a failure leaves profiles and active profile");
}

// An edit is whole or refused; saved, the file says what was asked for.
void checkEdit(const std::string& path, const std::string& content, FuzzedDataProvider& choice) {
  auto file = EditableFile::open(path);
  if (!file)
    return;
  require(file->text() == content, "a file opened for editing has every byte");
  const char* section = choice.PickValueInArray(kSections);
  const char* item = choice.PickValueInArray(kItems);
  const std::string value = choice.ConsumeRandomLengthString(20);
  const auto before = file->elementsOf(section, item);
  if (!before || !file->addToList(section, item, value)) {
    require(file->text() == content, "a refused edit changes nothing");
    return;
  }
  std::vector<std::string> expected = *before;
  expected.push_back(value);
  require(file->elementsOf(section, item) == expected, "an entry goes to the end of its list");
  require(file->save(), "an edited file can be saved");
  const auto read = tervix::formats::readFileList(path, section, item);
  require(read && Texts(expected.begin(), expected.end()) == *read, "what was saved is read");
  require(file->removeElement(section, item, expected.size() - 1), "the entry can be removed");
  require(file->elementsOf(section, item) == before, "and then the list is as before");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // What is edited is taken from the end, so that the rest is the file as it stands.
  FuzzedDataProvider input(data, size);
  const std::size_t choices = size < 64 ? 0 : input.ConsumeIntegralInRange<std::size_t>(0, 23);
  const std::string content = input.ConsumeBytesAsString(input.remaining_bytes() - choices);
  const std::string path = tervix::fuzz::emptyWorkplace().file("amp.tvp", content);
  checkLists(path);
  checkTexts(path);
  checkEdit(path, content, input);
  return 0;
}
