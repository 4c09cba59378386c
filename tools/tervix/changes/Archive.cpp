#include "tools/tervix/changes/Archive.h"

#include <filesystem>

#include "tools/tervix/changes/ArchiveCheck.h"
#include "tools/tervix/changes/ArchiveFiles.h"
#include "tools/tervix/changes/ArchiveFolder.h"
#include "tools/tervix/changes/ArchiveNetlists.h"
#include "tools/tervix/changes/ArchivePaths.h"
#include "tools/tervix/changes/ArchiveTexts.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/Folders.h"
#include "tools/tervix/changes/ProjectLayout.h"

// The library's archiveProject is not called here: it carries the profiles of one of the four
// layouts, stops at what it cannot copy, follows any link, and is silent as long as it takes. All
// of its files are among those of the plan, copied and compared one by one.

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

std::string stemOf(const std::string& path) {
  return fs::path(path).stem().string();
}

// For front end 1 the folder above that of the project names the design, and so goes along.
std::string rootOf(const ProjectLayout& layout) {
  return layout.hasDesignFile() ? layout.folder : folderHolding(layout.folder);
}

std::string newRootIn(const std::string& archive, const ProjectLayout& layout) {
  return layout.hasDesignFile() ? archive
                                : archive + "/" + fs::path(rootOf(layout)).filename().string();
}

class Archiving {
public:
  Archiving(CTervixProject& project, const std::string& folder)
      : view_(viewOf(project)), layout_(layoutOf(project)),
        archive_(archiveFolderFor(folder, rootOf(layout_), layout_)),
        paths_(rootOf(layout_), newRootIn(archive_, layout_), archive_), files_(paths_, archive_),
        netlists_(paths_, files_) {}

  ChangePlan plan() {
    gatherOwnFolders();
    gatherFilesByName();
    gatherNamedFiles();
    paths_.settle();
    netlists_.tellUnresolved();
    ChangePlan plan;
    plan.title = "archive " + layout_.project + " to " + archive_;
    plan.projectFile = paths_(layout_.projectFile);
    plan.isElsewhere = true;
    planFiles(plan);
    plan.remarks = files_.remarks();
    plan.check = [file = plan.projectFile, view = view_, paths = paths_] {
      requireArchived(view, file,
                      [&](const NamedPath& named) { return paths(paths.placeOf(named)); });
    };
    return plan;
  }

private:
  // The folders that hold nothing but the project go along as they are.
  void gatherOwnFolders() {
    if (!layout_.hasDesignFile())
      gatherFolder(layout_.folder);
    else if (layout_.isSimulation())
      gatherFolder(layout_.filesFolder());
  }

  void gatherFolder(const std::string& folder) {
    if (fs::is_directory(folder))
      files_.addFolder(folder);
  }

  // Where the files of schematics and profiles lie beside others, their names tell them apart. A
  // run leaves more of them than the library knows.
  void gatherFilesByName() {
    files_.addFile(layout_.projectFile);
    for (const SchematicView& schematic : view_.schematics) {
      gatherFiles(schematic.files);
      if (layout_.hasDesignFile() && !layout_.isSimulation())
        gatherBeside(schematic.files.front().place);
      for (const ProfileView& profile : schematic.profiles) {
        files_.addFile(profile.sim.place);
        gatherFiles(profile.files);
        if (!layout_.isSimulation())
          gatherBeside(profile.sim.place);
      }
    }
  }

  void gatherFiles(const std::vector<FileView>& files) {
    for (const FileView& file : files)
      files_.addFile(paths_.placeOf({file.place, layout_.folder}));
  }

  void gatherBeside(const std::string& file) {
    files_.addFilesNamed(folderHolding(file), {stemOf(file) + "."});
  }

  void gatherNamedFiles() {
    std::set<std::string> netlists;
    for (const FileView& library : view_.variants)
      netlists.insert(paths_.placeOf({library.path, layout_.folder}));
    const auto gather = [&](const NamedFile& file) {
      const std::string place = paths_.placeOf(file.named);
      const bool isThere =
          file.isExpected ? files_.addNamed(place, file.by) : files_.addFile(place);
      if (isThere && file.isNetlist)
        netlists.insert(place);
      return file.named.text;
    };
    std::set<std::string> texts;
    for (const auto& [path, text] : textsOf(view_, layout_, gather))
      texts.insert(path);
    netlists_.follow(netlists, texts);
  }

  void planFiles(ChangePlan& plan) {
    const auto newText = [&](const NamedFile& file) {
      const bool leads = file.isExpected || files_.files().count(paths_.placeOf(file.named)) != 0;
      return leads ? paths_.textFor(file.named, file.isNeverBare) : file.named.text;
    };
    const std::map<std::string, std::string> texts = textsOf(view_, layout_, newText);
    plan.madeFolders.push_back(folderHolding(plan.projectFile));
    for (const std::string& folder : files_.folders())
      plan.madeFolders.push_back(paths_(folder));
    for (const std::string& file : files_.files())
      if (file != layout_.projectFile)
        planFile(plan, file, texts);
    planFile(plan, layout_.projectFile, texts);
  }

  void planFile(ChangePlan& plan, const std::string& file,
                const std::map<std::string, std::string>& texts) {
    const std::string source = fs::is_symlink(file) ? fs::canonical(file).generic_string() : file;
    const auto text = texts.find(file);
    if (text == texts.end() || text->second == contentOf(file))
      plan.made.push_back({paths_(file), source, "", true});
    else
      plan.made.push_back({paths_(file), source, text->second, false});
  }

  ProjectView view_;
  ProjectLayout layout_;
  std::string archive_;
  ArchivePaths paths_;
  ArchiveFiles files_;
  ArchiveNetlists netlists_;
};

} // namespace

ChangePlan planArchive(CTervixProject& project, const std::string& folder) {
  return Archiving(project, folder).plan();
}

} // namespace tervix::tool
