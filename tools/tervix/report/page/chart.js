// One chart: its curves over the scale of the plot, a legend that switches them, and a read-out
// that follows the pointer or the arrow keys.

const HEIGHT = 260;
const MARGIN = { left: 62, right: 14, top: 10, bottom: 44 };
const DIGIT = 7; // the width of one beside the axis
const COLOURS = 7;

function curveClass(number) {
  return `curve c${number % COLOURS} d${Math.floor(number / COLOURS) % 4}`;
}

// "Time" for "time", but "v(sweep)" as it is.
function titled(name) {
  return /^[a-z]+$/.test(name) ? name.charAt(0).toUpperCase() + name.slice(1) : name;
}

class ChartView {
  constructor(plot, chart, firstNumber) {
    this.plot = plot;
    this.chart = chart;
    this.curves = chart.curves.map((curve, i) =>
      ({ name: curve.name, values: decoded(curve), class: curveClass(firstNumber + i) }));
    this.svg = makeSvg("svg", { class: "chart", "aria-hidden": "true", height: HEIGHT });
    this.reader = make("div", { class: "reader", tabindex: "0", role: "slider", "aria-valuemin": 0,
      "aria-valuemax": plot.scale.values.length - 1, "aria-valuenow": 0,
      "aria-label": `${chart.quantity} at a point of ${plot.scale.name}`,
      "aria-valuetext": "Use the arrow keys to read values",
      onkeydown: (event) => this.onKey(event) }, this.svg);
    this.svg.addEventListener("pointermove", (event) => this.onPointer(event));
    this.svg.addEventListener("pointerdown", (event) => this.onPointer(event));
    this.svg.addEventListener("pointerleave", () => plot.setCursor(null));
    this.position = make("span", { class: "position" });
    this.legend = make("ul", { class: "legend" },
      ...this.curves.map((curve) => this.legendItem(curve)));
    this.element = make("figure", {},
      make("figcaption", {}, make("strong", {}, chart.quantity), this.position),
      this.reader, this.legend);
    this.width = 0;
    new ResizeObserver(() => this.fit()).observe(this.reader);
    this.draw();
  }

  legendItem(curve) {
    const swatch = makeSvg("svg", { class: "swatch", width: 26, height: 8, "aria-hidden": "true" },
      makeSvg("path", { class: curve.class, d: "M1 4H25" }));
    curve.reading = make("span", { class: "reading" });
    curve.button = make("button", { type: "button", class: "switch",
      onclick: () => this.plot.switchCurve(curve.name) }, swatch, curve.name, curve.reading);
    return make("li", {}, curve.button);
  }

  shown() {
    return this.curves.filter((curve) => !this.plot.hidden.has(curve.name));
  }

  fit() {
    const width = Math.round(this.reader.clientWidth);
    if (width && width !== this.width) {
      this.width = width;
      this.draw();
    }
  }

  draw() {
    for (const curve of this.curves)
      curve.button.setAttribute("aria-pressed", String(!this.plot.hidden.has(curve.name)));
    const width = this.width || 720;
    const { scale } = this.plot;
    const shown = this.shown();
    const isLog = this.chart.log && shown.some((curve) => curve.values.some((value) => value > 0));
    const usable = (value) => isDrawable(value) && (!isLog || value > 0);
    const range = rangeOf(shown.map((curve) => curve.values), usable) ?? (isLog ? [1, 10] : [0, 1]);
    this.y = new Axis(range, { isLog, unit: this.chart.unit,
      from: HEIGHT - MARGIN.bottom, to: MARGIN.top, gap: 34, margin: 0.05 });
    const digits = Math.max(...this.y.ticks().map(({ text }) => text.length));
    this.left = Math.max(MARGIN.left, 32 + digits * DIGIT);
    this.x = new Axis(rangeOf([scale.values], isDrawable) ?? [0, 1],
      { isLog: scale.log, unit: scale.unit, from: this.left, to: width - MARGIN.right, gap: 72 });
    this.cursorMark = makeSvg("g", { class: "cursor" });
    this.svg.setAttribute("width", width);
    this.svg.setAttribute("viewBox", `0 0 ${width} ${HEIGHT}`);
    const pathOf = (curve) =>
      makeSvg("path", { class: curve.class, d: this.pathOf(curve.values, usable) });
    this.svg.replaceChildren(this.grid(width), ...shown.map(pathOf), this.cursorMark);
    this.drawCursor();
  }

