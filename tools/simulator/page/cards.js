// The incidents that the index holds, and one of them as a person wants to read it.
import {byId, element, show} from "./dom.js";
import {get} from "./control.js";
import {tell, told} from "./address.js";
import {List} from "./list.js";

const TYPING_MILLISECONDS = 200;
const PAGE = 100;
const input = byId("card-filter");

const caution = () => element("span", {class: "badge bad"}, "caution");

function amount(count, one, many) {
  return count ? `${count} ${count === 1 ? one : many}` : null;
}

/** The cards by their place, in pages that are fetched as they come into sight. */
const source = {
  count: 0,
  pages: new Map(),
  item: (place) => source.pages.get(Math.floor(place / PAGE))?.[place % PAGE],
  keyAt: (place) => keyOf(source.item(place)) ?? `place ${place}`,
  placeOf(key) {
    for (const [page, cards] of source.pages) {
      const at = Array.isArray(cards) ? cards.findIndex((card) => keyOf(card) === key) : -1;
      if (at >= 0) return page * PAGE + at;
    }
    return -1;
  },
  async want(first, end) {
    const missing = [];
    for (let page = Math.floor(first / PAGE); page * PAGE < Math.min(end, source.count); page++) {
      if (!source.pages.has(page)) missing.push(page);
    }
    for (const page of missing) source.pages.set(page, []);
    for (const page of missing) await source.load(page, input.value);
    if (missing.length) list.draw();
  },
  async load(page, filter) {
    const {total, cards} = await get(`index?from=${page * PAGE}&count=${PAGE}&text=${encodeURIComponent(filter)}`);
    if (filter !== input.value) return;
    source.count = total;
    source.pages.set(page, cards);
  },
};

const keyOf = (card) => card ? JSON.stringify([card.ori, card.id]) : undefined;

function row(card) {
  if (!card) return [element("span", {class: "faint"}, "…")];
  const holds = [amount(card.persons, "person", "persons"), amount(card.vehicles, "vehicle", "vehicles"),
    amount(card.property, "item", "items")].filter(Boolean);
  return [
    element("span", {class: "entry-title"}, card.id),
    element("span", {class: "faint"}, card.activity_date || card.submitted),
    element("span", {class: "entry-about"}, [card.organization, card.ori].filter(Boolean).join(" · ")),
    element("span", {class: "badges"}, card.caution ? caution() : null,
      element("span", {class: "faint"}, holds.join(", ") || "incident only")),
  ];
}

function section({title, role, caution: isFlagged, rows}) {
  return element("section", {class: "card-section", "aria-label": title},
    element("div", {class: "bar"}, element("h4", {}, title),
      element("span", {class: "badges"},
        role ? element("span", {class: "badge"}, role) : null, isFlagged ? caution() : null)),
    element("dl", {}, ...rows.map(([label, text]) =>
      element("div", {}, element("dt", {}, label), element("dd", {}, text)))));
}

async function detail(key) {
  const [ori, id] = JSON.parse(key);
  const query = `ori=${encodeURIComponent(ori)}&id=${encodeURIComponent(id)}`;
  const card = await get(`index/card/view?${query}`);
  return [
    element("h3", {id: "card-title"}, card.id, " ", element("span", {class: "faint"}, card.ori)),
    ...card.sections.map(section),
    element("p", {}, element("a", {href: `/control/index/card?${query}`, target: "_blank", rel: "noopener"},
      "The card as XML")),
  ];
}

export const list = new List("card", {source, row, open: detail, onWindow: (first, end) => source.want(first, end)});
let held = 0;
let isStale = true;

// Only what is in sight is read, and only while it is.
async function load() {
  if (byId("panel-index").hidden) return;
  isStale = false;
  const first = Math.floor(list.window.places().first / PAGE);
  const fresh = [...new Set([0, first])];
  for (const page of source.pages.keys()) if (!fresh.includes(page)) source.pages.delete(page);
  for (const page of fresh) await source.load(page, input.value);
  list.draw();
  byId("card-matches").textContent = input.value ? `${source.count.toLocaleString("en")} of ${held.toLocaleString("en")}` : "";
  byId("no-cards").textContent = held ? "No incident holds this text." : "The index holds no incident.";
  show(byId("no-cards"), !source.count);
  await list.refresh();
}

/** The index has changed, or may have. */
export async function refresh({incidents}) {
  held = incidents;
  isStale = true;
  byId("index-count").textContent = held.toLocaleString("en");
  await load();
}

/** The view has come into sight. */
export async function showUp() {
  if (isStale) await load();
  list.draw();
}

export function follow() {
  if (told("incidents") !== input.value) {
    input.value = told("incidents");
    load();
  }
  list.follow();
}

let typing = 0;
input.addEventListener("input", () => {
  clearTimeout(typing);
  typing = setTimeout(() => {
    tell({incidents: input.value});
    list.window.scroller.scrollTop = 0;
    source.pages.clear();
    load();
  }, TYPING_MILLISECONDS);
});
