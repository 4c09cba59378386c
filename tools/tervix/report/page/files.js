// Tables of files. A file is [type, path, size, time]; one that is not there has the first two.

const FILE_COLUMNS = [
  { name: "Type" }, { name: "Path", kind: "path" },
  { name: "Size", kind: "number" }, { name: "Changed (UTC)", kind: "time" },
];

function pathOf(files, file) {
  return (files.prefix ?? "") + file[1];
}

function isThere(file) {
  return file.length > 2;
}

function fileTable(label, files) {
  const rows = files.list.filter(isThere).map((file) =>
    [file[0], pathOf(files, file), formatSize(file[2]), formatTime(file[3])]);
  const missing = files.list.filter((file) => !isThere(file));
  const missingTable = () => makeTable(`${label} that are not there`, FILE_COLUMNS.slice(0, 2),
    missing.map((file) => [file[0], pathOf(files, file)]));
  return make("div", {},
    rows.length
      ? makeTable(label, FILE_COLUMNS, rows) : make("p", { class: "faint" }, "None is there."),
    missing.length ? lazyDetails("missing", make("span", {},
      `Not there: ${missing.map((file) => file[0]).join(", ")}`), missingTable) : null);
}

function modelTable(label, models) {
  return makeTable(label, [{ name: "Kind" }, { name: "Name", kind: "path" }, { name: "On disk" }],
    models.map(([kind, name, exists]) =>
      [kind, name, exists ? "yes" : make("strong", { class: "error" }, "missing")]));
}

// Details whose content is made when they are opened for the first time.
function lazyDetails(kind, summary, content) {
  const details = make("details", { class: kind }, make("summary", {}, summary));
  const fill = () => {
    if (details.open && details.childElementCount === 1) details.append(content());
  };
  details.addEventListener("toggle", fill);
  details.reveal = () => {
    details.open = true;
    fill();
  };
  return details;
}
