// The findings of the check, worst first, with a switch for each severity.

const SEVERITIES = ["error", "warning", "note"];
const FINDINGS_AT_ONCE = 100;
const FINDING_COLUMNS = [
  { name: "Severity" }, { name: "Code", kind: "code" }, { name: "Where", kind: "path" },
  { name: "What is wrong, and what to do", kind: "message" },
];

function countOf(findings, severity) {
  return findings.filter((finding) => finding.severity === severity).length;
}

function findingRow(finding) {
  const where = finding.line ? `${finding.path}:${finding.line}` : finding.path;
  const repair = finding.repair + (finding.fixable ? " (tervix check --fix does it.)" : "");
  return [make("span", { class: `severity ${finding.severity}` }, finding.severity),
    finding.code, where,
    make("div", {}, make("p", {}, finding.message), make("p", { class: "faint" }, repair))];
}

function showFindings(section, findings) {
  section.append(make("h2", { id: "findings-heading" }, "Findings"));
  if (!findings.length) {
    section.append(
      make("p", { class: "good" }, "The check found nothing that breaks the project."));
    return;
  }
  const shown = new Set(SEVERITIES);
  let limit = FINDINGS_AT_ONCE;
  const list = make("div", {});
  const status = make("p", { class: "faint", role: "status" });
  const more = make("button", { type: "button", class: "more", onclick: () => {
    limit *= 10;
    draw();
  } });

  function draw() {
    const chosen = findings.filter((finding) => shown.has(finding.severity));
    list.replaceChildren(
      makeTable("Findings", FINDING_COLUMNS, chosen.slice(0, limit).map(findingRow)));
    list.hidden = !chosen.length;
    more.hidden = chosen.length <= limit;
    more.textContent = `Show more of the ${counted(chosen.length, "finding")}`;
    status.textContent = chosen.length === findings.length
      ? counted(findings.length, "finding")
      : `${chosen.length.toLocaleString("en")} of ${counted(findings.length, "finding")}`;
  }

  const switches = SEVERITIES.map((severity) => makeSwitch(
    make("span", { class: `severity ${severity}` }, counted(countOf(findings, severity), severity)),
    true, (isOn) => {
      if (isOn) shown.add(severity);
      else shown.delete(severity);
      draw();
    }));
  section.append(
    make("div", { class: "bar", role: "group", "aria-label": "Severities that are shown" },
      ...switches, status), list, more);
  draw();
}

function makeSwitch(content, isOn, change) {
  const button = make("button",
    { type: "button", class: "switch", "aria-pressed": String(isOn) }, content);
  button.addEventListener("click", () => {
    const now = button.getAttribute("aria-pressed") !== "true";
    button.setAttribute("aria-pressed", String(now));
    change(now);
  });
  return button;
}
