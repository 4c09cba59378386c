#include "tools/tervix/ProjectTree.h"

#include <utility>

#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

// A line of the tree and what hangs below it.
struct Branch {
  std::string text;
  std::vector<Branch> below;
};

class TreeBuilder {
public:
  TreeBuilder(const ProjectView& project, const Style& style) : project_(project), style_(style) {}

  Branch build() const {
    Branch top{headingOf(project_.name) + style_.faint("  " + kindOfProject()), {}};
    top.below.push_back({"project file  " + shown(project_.path), {}});
    top.below.push_back({"design        " + design(), {}});
    if (project_.outputFile)
      top.below.push_back({"output file   " + printable(project_.outputFile->path) +
                               missingMark(!project_.outputFile->exists),
                           {}});
    appendVariants(top, "design-level files", project_.variants);
    for (const SchematicView& schematic : project_.schematics)
      top.below.push_back(branchOf(schematic));
    for (const FileView& file : project_.unusedProfiles)
      top.below.push_back({"profile file  " + printable(file.path) +
                               mark(file.exists ? "(not a profile of this project)" : "(missing)"),
                           {}});
    return top;
  }

private:
  std::string headingOf(const std::string& name) const { return style_.heading(printable(name)); }

  std::string kindOfProject() const {
    std::string kind = "project of type " + std::to_string(project_.type);
    if (const std::string layout = layoutName(project_.type); !layout.empty())
      kind += " (" + layout + ")";
    return kind + ", front end " + std::to_string(project_.frontEnd);
  }

  // For front end 1 the design is a name and no file.
  std::string design() const {
    if (!project_.hasDesign)
      return style_.problem("none") + "  (the project file lists no .dsn file that exists)";
    std::string name = style_.heading(printable(project_.designName));
    if (project_.frontEnd != FRONTEND_ID_DESIGN_FILE)
      return name;
    return name + "  " + shown(project_.design.place) + missingMark(!project_.design.exists);
  }

  std::string shown(const std::string& path) const { return shownFrom(project_.folder, path); }

  std::string missingMark(bool isMissing) const {
    return isMissing ? mark("(missing)") : std::string();
  }

  std::string mark(const char* text) const { return "  " + style_.problem(text); }

  Branch branchOf(const SchematicView& schematic) const {
    Branch branch{"schematic " + headingOf(schematic.name), {}};
    if (schematic.root)
      branch.text += "  " + style_.accent("root");
    branch.text += style_.faint("  in " + shownFolder(schematic.folder));
    appendFiles(branch, schematic.files);
    for (const ProfileView& profile : schematic.profiles)
      branch.below.push_back(branchOf(profile));
    return branch;
  }

  Branch branchOf(const ProfileView& profile) const {
    Branch branch{"profile " + headingOf(profile.displayName), {}};
    if (profile.active)
      branch.text += "  " + style_.accent("active");
    branch.text += "  " + shown(profile.sim.place) + missingMark(!profile.sim.exists);
    appendVariants(branch, "profile-level files", profile.variants);
    appendFiles(branch, profile.files);
    return branch;
  }

  std::string shownFolder(const std::string& folder) const {
    return folder == project_.folder ? "the project's folder" : shown(folder);
  }

  void appendVariants(Branch& branch, const char* title,
                      const std::vector<FileView>& variants) const {
    if (variants.empty())
      return;
    Branch list{title, {}};
    for (const FileView& file : variants) {
      std::string kind = file.kind;
      kind.resize(std::string("stimulus  ").size(), ' ');
      list.below.push_back({kind + printable(file.path) + missingMark(!file.exists), {}});
    }
    branch.below.push_back(std::move(list));
  }

  // The files that are there by name, one line for those of a folder; the others by type.
  void appendFiles(Branch& branch, const std::vector<FileView>& files) const {
    std::string there;
    std::string absent;
    for (const FileView& file : files) {
      if (file.exists)
        there += "  " + printable(file.place.substr(file.place.rfind('/') + 1));
      else
        absent += " " + file.kind;
    }
    branch.below.push_back({"on disk     " + (there.empty() ? "none" : there.substr(2)), {}});
    if (!absent.empty())
      branch.below.push_back({style_.faint("not there  " + absent), {}});
  }

  const ProjectView& project_;
  const Style& style_;
};

void print(std::ostream& out, const Branch& branch, const std::string& indent) {
  out << branch.text << "\n";
  for (const Branch& below : branch.below) {
    const bool isLast = &below == &branch.below.back();
    out << indent << (isLast ? "`-- " : "|-- ");
    print(out, below, indent + (isLast ? "    " : "|   "));
  }
}

} // namespace

void printTree(std::ostream& out, const ProjectView& project, const Style& style) {
  print(out, TreeBuilder(project, style).build(), "");
}

} // namespace tervix::tool
