#include <gtest/gtest.h>

#include "tests/tools/check/CheckFixture.h"
#include "tools/tervix/check/Finding.h"

// docs/check.md says what the program does.

using namespace tervix::testing;
using tervix::tool::FindingKind;
using tervix::tool::findingKinds;

namespace {

std::string document() {
  return contentOf(TERVIX_CHECK_DOCUMENT);
}

TEST(CheckDocument, HasTheTableOfFindings) {
  std::string table = "| Code | Severity | What it means | What to do |\n|---|---|---|---|\n";
  for (const FindingKind& kind : findingKinds())
    table += std::string("| `") + kind.slug + "` | " + nameOf(kind.severity) + " | " +
             kind.meaning + " | " + kind.repair + " |\n";
  EXPECT_NE(document().find(table + "\n"), std::string::npos) << table;
}

TEST(CheckDocument, NamesEveryKeyOfTheJson) {
  const CheckedSample project(1);
  project.write("npn.lib.bak", "");
  const auto json = project.checkedAsJson({"--fix", "--dry-run"});
  EXPECT_EQ(json["version"], 1);
  EXPECT_EQ(json["project"], project.project());
  EXPECT_EQ(json["opened"], true);
  EXPECT_EQ(json["warnings"], 1);
  ASSERT_EQ(json["findings"].size(), 1U);
  for (const auto& object : {json, json["findings"][0], json["fix"]})
    for (const auto& [key, value] : object.items())
      EXPECT_NE(document().find("`" + key + "`"), std::string::npos) << key;
}

TEST(FindingTable, IsInTheOrderOfItsCodesWithoutTwins) {
  std::size_t next = 0;
  std::string slugs = "|";
  for (const FindingKind& kind : findingKinds()) {
    EXPECT_EQ(static_cast<std::size_t>(kind.code), next++) << kind.slug;
    EXPECT_EQ(slugs.find(std::string("|") + kind.slug + "|"), std::string::npos) << kind.slug;
    slugs += std::string(kind.slug) + "|";
  }
}

} // namespace
