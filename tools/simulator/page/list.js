// A list beside the details of one of its entries. One entry at a time can be reached by Tab.
import {byId, element, fill, show} from "./dom.js";

const keyOf = (entry) => entry.firstElementChild.dataset.key;

export class List {
  /** `row(item)` gives the entry's content, `key(item)` what tells it from others, `open(key)` its details. */
  constructor(name, {key, row, open}) {
    this.list = byId(`${name}-list`);
    this.detail = byId(`${name}-detail`);
    this.key = key;
    this.row = row;
    this.openDetail = open;
    this.opened = null;
    this.keys = [];
  }

  /** Leaves every entry that stays in its place, with the focus it may have. */
  show(items) {
    this.keys = items.map(this.key);
    const before = new Map([...this.list.children].map((entry) => [keyOf(entry), entry]));
    const entries = items.map((item) => {
      const made = this.entry(item);
      const known = before.get(keyOf(made));
      return known?.isEqualNode(made) ? known : made;
    });
    for (const entry of before.values()) if (!entries.includes(entry)) entry.remove();
    entries.forEach((entry, at) => {
      if (this.list.children[at] !== entry) this.list.insertBefore(entry, this.list.children[at] ?? null);
    });
    if (this.opened !== null && !this.keys.includes(this.opened)) this.close();
  }

  entry(item) {
    const key = this.key(item);
    const isOpen = key === this.opened;
    const button = element("button", {class: "entry", "data-key": key, "aria-expanded": String(isOpen),
      "aria-controls": this.detail.id}, ...this.row(item));
    button.addEventListener("click", () => this.open(key));
    return element("li", {}, button);
  }

  async open(key) {
    this.opened = key;
    this.mark();
    await this.refresh();
    if (this.opened !== key) return;
    this.detail.focus({preventScroll: true});
    const {top} = this.detail.getBoundingClientRect();
    if (top < 0 || top > innerHeight / 2) this.detail.scrollIntoView();
  }

  /** Fetches what is open once more. */
  async refresh() {
    const key = this.opened;
    if (key === null) return;
    const [title, ...content] = await this.openDetail(key);
    if (this.opened !== key) return;
    const close = element("button", {class: "quiet", onclick: () => this.close()}, "Close");
    fill(this.detail, element("div", {class: "bar"}, title, close), ...content);
    this.showDetail(true);
  }

  close() {
    const key = this.opened;
    const hadFocus = this.detail.contains(document.activeElement);
    this.opened = null;
    this.mark();
    this.showDetail(false);
    this.detail.replaceChildren();
    if (hadFocus) (this.buttonOf(key) ?? this.list.querySelector("button"))?.focus();
  }

  showDetail(wanted) {
    show(this.detail, wanted);
    this.detail.parentElement.classList.toggle("opened", wanted);
  }

  /** The entry after (1) or before (-1) the one that has the focus or is open. */
  step(by) {
    const focused = document.activeElement?.closest?.(".entry")?.dataset.key ?? this.opened;
    const at = this.keys.indexOf(focused);
    const next = at < 0 ? 0 : Math.min(Math.max(at + by, 0), this.keys.length - 1);
    this.buttonOf(this.keys[next])?.focus();
  }

  buttonOf(key) {
    return [...this.list.querySelectorAll(".entry")].find((button) => button.dataset.key === key);
  }

  mark() {
    for (const button of this.list.querySelectorAll(".entry")) {
      button.setAttribute("aria-expanded", String(button.dataset.key === this.opened));
    }
  }
}
