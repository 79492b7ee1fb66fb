// A list beside the details of one of its entries.
import {byId, element, fill, show} from "./dom.js";
import {tell, told} from "./address.js";
import {WindowList} from "./window_list.js";

export class List {
  /** `source` has count, keyAt(place), placeOf(key) and item(place), which may not have come yet; `row(item, place)`
      gives the entry's content, `open(key)` its details. */
  constructor(name, {source, row, open, onWindow}) {
    this.name = name;
    this.detail = byId(`${name}-detail`);
    this.source = source;
    this.row = row;
    this.openDetail = open;
    this.opened = null;
    this.window = new WindowList(byId(`${name}-list`), {
      count: () => source.count, keyAt: (place) => String(source.keyAt(place)), onWindow,
      placeOf: (key) => source.placeOf(key), row: (place) => this.entry(place)});
  }

  draw() {
    this.window.draw();
  }

  entry(place) {
    const key = String(this.source.keyAt(place));
    const button = element("button", {class: "entry", "data-key": key, "aria-expanded": String(key === this.opened),
      "aria-controls": this.detail.id}, ...this.row(this.source.item(place), place));
    button.addEventListener("click", () => this.open(key));
    return button;
  }

  async open(key, isStep = true) {
    this.opened = key;
    tell({[this.name]: key}, isStep);
    this.draw();
    if (!await this.refresh() || this.opened !== key) return;
    this.detail.focus({preventScroll: true});
    this.detail.scrollTop = 0;
    const {top} = this.detail.getBoundingClientRect();
    if (top < 0 || top > innerHeight / 2) this.detail.scrollIntoView();
  }

  /** Opens or closes what the address names. */
  follow() {
    const key = told(this.name) || null;
    if (key === this.opened) return;
    if (key) this.open(key, false);
    else this.close(false);
  }

  /** Fetches what is open once more; whether it is there. */
  async refresh() {
    const key = this.opened;
    if (key === null) return false;
    let content;
    try {
      content = await this.openDetail(key);
    } catch (error) {
      if (this.opened === key) this.close();
      throw error;
    }
    if (this.opened !== key) return false;
    const [title, ...rest] = content;
    const close = element("button", {class: "quiet close", onclick: () => this.close()}, "Close");
    fill(this.detail, element("div", {class: "bar"}, title, close), ...rest);
    this.showDetail(true);
    return true;
  }

  close(isStep = true) {
    const key = this.opened;
    const hadFocus = this.detail.contains(document.activeElement);
    this.opened = null;
    tell({[this.name]: ""}, isStep);
    this.showDetail(false);
    this.detail.replaceChildren();
    this.draw();
    const place = key === null ? -1 : this.source.placeOf(key);
    if (hadFocus && place >= 0) this.window.reveal(place)?.focus();
  }

  showDetail(wanted) {
    show(this.detail, wanted);
    this.detail.parentElement.classList.toggle("opened", wanted);
    this.draw();
  }

  /** The entry after (1) or before (-1) the one that has the focus or is open. */
  step(by) {
    const key = document.activeElement?.closest?.(".entry")?.dataset.key ?? this.opened;
    const at = key === null ? -1 : this.source.placeOf(key);
    const next = at < 0 ? 0 : Math.min(Math.max(at + by, 0), this.source.count - 1);
    if (this.source.count) this.window.reveal(next)?.focus({preventScroll: true});
  }
}