  grid(width) {
    const [left, right, top, bottom] =
      [this.left, width - MARGIN.right, MARGIN.top, HEIGHT - MARGIN.bottom];
    const grid = makeSvg("g", { class: "grid" });
    const add = ({ text, isMinor }, line, place) => {
      grid.append(makeSvg("path", { class: isMinor ? "minor" : "major", d: line }));
      if (text) grid.append(makeSvg("text", place, text));
    };
    for (const tick of this.x.ticks())
      add(tick, `M${tick.at.toFixed(1)} ${top}V${bottom}`,
        { class: "below", x: tick.at.toFixed(1), y: bottom + 16 });
    for (const tick of this.y.ticks())
      add(tick, `M${left} ${tick.at.toFixed(1)}H${right}`,
        { class: "beside", x: left - 8, y: (tick.at + 4).toFixed(1) });
    const middle = (top + bottom) / 2;
    const { scale } = this.plot;
    grid.append(
      makeSvg("path", { class: "frame", d: `M${left} ${top}V${bottom}H${right}` }),
      makeSvg("text", { class: "below title", x: (left + right) / 2, y: HEIGHT - 8 },
        this.x.title(titled(scale.name))),
      makeSvg("text", { class: "below title", transform: `translate(14 ${middle}) rotate(-90)` },
        this.y.title(this.chart.quantity)));
    return grid;
  }

  // A gap where there is no value, and where a nested sweep begins again.
  pathOf(values, usable) {
    const scale = this.plot.scale.values;
    const back = (this.x.to - this.x.from) / 2;
    const { direction } = this.plot.scale;
    let path = "";
    let before = null;
    for (let i = 0; i < scale.length; ++i) {
      const x = this.x.place(scale[i]);
      if (!usable(values[i]) || !Number.isFinite(x)) {
        before = null;
        continue;
      }
      path += before === null || (before - x) * direction > back ? "M" : "L";
      path += `${x.toFixed(1)} ${this.y.place(values[i]).toFixed(1)}`;
      before = x;
    }
    return path;
  }

  drawCursor() {
    const { cursor, scale } = this.plot;
    this.cursorMark.replaceChildren();
    const isSet = cursor !== null && cursor !== undefined;
    const where = isSet
      ? `${titled(scale.name)} ${formatValue(scale.values[cursor], scale.unit)}` : "";
    this.position.textContent = where;
    const readings = [];
    for (const curve of this.curves) {
      const isShown = isSet && !this.plot.hidden.has(curve.name);
      curve.reading.textContent = isShown ? formatValue(curve.values[cursor], this.chart.unit) : "";
      if (isShown) readings.push(`${curve.name} ${curve.reading.textContent}`);
    }
    if (!isSet) return;
    this.reader.setAttribute("aria-valuenow", cursor);
    this.reader.setAttribute("aria-valuetext", [where, ...readings].join(", "));
    const x = this.x.place(scale.values[cursor]).toFixed(1);
    this.cursorMark.append(makeSvg("path", { d: `M${x} ${MARGIN.top}V${HEIGHT - MARGIN.bottom}` }));
    for (const curve of this.shown()) {
      const y = this.y.place(curve.values[cursor]);
      if (Number.isFinite(y))
        this.cursorMark.append(
          makeSvg("circle", { class: curve.class, cx: x, cy: y.toFixed(1), r: 3.5 }));
    }
  }

  onPointer(event) {
    const wanted = event.clientX - this.svg.getBoundingClientRect().left;
    let best = 0;
    let distance = Infinity;
    this.plot.scale.values.forEach((value, i) => {
      const away = Math.abs(this.x.place(value) - wanted);
      if (away < distance) [best, distance] = [i, away];
    });
    this.plot.setCursor(best);
  }

  onKey(event) {
    const count = this.plot.scale.values.length;
    const now = this.plot.cursor ?? 0;
    const page = Math.ceil(count / 20);
    const to = { ArrowLeft: now - 1, ArrowDown: now - 1, ArrowRight: now + 1, ArrowUp: now + 1,
      PageDown: now - page, PageUp: now + page, Home: 0, End: count - 1, Escape: null }[event.key];
    if (to === undefined) return;
    event.preventDefault();
    this.plot.setCursor(to);
  }
}
