// The exchanges over time: how many, how they ended, how long they took. A range of it can be chosen.
import {element, show} from "./dom.js";
import {get} from "./control.js";
import {duration} from "./exchange_words.js";

const PICTURE = document.querySelector(".strip-picture svg");
const ORDER = ["accepted", "too broad", "refused", "unreadable", "fault", "cut off"];
const HEIGHT = 60;
const MOST_BUCKETS = 180;
// Never more than a fiftieth of the server's time.
const [SHORTEST_PAUSE, SHARE] = [2000, 50];

function svg(name, attributes, ...children) {
  const made = document.createElementNS(PICTURE.namespaceURI, name);
  for (const [key, value] of Object.entries(attributes)) made.setAttribute(key, value);
  made.append(...children);
  return made;
}

export class Strip {
  /** `choose(range)` gets a range of time as the filter writes it, or "" for all. */
  constructor(place, choose) {
    this.place = place;
    this.choose = choose;
    this.filter = "";
    this.line = {buckets: [], count: 0};
    this.from = this.to = null;
    this.picture = PICTURE;
    this.slider = PICTURE.parentElement;
    this.said = element("p", {class: "strip-said faint"});
    this.all = element("button", {class: "quiet", onclick: () => this.choose("")}, "Whole time");
    place.append(element("div", {class: "strip-foot"}, this.said, this.all));
    this.listen();
  }

  listen() {
    this.slider.addEventListener("pointerdown", (event) => this.press(event));
    this.slider.addEventListener("pointermove", (event) => this.move(event));
    this.slider.addEventListener("pointerup", () => this.release());
    this.slider.addEventListener("keydown", (event) => this.key(event));
    this.slider.addEventListener("blur", () => this.select(null, null));
  }

  /** The picture of all that the filter lets through. */
  show(filter) {
    this.filter = filter;
    return this.load();
  }

  /** Something came in: the picture follows in a while. */
  renew() {
    if (this.waiting) return;
    this.waiting = setTimeout(() => {
      this.waiting = null;
      this.load();
    }, Math.max(SHORTEST_PAUSE, SHARE * (this.took ?? 0)));
  }

  async load() {
    const began = performance.now();
    try {
      this.line = await get(`exchanges/timeline?buckets=${MOST_BUCKETS}&filter=${encodeURIComponent(this.filter)}`);
    } catch {
      return;
    }
    this.took = performance.now() - began;
    if (this.from === null) this.draw();
  }

  draw() {
    const {buckets, count, step} = this.line;
    const totals = buckets.map(({outcomes}) => Object.values(outcomes).reduce((sum, one) => sum + one, 0));
    const most = Math.max(1, ...totals);
    const slowest = Math.max(1, ...buckets.map((bucket) => bucket.slowest));
    this.picture.setAttribute("viewBox", `0 0 ${Math.max(1, count)} ${HEIGHT}`);
    this.selection = svg("rect", {class: "strip-chosen", y: 0, height: HEIGHT, x: 0, width: 0});
    this.picture.replaceChildren(this.selection, ...buckets.flatMap((bucket) => bars(bucket, most)),
      ...buckets.map(({at, slowest: time}) => svg("rect", {class: "strip-time", x: at, width: 1,
        y: HEIGHT - 2 - (HEIGHT - 4) * time / slowest, height: 2})));
    this.slider.setAttribute("aria-valuemax", String(Math.max(0, count - 1)));
    show(this.place, buckets.length > 0);
    show(this.all, /(^|\s)time:/.test(this.filter));
    const per = duration(step ?? 0).replace(".0", "");
    this.summary = buckets.length ? `${totals.reduce((sum, one) => sum + one, 0).toLocaleString("en")} exchanges; at most ` +
      `${most.toLocaleString("en")} in ${per}; the slowest took ${duration(slowest)}. Drag over a range to choose it.` : "";
    this.tell();
  }

  placeOf(event) {
    const {left, width} = this.slider.getBoundingClientRect();
    return Math.min(this.line.count - 1, Math.max(0, Math.floor((event.clientX - left) / width * this.line.count)));
  }

  press(event) {
    const place = this.placeOf(event);
    this.slider.setPointerCapture(event.pointerId);
    this.isPressed = true;
    this.select(place, place);
  }

  move(event) {
    if (this.isPressed) this.select(this.from, this.placeOf(event));
  }

  release() {
    if (!this.isPressed) return;
    this.isPressed = false;
    this.take();
  }

  key(event) {
    const last = this.line.count - 1;
    const at = this.to ?? 0;
    const to = {ArrowLeft: at - 1, ArrowRight: at + 1, Home: 0, End: last}[event.key];
    if (to !== undefined) {
      const place = Math.min(last, Math.max(0, to));
      this.select(event.shiftKey ? this.from ?? place : place, place);
    } else if (event.key === "Enter") {
      this.take();
    } else if (event.key === "Escape" && this.from !== null) {
      this.select(null, null);
    } else {
      return;
    }
    event.preventDefault();
    event.stopPropagation();
  }

  select(from, to) {
    [this.from, this.to] = [from, to];
    const [first, last] = [Math.min(from, to), Math.max(from, to)];
    this.selection?.setAttribute("x", from === null ? 0 : first);
    this.selection?.setAttribute("width", from === null ? 0 : last - first + 1);
    this.tell();
  }

  tell() {
    const text = this.from === null ? this.summary : this.words();
    this.said.textContent = text;
    this.slider.setAttribute("aria-valuenow", String(this.to ?? 0));
    this.slider.setAttribute("aria-valuetext", text);
  }

  words() {
    const inside = this.inside();
    const outcomes = ORDER.map((name) => [name, inside.reduce((sum, bucket) => sum + (bucket.outcomes[name] ?? 0), 0)])
      .filter(([, count]) => count).map(([name, count]) => `${count} ${name}`);
    const time = this.clockOf(Math.min(this.from, this.to)).slice(11);
    const slowest = Math.max(0, ...inside.map((bucket) => bucket.slowest));
    return `${time}: ${outcomes.join(", ") || "nothing"}${inside.length ? `; the slowest took ${duration(slowest)}` : ""}`;
  }

  inside() {
    const [first, last] = [Math.min(this.from, this.to), Math.max(this.from, this.to)];
    return this.line.buckets.filter(({at}) => at >= first && at <= last);
  }

  // On the server's clock, as the filter understands it: reckoned from the first bucket's time.
  clockOf(place) {
    const {buckets: [first], step} = this.line;
    const start = Date.parse(`${first.time}Z`) + this.line.from % 1000 + (place - first.at) * step;
    return new Date(start).toISOString().slice(0, 23);
  }

  take() {
    if (this.from === null) return;
    const [first, last] = [Math.min(this.from, this.to), Math.max(this.from, this.to)];
    const range = `${this.clockOf(first)}..${this.clockOf(last + 1)}`;
    this.select(null, null);
    this.choose(range);
  }
}

function bars({at, outcomes}, most) {
  let y = HEIGHT;
  return ORDER.filter((name) => outcomes[name]).map((name) => {
    // Even one is to be seen.
    const height = Math.max(1.5, HEIGHT * outcomes[name] / most);
    y -= height;
    return svg("rect", {class: `strip-${name.replace(" ", "-")}`, x: at + 0.08, width: 0.84, y, height});
  });
}
