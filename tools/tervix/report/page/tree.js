// Design, schematics and profiles. What is in a profile is made when it is opened.

const PROFILES_AT_ONCE = 1000;

function badge(text) {
  return make("span", { class: "badge" }, text);
}

function profileContent(profile) {
  const parts = (profile.outputs ?? []).map(outputElement);
  parts.push(make("h5", {}, "Files"), fileTable(`Files of ${profile.name}`, profile.files));
  if (profile.models)
    parts.push(make("h5", {}, "Model files"),
      modelTable(`Model files of ${profile.name}`, profile.models));
  return make("div", { class: "content" }, ...parts);
}

function profileItem(profile) {
  const there = profile.files.list.filter(isThere).length;
  const plots = (profile.outputs ?? []).reduce((sum, output) => sum + output.plots.length, 0);
  const facts = counted(there, "file") + (plots ? `, ${counted(plots, "plot")}` : "");
  const summary = make("span", { class: "line" }, make("h4", {}, profile.name),
    profile.active ? badge("active") : null, make("span", { class: "faint" }, facts));
  const details = lazyDetails("profile", summary, () => profileContent(profile));
  return make("li", { "data-profile": profile.name }, details);
}

// The profiles of one schematic. Items are made once, and only as many as are shown.
class ProfileList {
  constructor(schematic, limit) {
    this.schematic = schematic;
    this.limit = limit;
    this.step = limit;
    this.query = [];
    this.items = new Map();
    this.list = make("ul", { class: "profiles" });
    this.more = make("button", { type: "button", class: "more", onclick: () => {
      this.limit += this.step;
      this.draw();
    } });
    this.element = make("article", { class: "schematic" },
      make("div", { class: "line" }, make("h3", {}, schematic.name),
        schematic.root ? badge("root") : null,
        make("span", { class: "faint" }, counted(schematic.profiles.length, "profile"))),
      lazyDetails("files", make("span", {}, "Files of the schematic"),
        () => fileTable(`Files of schematic ${schematic.name}`, schematic.files)),
      this.list, this.more);
    this.filter([]);
  }

  itemOf(profile) {
    if (!this.items.has(profile)) this.items.set(profile, profileItem(profile));
    return this.items.get(profile);
  }

  // Those whose names hold all words; how many there are.
  filter(words) {
    this.found = this.schematic.profiles.filter((profile) => {
      const name = profile.name.toLowerCase();
      return words.every((word) => name.includes(word));
    });
    this.element.hidden = words.length > 0 && !this.found.length;
    this.draw();
    return this.found.length;
  }

  draw() {
    this.list.replaceChildren(
      ...this.found.slice(0, this.limit).map((profile) => this.itemOf(profile)));
    this.more.hidden = this.found.length <= this.limit;
    this.more.textContent = `Show more of the ${counted(this.found.length, "profile")}`;
  }

  open(profile) {
    const item = this.itemOf(profile);
    if (!item.isConnected) this.list.prepend(item);
    item.firstChild.reveal();
    return item;
  }
}

function showProject(section, project) {
  section.append(make("h2", { id: "project-heading" }, "Project"),
    fileTable("Files of the project", { list: project.files }));
  if (project.models.length)
    section.append(make("h3", {}, "Model files of the design"),
      modelTable("Model files of the design", project.models));
  if (project.unusedProfiles.length)
    section.append(make("h3", {}, "Registered, but no profiles"),
      makeTable("Registered, but no profiles",
        [{ name: "Name", kind: "path" }, { name: "On disk" }],
        project.unusedProfiles.map(([name, exists]) => [name, exists ? "not valid" : "missing"])));
}

// Gives a function that opens the profile of a name, or the one that a reader looks for first.
function showProfiles(section, project) {
  const share = Math.max(50, Math.floor(PROFILES_AT_ONCE / Math.max(1, project.schematics.length)));
  const lists = project.schematics.map((schematic) => new ProfileList(schematic, share));
  const total = project.schematics.reduce((sum, { profiles }) => sum + profiles.length, 0);
  const status = make("span", { class: "faint", role: "status" });
  const filter = make("input", { type: "search", id: "filter", autocomplete: "off",
    placeholder: "Part of a name", spellcheck: "false" });
  const search = () => {
    const words = filter.value.toLowerCase().split(/\s+/).filter(Boolean);
    const found = lists.reduce((sum, list) => sum + list.filter(words), 0);
    status.textContent = words.length
      ? `${found.toLocaleString("en")} of ${counted(total, "profile")}`
      : counted(total, "profile");
  };
  filter.addEventListener("input", search);
  section.append(make("h2", { id: "profiles-heading" }, "Schematics and profiles"),
    make("div", { class: "bar" },
      make("label", { for: "filter" }, "Find a profile"), filter, status),
    ...lists.map((list) => list.element));
  search();
  return (name) => {
    const all = lists.flatMap((list) =>
      list.schematic.profiles.map((profile) => ({ list, profile })));
    const wanted = all.find(({ profile }) => profile.name === name)
      ?? (name === null ? all.find(({ profile }) => profile.active) ?? all[0] : undefined);
    return wanted?.list.open(wanted.profile);
  };
}
