// Axes: from values to pixels, and the ticks between.

const STEPS = [1, 2, 5, 10];
const ANGLES = [1, 2, 5, 10, 15, 30, 45, 90, 180, 360, 720, 1440];

// Values of which an axis can hold the difference.
function isDrawable(value) {
  return Math.abs(value) < 1e307;
}

function rangeOf(lists, isUsable) {
  let low = Infinity;
  let high = -Infinity;
  for (const list of lists)
    for (const value of list)
      if (isUsable(value)) {
        if (value < low) low = value;
        if (value > high) high = value;
      }
  return low <= high ? [low, high] : null;
}

function stepFor(span, count, unit) {
  const rough = span / count;
  if (unit === "\u00b0" && rough > 1) return ANGLES.find((angle) => angle >= rough) ?? rough;
  const power = 10 ** Math.floor(Math.log10(rough));
  return power * STEPS.find((step) => step * power >= rough * 0.999);
}

class Axis {
  // gap is how far apart ticks are at least, in pixels.
  // margin widens the range by a share of it, so that curves do not touch the frame.
  constructor([low, high], { isLog, unit, from, to, gap, margin = 0 }) {
    Object.assign(this, { isLog, unit, from, to, gap });
    const convert = isLog ? Math.log10 : Number;
    [this.low, this.high] = [convert(low), convert(high)];
    if (this.low === this.high) {
      const half = isLog ? 0.5 : Math.abs(this.low) * 0.1 || 1;
      this.low -= half;
      this.high += half;
    }
    const more = (this.high - this.low) * margin;
    this.low -= more;
    this.high += more;
    this.prefix = isLog ? { factor: 1, letter: "" }
      : prefixFor(Math.max(Math.abs(this.low), Math.abs(this.high)), unit);
  }

  place(value) {
    const at = ((this.isLog ? Math.log10(value) : value) - this.low) / (this.high - this.low);
    return this.from + at * (this.to - this.from);
  }

  ticks() {
    return this.isLog ? this.logTicks() : this.linearTicks();
  }

  linearTicks() {
    const count = Math.max(2, Math.abs(this.to - this.from) / this.gap);
    const step = stepFor(this.high - this.low, count, this.unit);
    const { factor } = this.prefix;
    const written = this.writerFor(step / factor);
    const first = Math.ceil(this.low / step - 1e-9);
    const last = Math.floor(this.high / step + 1e-9);
    return Array.from({ length: Math.min(100, last - first + 1) }, (_, i) => (first + i) * step)
      .map((value) =>
        ({ at: this.place(value), text: withMinus(written(value / factor)) }));
  }

  // With as many digits as tell one step from the next, and a power of ten where they are many.
  writerFor(step) {
    const last = Math.floor(Math.log10(step) + 1e-9);
    const size = Math.max(Math.abs(this.low), Math.abs(this.high)) / this.prefix.factor;
    if (size >= 1e-3 && size < 1e7 && last >= -12) return (value) => value.toFixed(Math.max(0, -last));
    const digits = Math.max(0, Math.min(12, Math.floor(Math.log10(size) + 1e-9) - last));
    return (value) => (value === 0 ? "0" : value.toExponential(digits));
  }

  // A line for each step within a decade, a text for each decade, or more where there are few.
  logTicks() {
    const decades = this.high - this.low;
    const every = Math.max(1, Math.ceil((decades * 48) / Math.abs(this.to - this.from)));
    const unit = this.unit && !takesPrefix(this.unit) ? "" : "\u00a0";
    const ticks = [];
    for (let power = Math.floor(this.low); power <= this.high; ++power)
      for (let digit = 1; digit < 10; ++digit) {
        const at = power + Math.log10(digit);
        if (at < this.low - 1e-9 || at > this.high + 1e-9 || (digit > 1 && every > 1)) continue;
        const isNamed = digit === 1 ? power % every === 0 : decades < 2 && [2, 5].includes(digit);
        const text = formatValue(digit * 10 ** power, unit).replace(/\u00a0/g, "");
        ticks.push({ at: this.from + ((at - this.low) / decades) * (this.to - this.from),
          text: isNamed ? text : "", isMinor: digit > 1 });
      }
    return ticks;
  }

  title(name) {
    const unit = this.prefix.letter + this.unit;
    return unit ? `${name} (${unit})` : name;
  }
}
