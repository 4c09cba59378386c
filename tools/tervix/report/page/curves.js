// The plots of raw output: remarks, values of a single point, or charts with a common cursor.

const CURVES_SHOWN_FIRST = 8;

// Numbers as they were embedded: single-precision, times a factor counted from a base, NaN for a
// gap. A range may be larger than the largest number.
function decoded({ base, factor, data }) {
  const bytes = Uint8Array.from(atob(data), (character) => character.charCodeAt(0));
  const view = new DataView(bytes.buffer);
  const valueAt = (_, at) => (base / factor + view.getFloat32(4 * at, true)) * factor;
  return Float64Array.from({ length: bytes.length / 4 }, valueAt);
}

// 1 for a scale that rises at first, -1 for one that falls.
function directionOf(scale) {
  return scale.find((value) => value !== scale[0]) < scale[0] ? -1 : 1;
}

function remarkList(remarks) {
  return remarks.length
    ? make("ul", { class: "remarks" }, ...remarks.map((remark) => make("li", {}, remark))) : null;
}

function outputElement(output) {
  return make("section", { class: "output" },
    make("h5", {}, "Curves of ", make("span", { class: "path" }, output.path)),
    remarkList(output.remarks), ...output.plots.map(plotElement));
}

function plotElement(plot) {
  const facts = counted(plot.points, "point") +
    (plot.reduced ? ", drawn by the lowest and highest of each column" : "");
  return make("div", { class: "plot" },
    make("h6", {}, plot.name || "Plot"),
    make("p", { class: "faint" }, plot.title ? `${plot.title} \u00b7 ${facts}` : facts),
    remarkList(plot.remarks),
    plot.values.length ? valueTable(plot) : null,
    ...(plot.charts.length ? new PlotView(plot).elements : []));
}

function valueTable(plot) {
  const isComplex = plot.values.some((value) => "imaginary" in value);
  const columns = [{ name: "Name", kind: "path" },
    { name: isComplex ? "Real" : "Value", kind: "number" },
    ...(isComplex ? [{ name: "Imaginary", kind: "number" }] : [])];
  return makeTable(`Values of ${plot.name}`, columns, plot.values.map((value) =>
    [value.name, formatValue(value.value, value.unit),
      ...(isComplex ? [formatValue(value.imaginary, value.unit)] : [])]));
}

// The charts of a plot show the same curves and have one cursor.
class PlotView {
  constructor(plot) {
    const values = decoded(plot.scale);
    this.scale = { ...plot.scale, values, direction: directionOf(values) };
    this.hidden = new Set();
    const rest = plot.charts.flatMap((chart) => chart.curves.slice(CURVES_SHOWN_FIRST));
    for (const curve of rest) this.hidden.add(curve.name);
    let first = 0; // a curve has the colour of its number, in all charts of complex values too
    this.charts = plot.charts.map((chart) => {
      const isRepeated = chart.curves[0].name === plot.charts[0].curves[0].name;
      const view = new ChartView(this, chart, isRepeated ? 0 : first);
      first += chart.curves.length;
      return view;
    });
    this.elements = this.charts.map((chart) => chart.element);
  }

  switchCurve(name) {
    if (!this.hidden.delete(name)) this.hidden.add(name);
    for (const chart of this.charts) chart.draw();
  }

  // Moves the cursor to the point of a number, or takes it away.
  setCursor(index) {
    const last = this.scale.values.length - 1;
    this.cursor = index === null ? null : Math.max(0, Math.min(last, index));
    for (const chart of this.charts) chart.drawCursor();
  }
}
