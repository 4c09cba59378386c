#include <functional>

#include "tests/project/operations/SampleProject.h"

// A client in the midst of its own iteration finds its place again after any operation that does
// not hand out the next one itself.

namespace tervix::testing {
namespace {

using Operation = std::function<void(SampleProject&)>;

struct NamedOperation {
  const char* name;
  Operation run;
};
std::ostream& operator<<(std::ostream& stream, const NamedOperation& operation) {
  return stream << operation.name;
}

std::string out;

const NamedOperation kOperations[] = {
    {"getProjectPath", [](SampleProject& amp) { amp->getProjectPath(out); }},
    {"getRootSchematicNetFile", [](SampleProject& amp) { amp->getRootSchematicNetFile(out); }},
    {"getSchematicBasedFile",
     [](SampleProject& amp) {
       amp->getSchematicBasedFile(out, arg("SUB"), SCHEMATIC_FILE_NET, true);
     }},
    {"getSchematicBasedFileForAap",
     [](SampleProject& amp) {
       amp->getSchematicBasedFileForAap(out, arg(amp.schematicFolder(2) + "/SUB.aap"),
                                        SCHEMATIC_FILE_NET);
     }},
    {"getProfilePathForSchProf",
     [](SampleProject& amp) { amp->getProfilePathForSchProf(out, arg("SUB"), arg("dc")); }},
    {"getProfilePathForAapProf",
     [](SampleProject& amp) {
       amp->getProfilePathForAapProf(out, arg(amp.schematicFolder(2) + "/SUB.aap"), arg("dc"));
     }},
    {"getParentNameForProfile",
     [](SampleProject& amp) {
       amp->getParentNameForProfile(out, arg("dc"));
       amp->getParentNameForProfile(out, arg("/none.sim"));
     }},
    {"getProfileBasedFile",
     [](SampleProject& amp) {
       amp->getProfileBasedFile(out, arg("dc"), PROFILE_FILE_DAT);
       amp->getProfileBasedFile(out, arg("/none.sim"), PROFILE_FILE_DAT);
     }},
    {"setDatFileForProfile",
     [](SampleProject& amp) {
       amp->setDatFileForProfile(arg("a.dat"), arg(amp.simPath(2)));
       amp->setDatFileForProfile(arg("a.dat"), arg("SUB"), arg("dc"));
     }},
    {"setOutFileForProfile",
     [](SampleProject& amp) {
       amp->setOutFileForProfile(arg("a.out"), arg(amp.simPath(2)));
       amp->setOutFileForProfile(arg("a.out"), arg("SUB"), arg("dc"));
     }},
    {"getTopProfileLevelFile",
     [](SampleProject& amp) {
       amp->getTopProfileLevelFile(out, arg(amp.simPath(2)), VARIANTFILE_TYPE_INCLUDE);
       amp->getNextProfileLevelFile(out, arg(amp.simPath(2)), VARIANTFILE_TYPE_INCLUDE);
     }},
    {"getTopProfileLevelFileForSch",
     [](SampleProject& amp) {
       amp->getTopProfileLevelFileForSch(out, arg("SUB"), arg("dc"), VARIANTFILE_TYPE_INCLUDE);
       amp->getNextProfileLevelFileForSch(out, arg("SUB"), arg("dc"), VARIANTFILE_TYPE_INCLUDE);
     }},
    {"addProfileLevelFile",
     [](SampleProject& amp) {
       amp->addProfileLevelFile(arg(amp.simPath(2)), arg("a.inc"), VARIANTFILE_TYPE_INCLUDE, true,
                                true);
     }},
    {"deleteAllProfileLevelFiles",
     [](SampleProject& amp) {
       amp->deleteAllProfileLevelFiles(arg(amp.simPath(2)), VARIANTFILE_TYPE_INCLUDE, true);
     }},
    {"writeProfileLevelVariants",
     [](SampleProject& amp) { amp->writeProfileLevelVariants(arg(amp.simPath(2))); }},
    {"getProfileLevelFileCount",
     [](SampleProject& amp) {
       int count = 0;
       amp->getProfileLevelFileCount(count, arg("SUB"), arg("dc"), VARIANTFILE_TYPE_INCLUDE);
     }},
    {"getNetFileForProfile",
     [](SampleProject& amp) { amp->getNetFileForProfile(out, arg(amp.simPath(2))); }},
    {"deleteVariantForProfileDispName",
     [](SampleProject& amp) {
       amp->deleteVariantForProfileDispName(arg("SUB-dc"), VARIANTFILE_TYPE_INCLUDE, arg("a.inc"));
       amp->deleteVariantForProfileDispName(arg("none"), VARIANTFILE_TYPE_INCLUDE, arg("a.inc"));
     }},
    {"getProfileDir", [](SampleProject& amp) { amp->getProfileDir(out, arg(amp.simPath(2))); }},
    {"renameDesign",
     [](SampleProject& amp) { amp->renameDesign(arg("pre"), arg(amp.path("P/pre.dsn"))); }},
    {"addDesign", [](SampleProject& amp) { amp->addDesign(arg(amp.path("P/amp.dsn"))); }},
    {"archiveProject", [](SampleProject& amp) { amp->archiveProject(arg(amp.path("D"))); }},
    {"rename", [](SampleProject& amp) {
       amp->rename(arg(std::string(amp.file())), arg(amp.path("Q/pre.tvp")));
     }}};

class Cursor : public ::testing::TestWithParam<NamedOperation> {
protected:
  static void expectKept(SampleProject& amp) {
    CTervixNode* node = nullptr;
    amp->getTopSchematic(node);
    auto& top = static_cast<CTervixSchematic&>(*node);
    top.getTopProfile(node);
    GetParam().run(amp);
    top.getNextProfile(node);
    EXPECT_EQ(nameOfNode(node), "ac");
    amp->getNextSchematic(node);
    EXPECT_EQ(nameOfNode(node), "SUB");
  }
};
INSTANTIATE_TEST_SUITE_P(StaysInPlaceAfter, Cursor, ::testing::ValuesIn(kOperations),
                         [](const auto& operation) { return std::string(operation.param.name); });

TEST_P(Cursor, OfASimulationProject) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  expectKept(amp);
}

TEST_P(Cursor, OfAnyOtherProject) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  expectKept(amp);
}

TEST_P(Cursor, WhileARenameIsRecorded) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  amp.setChangedName("dc", "sweep", RENAME_TYPE_PROFILE);
  expectKept(amp);
}

TEST(CursorOfTheDesign, StandsAtTheEndAfterItIsDropped) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  CTervixNode* first = nullptr;
  CTervixNode* second = nullptr;
  amp->getTopSchematic(first);
  amp->getNextSchematic(second);
  EXPECT_EQ(amp->deleteDesign(), 0u);
  CTervixNode* node = first;
  amp->getNextSchematic(node);
  EXPECT_EQ(node, nullptr);
  delete first;
  delete second;
}

} // namespace
} // namespace tervix::testing
