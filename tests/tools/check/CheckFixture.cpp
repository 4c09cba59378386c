#include "tests/tools/check/CheckFixture.h"

#include <filesystem>

namespace tervix::testing {

namespace fs = std::filesystem;

std::string CheckedSample::path(const std::string& name) const {
  return (fs::path(project()).parent_path() / name).generic_string();
}

void CheckedSample::write(const std::string& name, const std::string& content) const {
  writeFile(path(name), content);
}

void CheckedSample::append(const std::string& name, const std::string& text) const {
  write(name, content(name) + text);
}

void CheckedSample::replace(const std::string& name, const std::string& from,
                            const std::string& to) const {
  std::string text = content(name);
  const std::size_t at = text.find(from);
  ASSERT_NE(at, std::string::npos) << from << " is not in " << name;
  write(name, text.replace(at, from.size(), to));
}

void CheckedSample::makeFolder(const std::string& name) const {
  fs::create_directories(path(name));
}

void CheckedSample::remove(const std::string& name) const {
  ASSERT_NE(fs::remove_all(path(name)), 0U) << name;
}

void CheckedSample::rename(const std::string& name, const std::string& newName) const {
  fs::rename(path(name), path(newName));
}

void CheckedSample::renameProject(const std::string& name) {
  const std::string renamed = path(name);
  fs::rename(project(), renamed);
  project_ = renamed;
}

ToolRun CheckedSample::check(const Arguments& options) const {
  Arguments arguments = {"check", project()};
  arguments.insert(arguments.end(), options.begin(), options.end());
  return runTool(arguments);
}

nlohmann::ordered_json CheckedSample::checkedAsJson(const Arguments& options) const {
  Arguments all = options;
  all.emplace_back("--json");
  const ToolRun run = check(all);
  EXPECT_EQ(run.errors, "");
  EXPECT_TRUE(nlohmann::ordered_json::accept(run.output)) << run.output;
  return nlohmann::ordered_json::parse(run.output, nullptr, false);
}

std::vector<std::string> findingsIn(const nlohmann::ordered_json& json) {
  std::vector<std::string> findings;
  for (const auto& finding : json["findings"]) {
    std::string text =
        finding["code"].get<std::string>() + " " + finding["path"].get<std::string>();
    if (const int line = finding["line"]; line != 0)
      text += ":" + std::to_string(line);
    findings.push_back(text);
  }
  return findings;
}

} // namespace tervix::testing
