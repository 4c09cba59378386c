#include "tools/tervix/changes/PlanPrinter.h"

#include <set>

#include "tools/tervix/Json.h"
#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

struct Step {
  const char* action;
  std::string path;
  std::string from;
};

// The steps of a plan in order; what moves is told as a move, not as a copy and a removal.
std::vector<Step> stepsOf(const ChangePlan& plan) {
  std::vector<Step> steps;
  const std::set<std::string> removed(plan.removed.begin(), plan.removed.end());
  std::set<std::string> moved;
  for (const std::string& folder : plan.madeFolders)
    steps.push_back({"make folder", folder, ""});
  for (const ChangePlan::Made& made : plan.made) {
    if (removed.count(made.source) != 0) {
      steps.push_back({made.isCopy ? "move" : "move and rewrite", made.path, made.source});
      moved.insert(made.source);
    } else {
      const char* copied = made.isCopy ? "copy" : "copy and rewrite";
      steps.push_back({made.source.empty() ? "make" : copied, made.path, made.source});
    }
  }
  for (const ChangePlan::Rewritten& file : plan.rewritten)
    steps.push_back({"rewrite", file.path, ""});
  for (const std::string& path : plan.removed)
    if (moved.count(path) == 0)
      steps.push_back({"remove", path, ""});
  for (const std::string& folder : plan.removedFolders)
    steps.push_back({"remove folder", folder, ""});
  return steps;
}

} // namespace

void printPlan(std::ostream& out, const ChangePlan& plan, bool done) {
  out << printable(plan.title) << (done ? "" : " (nothing is done)") << "\n";
  for (const Step& step : stepsOf(plan)) {
    out << "  " << step.action << "  ";
    if (!step.from.empty())
      out << printable(step.from) << " -> ";
    out << printable(step.path) << "\n";
  }
  printRemarks(out, plan);
}

void printRemarks(std::ostream& out, const ChangePlan& plan) {
  for (const ChangePlan::Remark& remark : plan.remarks)
    out << "  " << remark.kind << "  " << printable(remark.path) << ": " << printable(remark.text)
        << "\n";
}

void printPlanAsJson(std::ostream& out, const ChangePlan& plan, bool done) {
  Json steps = Json::array();
  for (const Step& step : stepsOf(plan)) {
    Json json = {{"action", step.action}, {"path", step.path}};
    if (!step.from.empty())
      json["from"] = step.from;
    steps.push_back(std::move(json));
  }
  Json remarks = Json::array();
  for (const ChangePlan::Remark& remark : plan.remarks)
    remarks.push_back({{"kind", remark.kind}, {"path", remark.path}, {"text", remark.text}});
  const Json json = {{"version", 1},   {"change", plan.title},
                     {"done", done},   {"project", plan.projectFile},
                     {"steps", steps}, {"remarks", remarks}};
  out << textOf(json) << "\n";
}

} // namespace tervix::tool
