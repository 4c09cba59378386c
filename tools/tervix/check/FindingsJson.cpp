#include "tools/tervix/check/FindingsJson.h"

#include "tools/tervix/check/FindingsText.h"

namespace tervix::tool {
namespace {

constexpr int kShapeVersion = 1;

Json jsonOfFinding(const Finding& finding) {
  return {{"code", finding.kind().slug},   {"severity", nameOf(finding.severity())},
          {"path", finding.path},          {"line", finding.line},
          {"message", finding.message},    {"repair", finding.kind().repair},
          {"fixable", finding.isFixable()}};
}

Json jsonOfRepairs(const RepairPlan* repairs, bool areDone) {
  if (repairs == nullptr)
    return nullptr;
  return {{"done", areDone},
          {"savedTo", repairs->plan.isEmpty() ? "" : repairs->savedTo},
          {"rewritten", arrayOf(repairs->plan.rewritten,
                                [](const ChangePlan::Rewritten& file) { return file.path; })},
          {"removed", repairs->plan.removed}};
}

} // namespace

Json jsonOfFindings(const std::vector<Finding>& findings) {
  return arrayOf(findings, jsonOfFinding);
}

std::string jsonOf(const CheckedProject& checked, const RepairPlan* repairs, bool areDone) {
  const Json json = {{"version", kShapeVersion},
                     {"project", checked.path},
                     {"opened", checked.project != nullptr},
                     {"errors", countOf(checked.findings, Severity::kError)},
                     {"warnings", countOf(checked.findings, Severity::kWarning)},
                     {"notes", countOf(checked.findings, Severity::kNote)},
                     {"findings", jsonOfFindings(checked.findings)},
                     {"fix", jsonOfRepairs(repairs, areDone)}};
  return textOf(json);
}

} // namespace tervix::tool
