// Runs one operation of the library and prints a figure: bench_operation NAME ARGUMENT...
// open LAYOUT PROJECT_FILE, open-and-save, rename-schematic, archive, copy-folder FROM TO and
// copy-file FROM TO print nanoseconds; allocations and memory print what opening takes for each
// profile.

#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <CTervixProject.h>

#include "bench/support/GeneratedProject.h"
#include "bench/support/Measure.h"

namespace {

using Arguments = std::vector<std::string>;
using tervix::bench::nanosecondsOf;
using tervix::bench::require;

// A project that is only read is left as it is: destroying a profile saves its include list.
CTervixProject& opened(const Arguments& arguments) {
  const auto layout = tervix::bench::layoutOf(arguments.at(0));
  auto* const project =
      new CTervixProject(arguments.at(1).c_str(), layout.frontEnd, false, nullptr);
  require(project->initialize() == 0, "initialize");
  return *project;
}

int profilesOf(CTervixProject& project) {
  int all = 0;
  CTervixNode* schematic = nullptr;
  for (project.getTopSchematic(schematic); schematic; project.getNextSchematic(schematic)) {
    int own = 0;
    static_cast<CTervixSchematic*>(schematic)->numberOfProfiles(own);
    all += own;
  }
  return all;
}

void destroySchematics(CTervixProject& project) {
  std::string name;
  for (project.getTopSchematicName(name); !name.empty(); project.getTopSchematicName(name))
    project.deleteSchematic(name);
}

double open(const Arguments& arguments) {
  return static_cast<double>(nanosecondsOf([&] { opened(arguments); }));
}

double openAndSave(const Arguments& arguments) {
  return static_cast<double>(nanosecondsOf([&] { destroySchematics(opened(arguments)); }));
}

double renameSchematic(const Arguments& arguments) {
  CTervixProject& project = opened(arguments);
  CTervixNode* schematic = nullptr;
  std::string former = arguments.at(2);
  std::string changed = arguments.at(3);
  require(project.findSchematic(schematic, former) == 0, former);
  project.setChangedName(former, changed, RENAME_TYPE_SCHEMATIC);
  return static_cast<double>(nanosecondsOf(
      [&] { require(static_cast<CTervixSchematic*>(schematic)->rename(changed) == 0, "rename"); }));
}

double archive(const Arguments& arguments) {
  CTervixProject& project = opened(arguments);
  std::string folder = arguments.at(2);
  return static_cast<double>(
      nanosecondsOf([&] { require(project.archiveProject(folder) == 0, "archive"); }));
}

double copyFolder(const Arguments& arguments) {
  std::string from = arguments.at(0);
  std::string to = arguments.at(1);
  return static_cast<double>(nanosecondsOf([&] { require(cpDir(from, to) == 0, to); }));
}

double copyFile(const Arguments& arguments) {
  std::string from = arguments.at(0);
  std::string to = arguments.at(1);
  return static_cast<double>(nanosecondsOf([&] { require(cpFile(from, to) == 0, to); }));
}

double perProfile(const Arguments& arguments, const std::function<std::size_t()>& gauge) {
  const std::size_t before = gauge();
  CTervixProject& project = opened(arguments);
  const std::size_t after = gauge();
  return static_cast<double>(after - before) / profilesOf(project);
}

double allocations(const Arguments& arguments) {
  return perProfile(arguments, tervix::bench::allocationsSoFar);
}

double memory(const Arguments& arguments) {
  return perProfile(arguments, tervix::bench::residentBytes);
}

} // namespace

int main(int argc, char** argv) {
  const std::map<std::string, double (*)(const Arguments&)> operations = {
      {"open", open},
      {"open-and-save", openAndSave},
      {"rename-schematic", renameSchematic},
      {"archive", archive},
      {"copy-folder", copyFolder},
      {"copy-file", copyFile},
      {"allocations", allocations},
      {"memory", memory}};
  return tervix::bench::runMain([&] {
    const std::string name = argc > 1 ? argv[1] : "";
    require(operations.count(name) != 0, "no operation " + name);
    std::cout << std::fixed << operations.at(name)(Arguments(argv + 2, argv + argc)) << "\n";
  });
}
