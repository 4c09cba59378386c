// Makes a project: bench_generate LAYOUT SCHEMATICS PROFILES FOLDER [NAME LENGTH [BYTES]]
// where each profile has four files of a run, of so many bytes; or a tree of files to copy:
// bench_generate files FOLDERS FILES FOLDER

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bench/support/GeneratedProject.h"
#include "bench/support/Measure.h"

namespace {

namespace fs = std::filesystem;

// Files of 1 to 64 KiB, shared out evenly.
void writeFiles(int folders, int files, const fs::path& top) {
  const std::string content(65536, 'x');
  for (int i = 0; i < files; ++i) {
    const fs::path folder = top / ("folder" + std::to_string(i % folders));
    fs::create_directories(folder);
    const int kibibytes = 1 + i * 37 % 64;
    std::ofstream(folder / ("file" + std::to_string(i) + ".dat"), std::ios::binary)
        .write(content.data(), kibibytes * 1024);
  }
}

} // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  return tervix::bench::runMain([&] {
    tervix::bench::require(arguments.size() >= 4, "LAYOUT SCHEMATICS PROFILES FOLDER");
    const int first = std::stoi(arguments[1]);
    const int second = std::stoi(arguments[2]);
    if (arguments[0] == "files")
      return writeFiles(first, second, arguments[3]);
    const int nameLength = arguments.size() > 4 ? std::stoi(arguments[4]) : 0;
    const int bytes = arguments.size() > 5 ? std::stoi(arguments[5]) : 0;
    tervix::bench::GeneratedProject(arguments[3], tervix::bench::layoutOf(arguments[0]),
                                    {first, second, nameLength, bytes})
        .write();
  });
}
