// A long list of which only the rows in sight exist. Rows are all of one height, which the style sheet says.

const MARGIN_ROWS = 6;

export class WindowList {
  /** `row(place)` makes an entry's element; `keyAt(place)` tells it from others, whatever its place. */
  constructor(list, {row, keyAt, count, onWindow = () => {}}) {
    this.list = list;
    this.scroller = list.parentElement;
    this.parts = {row, keyAt, count, onWindow};
    this.shown = new Map();
    this.scroller.addEventListener("scroll", () => this.schedule(), {passive: true});
    new ResizeObserver(() => this.schedule()).observe(this.scroller);
  }

  schedule() {
    if (this.scheduled) return;
    this.scheduled = true;
    requestAnimationFrame(() => {
      this.scheduled = false;
      this.draw();
    });
  }

  get rowHeight() {
    return parseFloat(getComputedStyle(this.list).getPropertyValue("--row")) *
      parseFloat(getComputedStyle(document.documentElement).fontSize);
  }

  /** The places in sight, and some beyond. */
  places() {
    const count = this.parts.count();
    const height = this.rowHeight;
    const first = Math.max(0, Math.floor(this.scroller.scrollTop / height) - MARGIN_ROWS);
    const end = Math.min(count, Math.ceil((this.scroller.scrollTop + this.scroller.clientHeight) / height) + MARGIN_ROWS);
    return {count, height, first, end: Math.max(first, end)};
  }

  /** Makes what has come into sight, leaves what is the same with the focus it may have, drops the rest. */
  draw() {
    const {count, height, first, end} = this.places();
    this.list.style.height = `${count * height}px`;
    const before = this.shown;
    this.shown = new Map();
    for (let place = first; place < end; place++) this.put(place, count, height, before);
    for (const [key, item] of before) {
      if (this.shown.has(key)) continue;
      // Whoever has the focus keeps it, even out of sight.
      if (item.contains(document.activeElement) && this.parts.placeOf?.(key) >= 0) this.shown.set(key, item);
      else item.remove();
    }
    this.parts.onWindow(first, end);
  }

  put(place, count, height, before) {
    const key = this.parts.keyAt(place);
    const known = before.get(key);
    const made = this.parts.row(place);
    const item = known?.firstElementChild.isEqualNode(made) ? known : this.item(known, made);
    item.style.transform = `translateY(${place * height}px)`;
    item.setAttribute("aria-setsize", count);
    item.setAttribute("aria-posinset", place + 1);
    // In the order of their places, for Tab and for those who are read to.
    const previous = this.shown.size ? [...this.shown.values()].at(-1).nextElementSibling : this.list.firstElementChild;
    if (previous !== item) this.list.insertBefore(item, previous);
    this.shown.set(key, item);
  }

  item(known, made) {
    if (!known) {
      const item = document.createElement("li");
      item.append(made);
      return item;
    }
    const hadFocus = known.contains(document.activeElement);
    known.replaceChildren(made);
    if (hadFocus) made.focus({preventScroll: true});
    return known;
  }

  /** Scrolls so far that the place is in sight, and gives its element. */
  reveal(place) {
    const height = this.rowHeight;
    const {scrollTop, clientHeight} = this.scroller;
    if (place * height < scrollTop) this.scroller.scrollTop = place * height;
    else if ((place + 1) * height > scrollTop + clientHeight) this.scroller.scrollTop = (place + 1) * height - clientHeight;
    this.draw();
    return this.shown.get(this.parts.keyAt(place))?.firstElementChild;
  }

  /** Rows that come in before those in sight must not move these. */
  shift(rows) {
    if (rows && this.scroller.scrollTop > 0) this.scroller.scrollTop += rows * this.rowHeight;
  }

  get atTop() {
    return this.scroller.scrollTop === 0;
  }
}
