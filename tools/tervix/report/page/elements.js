// Elements and numbers. Texts of the project only ever become text nodes and attributes.

const SVG = "http://www.w3.org/2000/svg";

function filled(element, attributes, children) {
  for (const [name, value] of Object.entries(attributes)) {
    if (name.startsWith("on")) element.addEventListener(name.slice(2), value);
    else if (value !== null && value !== undefined && value !== false)
      element.setAttribute(name, value === true ? "" : value);
  }
  element.append(...children.filter((child) => child !== null && child !== undefined));
  return element;
}

function make(tag, attributes = {}, ...children) {
  return filled(document.createElement(tag), attributes, children);
}

function makeSvg(tag, attributes = {}, ...children) {
  return filled(document.createElementNS(SVG, tag), attributes, children);
}

// A table with a heading for each column. Rows are lists of cells; the first names the row.
function makeTable(label, columns, rows) {
  const heads = columns.map(({ name, kind }) =>
    make("th", { scope: "col", role: "columnheader", class: kind }, name));
  const cellOf = (cell, column) =>
    make(column === 0 ? "th" : "td",
      { scope: column === 0 ? "row" : null, role: column === 0 ? "rowheader" : "cell",
        class: columns[column].kind, "data-column": columns[column].name }, cell);
  const body = rows.map((row) => make("tr", { role: "row" }, ...row.map(cellOf)));
  return make("div", { class: "scroll" },
    make("table", { "aria-label": label, role: "table" },
      make("thead", { role: "rowgroup" }, make("tr", { role: "row" }, ...heads)),
      make("tbody", { role: "rowgroup" }, ...body)));
}

function counted(count, one, many = one + "s") {
  return `${count.toLocaleString("en")} ${count === 1 ? one : many}`;
}

const PREFIXES = ["a", "f", "p", "n", "\u00b5", "m", "", "k", "M", "G", "T"];
const HUNDREDTHS = new Set(["dB", "\u00b0", "\u00b0C"]); // units of which no less is of interest

// A square would be read as one of the letter, too.
function takesPrefix(unit) {
  return unit && !HUNDREDTHS.has(unit) && !unit.includes("\u00b2");
}

// The power of ten and the letter by which a value of this size is written. None far beyond the
// letters, where a power of ten is easier to read.
function prefixFor(size, unit) {
  const third = Math.floor(Math.log10(size * (1 + 1e-9)) / 3);
  if (!takesPrefix(unit) || !(third >= -7 && third <= 5)) return { factor: 1, letter: "" };
  const near = Math.max(-6, Math.min(4, third));
  return { factor: 10 ** (3 * near), letter: PREFIXES[near + 6] };
}

function withMinus(text) {
  return text.replaceAll("-", "\u2212");
}

function formatValue(value, unit) {
  if (value === null || !Number.isFinite(value)) return "\u2013";
  if (HUNDREDTHS.has(unit)) {
    const rounded = Math.round(value * 100) / 100 || 0; // not -0
    return withMinus(`${rounded.toFixed(2)}\u00a0${unit}`);
  }
  const { factor, letter } = prefixFor(Math.abs(value), unit);
  const scaled = value / factor;
  const size = Math.abs(scaled);
  const number = size !== 0 && (size < 1e-3 || size >= 1e5)
    ? scaled.toExponential(3)
    : scaled.toFixed(size >= 1000 ? 0 : size >= 100 ? 1 : size >= 10 ? 2 : 3);
  return withMinus(`${Number(number)}\u00a0${letter}${unit}`.trimEnd());
}

function formatSize(bytes) {
  const { factor, letter } = prefixFor(Math.max(bytes, 1), "B");
  return `${(bytes / factor).toFixed(factor === 1 ? 0 : 1)}\u00a0${letter}B`;
}

function formatTime(utc) {
  return utc.replace("T", " ").replace("Z", "");
}
