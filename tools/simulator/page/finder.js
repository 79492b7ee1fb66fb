// Searches within the messages of one exchange. The text stays as it is; what is found is marked from outside.
import {element} from "./dom.js";

const MOST = 2000;
const canMark = "highlights" in CSS;

export class Finder {
  constructor(messages) {
    this.messages = messages;
    this.found = [];
    this.at = -1;
    this.said = element("output", {class: "faint", "aria-live": "polite"});
    this.input = element("input", {type: "search", placeholder: "Search within", "aria-label": "Search within this exchange",
      oninput: () => this.find(), onkeydown: (event) => this.key(event)});
    this.element = element("div", {class: "finder", role: "search"}, this.input, this.said);
  }

  key(event) {
    if (event.key !== "Enter" || !this.found.length) return;
    event.preventDefault();
    this.go(event.shiftKey ? -1 : 1);
  }

  find() {
    const word = this.input.value.toLowerCase();
    this.found = word ? [...this.messages.querySelectorAll("pre")].flatMap((pre) => occurrences(pre, word)) : [];
    this.at = -1;
    this.mark("found", this.found);
    this.mark("found-here", []);
    if (!word) this.said.textContent = "";
    else if (this.found.length) this.go(1);
    else this.said.textContent = "not found";
  }

  go(by) {
    this.at = (this.at + by + this.found.length) % this.found.length;
    const range = this.found[this.at];
    const parent = range.startContainer.parentElement;
    // What is found stands open.
    for (let one = parent; one && one !== this.messages; one = one.parentElement) {
      if (one.matches("details")) one.open = true;
      if (one.hidden) one.previousElementSibling.click();
    }
    const focused = document.activeElement;
    reveal(range, parent.closest("pre"));
    focused.focus({preventScroll: true});
    this.mark("found-here", [range]);
    this.said.textContent = `${this.at + 1} of ${this.found.length}${this.found.length >= MOST ? "+" : ""}`;
  }

  mark(name, ranges) {
    if (canMark) CSS.highlights.set(name, new Highlight(...ranges));
  }
}

function reveal(range, pre) {
  const place = range.getBoundingClientRect();
  const frame = pre.getBoundingClientRect();
  if (place.top < frame.top || place.bottom > frame.bottom) pre.scrollTop += place.top - frame.top - frame.height / 3;
  if (place.left < frame.left || place.right > frame.right) pre.scrollLeft += place.left - frame.left - frame.width / 3;
  pre.scrollIntoView({block: "nearest"});
}

// Across the pieces that the colours make of a text.
function occurrences(pre, word) {
  const walker = document.createTreeWalker(pre, NodeFilter.SHOW_TEXT, (node) =>
    node.parentElement.closest(".fold") ? NodeFilter.FILTER_REJECT : NodeFilter.FILTER_ACCEPT);
  const nodes = [];
  let text = "";
  for (let node = walker.nextNode(); node; node = walker.nextNode()) {
    nodes.push([text.length, node]);
    text += node.data;
  }
  const lower = text.toLowerCase();
  // Some letters become two in lower case; then places would be wrong.
  const searched = lower.length === text.length ? lower : text;
  const found = [];
  let piece = 0;
  for (let at = searched.indexOf(word); at >= 0 && found.length < MOST; at = searched.indexOf(word, at + word.length)) {
    const range = document.createRange();
    piece = pieceAt(nodes, at, piece);
    range.setStart(nodes[piece][1], at - nodes[piece][0]);
    const end = pieceAt(nodes, at + word.length - 1, piece);
    range.setEnd(nodes[end][1], at + word.length - nodes[end][0]);
    found.push(range);
  }
  return found;
}

function pieceAt(nodes, at, from) {
  let piece = from;
  while (piece + 1 < nodes.length && nodes[piece + 1][0] <= at) piece++;
  return piece;
}
