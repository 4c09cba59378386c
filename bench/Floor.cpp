// What no implementation can leave out when it opens a project: the calls into the readers of
// project and design files, and openat, read and close of each ".sim" file and include list.
// bench_floor [--rewrite] LAYOUT PROJECT_FILE prints the nanoseconds it took. With --rewrite each
// include list is also written again; with --allocations the allocations are printed instead.

#include <array>
#include <iostream>
#include <list>
#include <string>
#include <vector>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <tvx_wobj.h>
#include <unistd.h>

#include "bench/support/GeneratedProject.h"
#include "bench/support/Measure.h"

namespace {

using tervix::bench::require;

std::size_t readFile(const std::string& path, std::array<char, 4096>& buffer) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  require(file >= 0, path);
  const ssize_t count = read(file, buffer.data(), buffer.size());
  close(file);
  require(count >= 0, path);
  return static_cast<std::size_t>(count);
}

void writeFile(const std::string& path, const char* text, std::size_t size) {
  const int file = open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
  require(file >= 0 && write(file, text, size) == static_cast<ssize_t>(size), path);
  close(file);
}

std::vector<std::string> listedSimFiles(const std::string& folder) {
  std::vector<std::string> files;
  DIR* const listing = opendir(folder.c_str());
  require(listing != nullptr, folder);
  while (const dirent* entry = readdir(listing)) {
    const std::string name = static_cast<const char*>(entry->d_name);
    if (name.size() > 4 && name.compare(name.size() - 4, 4, ".sim") == 0)
      files.push_back(folder + "/" + name);
  }
  closedir(listing);
  return files;
}

void readDesign(const std::string& designFile) {
  using Entry = int(const std::string&, std::string&, std::list<std::string>&);
  void* const library = dlopen("ZelDsnReader.dll", RTLD_NOW | RTLD_LOCAL);
  require(library != nullptr, "ZelDsnReader.dll");
  auto* const entry = reinterpret_cast<Entry*>(dlsym(library, "getDsnInfo"));
  std::string root;
  std::list<std::string> schematics;
  require(entry != nullptr && entry(designFile, root, schematics) == 0, designFile);
  dlclose(library);
}

// The same calls as an opening makes, in its order.
std::vector<std::string> simFilesOf(const std::string& projectFile,
                                    const tervix::bench::Layout& layout) {
  const std::string folder = projectFile.substr(0, projectFile.rfind('/'));
  const bool isSimulation = layout.type == PROJECT_TYPE_SIMULATION;
  std::vector<std::string> files;
  std::list<std::string> listed;
  std::list<std::string> unused;
  std::string text;
  if (layout.frontEnd == FRONTEND_ID_PROJECT_FILE) {
    files = listedSimFiles(isSimulation ? folder + "/profiles" : folder);
  } else {
    require(readProjectFiles(projectFile, "Design Resources", listed, unused, true) == 0, "design");
    readDesign(folder + "/" + listed.front());
    listed.clear();
    require(readSimProfiles(projectFile, listed, unused, text, true) == 0, "profiles");
    for (const std::string& file : listed)
      files.push_back(folder + "/" + file.substr(2));
    readItemFromProject(projectFile, "Design Resources", "TERVIX_Output_File", text);
  }
  for (const char* item : {"Model Libraries", "Stimulus Files", "Include Files"})
    readProjectFiles(projectFile, "Tervix Resources", item, listed, unused, true);
  return files;
}

void readProject(const std::string& projectFile, const tervix::bench::Layout& layout,
                 bool rewrites) {
  std::array<char, 4096> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
  for (const std::string& sim : simFilesOf(projectFile, layout)) {
    readFile(sim, buffer);
    if (layout.type != PROJECT_TYPE_SIMULATION)
      continue;
    const std::string folder = sim.substr(0, sim.size() - 4);
    const std::string list = folder + folder.substr(folder.rfind('/')) + "_profile.inc";
    const std::size_t size = readFile(list, buffer);
    if (rewrites)
      writeFile(list, buffer.data(), size);
  }
}

} // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  return tervix::bench::runMain([&] {
    const std::string option = arguments.size() > 2 ? arguments[0] : "";
    const bool rewrites = option == "--rewrite";
    const std::size_t first = option.empty() ? 0 : 1;
    require(arguments.size() == first + 2, "[--rewrite | --allocations] LAYOUT PROJECT_FILE");
    const auto layout = tervix::bench::layoutOf(arguments[first]);
    const std::size_t before = tervix::bench::allocationsSoFar();
    const long long time =
        tervix::bench::nanosecondsOf([&] { readProject(arguments[first + 1], layout, rewrites); });
    if (option == "--allocations")
      std::cout << tervix::bench::allocationsSoFar() - before << "\n";
    else
      std::cout << time << "\n";
  });
}
