#include "tools/tervix/check/FindingsText.h"

#include <algorithm>
#include <array>

#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

constexpr std::array<Severity, 3> kSeverities = {Severity::kError, Severity::kWarning,
                                                 Severity::kNote};
constexpr std::size_t kSeverityWidth = 7; // of the longest name

std::string marked(const Style& style, Severity severity) {
  std::string name = nameOf(severity);
  name.resize(kSeverityWidth, ' ');
  switch (severity) {
  case Severity::kError:
    return style.problem(name);
  case Severity::kWarning:
    return style.heading(name);
  default:
    return style.faint(name);
  }
}

void print(std::ostream& out, const Finding& finding, const Style& style) {
  out << "  " << marked(style, finding.severity()) << "  " << finding.kind().slug << "  ";
  if (finding.line != 0)
    out << "line " << finding.line << ": ";
  out << printable(finding.message) << "\n"
      << std::string(kSeverityWidth + 4, ' ')
      << style.faint(finding.kind().repair + std::string(finding.isFixable() ? " (--fix)" : ""))
      << "\n";
}

std::string counted(std::size_t count, Severity severity) {
  return std::to_string(count) + " " + nameOf(severity) + (count == 1 ? "" : "s");
}

} // namespace

std::size_t countOf(const std::vector<Finding>& findings, Severity severity) {
  return static_cast<std::size_t>(
      std::count_if(findings.begin(), findings.end(),
                    [&](const Finding& finding) { return finding.severity() == severity; }));
}

void printFindings(std::ostream& out, const std::vector<Finding>& findings, const Style& style) {
  const std::string* file = nullptr;
  for (const Finding& finding : findings) {
    if (file == nullptr || *file != finding.path)
      out << style.heading(printable(finding.path)) << "\n";
    file = &finding.path;
    print(out, finding, style);
  }
  std::string counts;
  for (const Severity severity : kSeverities)
    counts += (counts.empty() ? "" : ", ") + counted(countOf(findings, severity), severity);
  const auto fixable = std::count_if(findings.begin(), findings.end(),
                                     [](const Finding& finding) { return finding.isFixable(); });
  if (fixable != 0)
    counts += "; --fix repairs " + std::to_string(fixable);
  out << (findings.empty() ? "nothing found" : counts) << "\n";
}

} // namespace tervix::tool
