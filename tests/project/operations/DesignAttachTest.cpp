#include <memory>

#include "tests/project/operations/SampleProject.h"

// Dropping the design of a project and attaching one.

namespace tervix::testing {
namespace {

std::string designOf(CTervixProject& project) {
  return textOf(project, &CTervixProject::getDesignName) + " " +
         textOf(project, &CTervixProject::getDesignPath) + " " +
         textOf(project, &CTervixProject::getDesignFolderPath);
}

// Takes over the schematics that a project is about to forget.
class Orphans {
public:
  explicit Orphans(CTervixProject& project) {
    CTervixNode* node = nullptr;
    for (project.getTopSchematic(node); node != nullptr; project.getNextSchematic(node))
      nodes_.emplace_back(node);
  }

private:
  std::vector<std::unique_ptr<CTervixNode>> nodes_;
};

TEST(DesignAttachment, IsForFrontEndTwoOnly) {
  for (const Layout layout : {Layout::kProjectSimulation, Layout::kProjectOther}) {
    SampleProject amp(layout);
    const std::string design = designOf(*amp);
    const Lines tree = treeOf(*amp);
    const auto files = amp.snapshot();
    EXPECT_EQ(amp->deleteDesign(), 1u);
    EXPECT_EQ(amp->addDesign(arg(amp.folder() + "/amp.dsn")), 1u);
    EXPECT_EQ(amp->addDesign(arg("/none.dsn")), 1u);
    EXPECT_EQ(designOf(*amp), design);
    EXPECT_EQ(treeOf(*amp), tree);
    EXPECT_EQ(amp.snapshot(), files);
    EXPECT_EQ(lastError(), kOtherError);
  }
}

TEST(DesignAttachment, NeedsAFrontEnd) {
  recordOtherError();
  CTervixProject nowhere;
  EXPECT_EQ(nowhere.deleteDesign(), 1u);
  EXPECT_EQ(nowhere.addDesign(arg("/none.dsn")), 1u);
  EXPECT_EQ(lastError(), kOtherError);
}

class DesignOfFrontEndTwo : public ::testing::TestWithParam<Layout> {};
INSTANTIATE_TEST_SUITE_P(EachLayout, DesignOfFrontEndTwo,
                         ::testing::Values(Layout::kDesignSimulation, Layout::kDesignOther),
                         layoutName);

TEST_P(DesignOfFrontEndTwo, IsForgottenWithItsSchematicsButStaysOnDisk) {
  SampleProject amp(GetParam(), twoSchematics());
  const auto files = amp.snapshot();
  const Orphans orphans(*amp);
  EXPECT_EQ(amp->deleteDesign(), 0u);
  EXPECT_EQ(designOf(*amp), "  ");
  EXPECT_EQ(treeOf(*amp), Lines());
  EXPECT_EQ(amp.snapshot(), files);
  EXPECT_EQ(amp->deleteDesign(), 0u);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(DesignOfFrontEndTwo, IsAttachedWithItsSchematicsButWithoutProfiles) {
  SampleProject amp(GetParam(), twoSchematics());
  const auto files = amp.snapshot();
  const std::string design = designOf(*amp);
  const Orphans orphans(*amp);
  amp->deleteDesign();
  EXPECT_EQ(amp->addDesign(arg(amp.path("P/amp.dsn"))), 0u);
  EXPECT_EQ(designOf(*amp), design);
  EXPECT_EQ(treeOf(*amp), (Lines{"TOP root", "SUB"}));
  EXPECT_EQ(textOf(*schematicIn(*amp, "SUB"), &CTervixNode::getFolderPath),
            amp.path(amp.isSimulationProject() ? "P/amp-TervixFiles/SUB" : "P"));
  EXPECT_EQ(amp.snapshot(), files);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(DesignOfFrontEndTwo, IsAttachedByAPathWithBackslashesToo) {
  SampleProject amp(GetParam());
  const std::string design = designOf(*amp);
  std::string file = withBackslashes(amp.path("P/amp.dsn"));
  EXPECT_EQ(amp->addDesign(file), 0u);
  EXPECT_EQ(file, withBackslashes(amp.path("P/amp.dsn")));
  EXPECT_EQ(designOf(*amp), design);
}

TEST_P(DesignOfFrontEndTwo, IsAttachedTwiceWithoutDoublingItsSchematics) {
  SampleProject amp(GetParam(), twoSchematics());
  const Lines tree = treeOf(*amp);
  EXPECT_EQ(amp->addDesign(arg(amp.path("P/amp.dsn"))), 0u);
  EXPECT_EQ(treeOf(*amp), tree);
}

TEST_P(DesignOfFrontEndTwo, AttachedBesideAnotherAddsItsSchematics) {
  SampleProject amp(GetParam());
  const std::string file = amp.disk().file(
      "D/flt.v2.dsn", "[Design]\nSchematics = [\"LOW\", \"top\"]\nRoot = \"LOW\"\n");
  EXPECT_EQ(amp->addDesign(arg(std::string(file))), 0u);
  EXPECT_EQ(designOf(*amp), "flt " + file + " " + amp.path("D"));
  EXPECT_EQ(treeOf(*amp), (Lines{"TOP", "  tran TOP-tran active", "LOW root"}));
}

TEST_P(DesignOfFrontEndTwo, ThatDoesNotExistIsRefused) {
  SampleProject amp(GetParam());
  const std::string design = designOf(*amp);
  const Lines tree = treeOf(*amp);
  for (const std::string& file :
       {std::string(), amp.path("none.dsn"), amp.path("P"), amp.path("P/amp.tvp/x.dsn"),
        std::string("%s%n.dsn"), amp.path("\xc3\xa4\xff\".dsn"), amp.path("a\nb.dsn")}) {
    recordOtherError();
    std::string given = file;
    EXPECT_EQ(amp->addDesign(given), 10104u);
    EXPECT_EQ(lastError(), "10104 File \"" + file + "\" does not exist.");
    EXPECT_EQ(given, file);
  }
  EXPECT_EQ(amp->addDesign(arg("/" + std::string(100000, 'x'))), 10104u);
  EXPECT_EQ(lastError().size(), 6 + 1023u);
  EXPECT_EQ(designOf(*amp), design);
  EXPECT_EQ(treeOf(*amp), tree);
}

TEST_P(DesignOfFrontEndTwo, WithoutAnExtensionIsNone) {
  SampleProject amp(GetParam());
  const std::string design = designOf(*amp);
  const std::string file = amp.disk().file("P/plain", contentOf(amp.path("P/amp.dsn")));
  EXPECT_EQ(amp->addDesign(arg(std::string(file))), 1u);
  EXPECT_EQ(designOf(*amp), design);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(DesignOfFrontEndTwo, WithoutAFolderIsNone) {
  SampleProject amp(GetParam());
  const std::string design = designOf(*amp);
  const auto current = std::filesystem::current_path();
  std::filesystem::current_path(amp.path("P"));
  EXPECT_EQ(amp->addDesign(arg("amp.dsn")), 1u);
  std::filesystem::current_path(current);
  EXPECT_EQ(designOf(*amp), design);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(DesignOfFrontEndTwo, ThatCannotBeReadIsRecordedButHasNoSchematics) {
  SampleProject amp(GetParam());
  const Lines tree = treeOf(*amp);
  const std::string file = amp.disk().file("D/junk.dsn", std::string("\0\xff[\"=\n", 6));
  EXPECT_EQ(amp->addDesign(arg(std::string(file))), 10110u);
  EXPECT_EQ(lastError(), "10110 Failed to read the design file \"" + file + "\".");
  EXPECT_EQ(designOf(*amp), "junk " + file + " " + amp.path("D"));
  EXPECT_EQ(treeOf(*amp), tree);
}

} // namespace
} // namespace tervix::testing
