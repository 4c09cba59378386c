// Fills the page from its data.

function showHead(head, data) {
  const { project, findings } = data;
  const profiles = project?.schematics.reduce((sum, { profiles: own }) => sum + own.length, 0);
  const facts = project
    ? [`Project type ${project.type}` + (project.layout && ` (${project.layout})`),
      `front end ${project.frontEnd}`, project.design ? `design ${project.design}` : "no design"]
    : ["The project could not be opened"];
  const tiles = [
    ...(project ? [["Schematics", project.schematics.length], ["Profiles", profiles]] : []),
    ...SEVERITIES.map((severity) =>
      [severity[0].toUpperCase() + severity.slice(1) + "s", countOf(findings, severity), severity]),
  ];
  head.append(
    make("div", { class: "top" },
      make("p", { class: "faint" }, "Project report \u00b7 ",
        make("time", { datetime: data.made }, `${formatTime(data.made)} UTC`)), themeSwitch()),
    make("h1", {}, project ? project.name : data.path.split("/").pop()),
    make("p", {}, facts.join(" \u00b7 ")),
    make("p", { class: "path faint" }, data.path),
    make("dl", { class: "tiles" }, ...tiles.map(([name, count, kind]) =>
      make("div", { class: count && kind ? `tile ${kind}` : "tile" }, make("dt", {}, name),
        make("dd", {}, count.toLocaleString("en"))))));
}

function themeSwitch() {
  const root = document.documentElement;
  const isDark = () => (root.dataset.theme
    ?? (matchMedia("(prefers-color-scheme: dark)").matches ? "dark" : "light")) === "dark";
  const button = make("button", { type: "button", class: "theme" });
  const name = () => { button.textContent = isDark() ? "Light theme" : "Dark theme"; };
  button.addEventListener("click", () => {
    root.dataset.theme = isDark() ? "light" : "dark";
    name();
  });
  name();
  return button;
}

// "#theme=dark&profile=TOP-ac" opens the page so.
function showPage(data) {
  const wish = new URLSearchParams(location.hash.slice(1));
  if (["dark", "light"].includes(wish.get("theme")))
    document.documentElement.dataset.theme = wish.get("theme");
  showHead(document.getElementById("head"), data);
  showFindings(document.getElementById("findings"), data.findings);
  document.querySelector("footer").append(
    `Made by ${data.tool}. The page holds all that it shows and loads nothing.`);
  if (!data.project) {
    for (const id of ["project", "profiles"]) document.getElementById(id).remove();
    return;
  }
  showProject(document.getElementById("project"), data.project);
  const open = showProfiles(document.getElementById("profiles"), data.project);
  const item = open(wish.get("profile"));
  if (wish.has("profile")) item?.scrollIntoView();
}

showPage(JSON.parse(document.getElementById("data").textContent));
document.documentElement.dataset.ready = "yes";
