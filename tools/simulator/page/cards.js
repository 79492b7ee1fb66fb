// The incidents that the index holds, and one of them as a person wants to read it.
import {byId, element, show} from "./dom.js";
import {get} from "./control.js";
import {List} from "./list.js";

const caution = () => element("span", {class: "badge bad"}, "caution");

function amount(count, one, many) {
  return count ? `${count} ${count === 1 ? one : many}` : null;
}

function row(card) {
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

export const list = new List("card", {key: (card) => JSON.stringify([card.ori, card.id]), row, open: detail});

export async function refresh() {
  const cards = await get("index");
  list.show(cards);
  byId("index-count").textContent = String(cards.length);
  show(byId("no-cards"), !cards.length);
  await list.refresh();
}
