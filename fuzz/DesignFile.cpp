// The design reader, loaded by name as the library does it: any bytes.

#include <list>

#include <dlfcn.h>

#include "ZelDsnReader.h"
#include "fuzz/support/Workplace.h"

namespace {

using tervix::fuzz::require;
using Texts = std::list<std::string>;

decltype(&getDsnInfo) readingFunction() {
  void* const symbol = dlsym(tervix::fuzz::designReader(), "getDsnInfo");
  require(symbol != nullptr, "the reader has its one function");
  return reinterpret_cast<decltype(&getDsnInfo)>(symbol);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto read = readingFunction();
  const std::string path =
      tervix::fuzz::emptyWorkplace().file("amp.dsn", tervix::fuzz::textOf(data, size));
  const std::string former = "there before";
  std::string root = former;
  Texts schematics = {former};
  const int status = read(path, root, schematics);
  require(!schematics.empty() && schematics.front() == former, "schematics are appended");
  require(status == 0 || (root == former && schematics.size() == 1), "a failure leaves both");
  std::string rootAgain = former;
  Texts again = {former};
  require(read(path, rootAgain, again) == status && rootAgain == root && again == schematics,
          "read again, it says the same");
  return 0;
}
