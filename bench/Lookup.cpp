// Look-ups in a project of each size, by Google Benchmark. The profiles asked for are spread over
// the whole project, as many in a small one as in a large one.
// bench_lookup FOLDER FLAG..., with projects made by bench_generate in FOLDER/SIZE.

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <CTervixProject.h>
#include <benchmark/benchmark.h>

#include "bench/support/GeneratedProject.h"
#include "bench/support/Measure.h"

namespace {

using tervix::bench::GeneratedProject;
using tervix::bench::require;

constexpr int kAsked = 50;

// One profile that is asked for.
struct Asked {
  std::string schematic;
  std::string profile;
  std::string simFile;
  std::string markerKey;
};

struct Opened {
  CTervixProject* project = nullptr; // never destroyed: that would write
  CTervixNodeList* profiles = nullptr;
  std::vector<Asked> asked;
};

Opened open(const GeneratedProject& generated) {
  Opened result;
  result.project = new CTervixProject(generated.projectFile().c_str(), generated.layout().frontEnd,
                                      false, nullptr);
  require(result.project->initialize() == 0, generated.projectFile());
  const auto& size = generated.size();
  for (int i = 0; i < kAsked; ++i) {
    const int all = size.schematics * size.profiles;
    const int index = static_cast<int>(static_cast<long>(all) * i / kAsked);
    const int s = index / size.profiles;
    const int p = index % size.profiles;
    result.asked.push_back({generated.schematic(s), generated.profile(p), generated.simFile(s, p),
                            generated.markerKey(s, p)});
  }
  // The profiles in one list of the client's own.
  result.profiles = new CTervixNodeList;
  CTervixNode* schematic = nullptr;
  result.project->getTopSchematic(schematic);
  CTervixNode* profile = nullptr;
  auto& first = static_cast<CTervixSchematic&>(*schematic);
  for (first.getTopProfile(profile); profile != nullptr; first.getNextProfile(profile))
    result.profiles->addNode(profile);
  return result;
}

// A look-up asks for one profile and tells whether it found it.
using LookUp = bool (*)(Opened&, Asked&);

bool byName(Opened& opened, Asked& asked) {
  CTervixNode* node = nullptr;
  return opened.profiles->findNode(node, asked.profile) == 0;
}
bool byPath(Opened& opened, Asked& asked) {
  CTervixNode* node = nullptr;
  return opened.profiles->findNodeWithPath(node, asked.simFile) == 0;
}
bool findProfileByNames(Opened& opened, Asked& asked) {
  CTervixNode* node = nullptr;
  return opened.project->findProfile(node, asked.schematic, asked.profile) == 0;
}
bool findProfileByFile(Opened& opened, Asked& asked) {
  CTervixNode* node = nullptr;
  std::string schematic;
  std::string profile;
  return opened.project->findProfile(node, schematic, profile, asked.simFile) == 0;
}
bool simProfileExists(Opened& opened, Asked& asked) {
  CTervixNode* node = nullptr;
  bool exists = false;
  opened.project->simProfileExists(exists, node, asked.simFile);
  return exists;
}
bool markerKeyExists(Opened& opened, Asked& asked) {
  bool exists = false;
  opened.project->markerKeyExists(exists, asked.markerKey);
  return exists;
}
bool namesForMarkerKey(Opened& opened, Asked& asked) {
  std::string design;
  std::string schematic;
  std::string profile;
  opened.project->getDsnSchProfNamesForMarkerKey(design, schematic, profile, asked.markerKey);
  return !profile.empty();
}
bool profileBasedFileByName(Opened& opened, Asked& asked) {
  std::string file;
  return opened.project->getProfileBasedFile(file, asked.profile, PROFILE_FILE_MRK) == 0;
}
bool profileBasedFileByPath(Opened& opened, Asked& asked) {
  std::string file;
  return opened.project->getProfileBasedFile(file, asked.simFile, PROFILE_FILE_MRK) == 0;
}

struct Row {
  const char* name;
  LookUp lookUp;
};
constexpr Row kRows[] = {{"findNode", byName},
                         {"findNodeWithPath", byPath},
                         {"findProfile_names", findProfileByNames},
                         {"findProfile_file", findProfileByFile},
                         {"simProfileExists", simProfileExists},
                         {"markerKeyExists", markerKeyExists},
                         {"getDsnSchProfNamesForMarkerKey", namesForMarkerKey},
                         {"getProfileBasedFile_name", profileBasedFileByName},
                         {"getProfileBasedFile_path", profileBasedFileByPath}};

void measure(benchmark::State& state, Opened& opened, LookUp lookUp) {
  std::size_t next = 0;
  for (auto _ : state) {
    if (!lookUp(opened, opened.asked[next]))
      state.SkipWithError("not found");
    next = next + 1 == opened.asked.size() ? 0 : next + 1;
  }
}

} // namespace

int main(int argc, char** argv) {
  return tervix::bench::runMain([&] {
    require(argc > 1, "FOLDER FLAG...");
    const std::string folder = argv[1];
    int flags = argc - 1;
    benchmark::Initialize(&flags, argv + 1);
    std::vector<std::unique_ptr<Opened>> projects;
    for (const int profiles : {50, 50000}) {
      const tervix::bench::Layout layout;
      projects.push_back(std::make_unique<Opened>(
          open({folder + "/" + std::to_string(profiles), layout, {1, profiles, 0, 0}})));
      for (const Row& row : kRows)
        benchmark::RegisterBenchmark(
            (std::string(row.name) + "/" + std::to_string(profiles)).c_str(), measure,
            std::ref(*projects.back()), row.lookUp);
    }
    benchmark::RunSpecifiedBenchmarks();
  });
}
