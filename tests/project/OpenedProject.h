#pragma once

#include <string>
#include <vector>

#include <CTervixProject.h>

#include "tests/support/ProjectBuilder.h"

namespace tervix::testing {

// The operations take their strings as references, also those that they only read.
inline std::string& arg(std::string&& text) {
  return text;
}

// What a getter hands out.
template <class Object, class Class>
std::string textOf(const Object& object, unsigned long (Class::*get)(std::string&) const) {
  std::string text;
  (object.*get)(text);
  return text;
}
inline std::string nameOfNode(const CTervixNode* node) {
  return node != nullptr ? textOf(*node, &CTervixNode::getName) : "(null)";
}

// The last error as "CODE TEXT".
std::string lastError();
// Records an error that no test is about, so that a test can show that nothing else is recorded.
void recordOtherError();
extern const char* const kOtherError;

// Destroys a project's schematics, which the project itself only forgets.
void destroySchematics(CTervixProject& project);

// A project for the length of a test.
class OpenedProject {
public:
  OpenedProject() = default;
  OpenedProject(const std::string& path, int frontEnd, bool isSimulation = false,
                const char* name = nullptr)
      : project_(path.c_str(), static_cast<FRONTEND_ID>(frontEnd), isSimulation, name) {}
  ~OpenedProject() { destroySchematics(project_); }
  OpenedProject(const OpenedProject&) = delete;
  OpenedProject& operator=(const OpenedProject&) = delete;

  CTervixProject& operator*() { return project_; }
  CTervixProject* operator->() { return &project_; }

private:
  CTervixProject project_;
};

// The tree, one line a node: "TOP root", "  tran TOP-tran active". Moves the cursors.
using Lines = std::vector<std::string>;
Lines treeOf(CTervixProject& project);
// The entries of a design-level list. Moves the cursor.
Lines designLevelFiles(CTervixProject& project, VARIANTFILE_TYPE type);

PROJECT_TYPE projectTypeIn(const CTervixProject& project);
int frontEndIn(const CTervixProject& project); // 0 when not set

CTervixSchematic* addSchematic(CTervixProject& project, std::string name);
CTervixProfile* addProfile(CTervixProject& project, std::string schematic, std::string name);
CTervixSchematic* schematicIn(CTervixProject& project, std::string name);
CTervixProfile* profileIn(CTervixProject& project, std::string schematic, std::string name);

} // namespace tervix::testing
