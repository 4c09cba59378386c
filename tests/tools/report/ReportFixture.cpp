#include "tests/tools/report/ReportFixture.h"

#include <gtest/gtest.h>

namespace tervix::testing {

std::string ReportFolder::pageOf(const std::string& project) const {
  const ToolRun run = runTool({"report", project, "-o", path()});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output, "");
  return contentOf(path());
}

nlohmann::json ReportFolder::dataOf(const std::string& project) const {
  return dataIn(pageOf(project));
}

nlohmann::json dataIn(const std::string& page) {
  const std::string begin = "<script type=\"application/json\" id=\"data\">";
  const std::size_t at = page.find(begin);
  EXPECT_NE(at, std::string::npos);
  const std::size_t from = at + begin.size();
  const std::string text = page.substr(from, page.find("</script>", from) - from);
  EXPECT_TRUE(nlohmann::json::accept(text)) << text.substr(0, 1000);
  return nlohmann::json::parse(text, nullptr, false);
}

} // namespace tervix::testing
