// The exchanges, latest first: the list with its filter, and what is open of it.
import {byId, element, show} from "./dom.js";
import {tell, told} from "./address.js";
import {detail} from "./exchange_detail.js";
import {ExchangeSource} from "./exchange_source.js";
import {badges, clock, duration, nameOf, size, statusOf} from "./exchange_words.js";
import {List} from "./list.js";
import {Strip} from "./strip.js";

const TYPING_MILLISECONDS = 200;
const input = byId("exchange-filter");
const strip = new Strip(byId("strip"), (range) => setFilter(withTime(input.value, range)));
let total = 0;
let latest = null;
let typing = 0;

const source = new ExchangeSource(() => redraw());

const sinceThen = (milliseconds) => milliseconds < 10 ? `${milliseconds} ms` : duration(milliseconds);

function interval(exchange, place) {
  const before = place + 1 < source.count ? source.item(place + 1) : null;
  return before ? `+${sinceThen(Math.max(0, exchange.at - before.at))}` : "";
}

function row(exchange, place) {
  if (!exchange) return [element("span", {class: "faint"}, `#${source.keyAt(place)} …`)];
  return [
    element("span", {class: "entry-title"}, `${nameOf(exchange)} `,
      element("span", {class: "faint"}, `#${exchange.number}`)),
    element("span", {class: "entry-about"}, exchange.about),
    element("span", {class: "badges"}, ...badges(exchange)),
    element("span", {class: "entry-size faint"}, size(exchange.request_bytes + exchange.response_bytes)),
    element("span", {class: "entry-duration"}, duration(exchange.milliseconds)),
    element("span", {class: "entry-interval faint"}, interval(exchange, place)),
    element("time", {class: "entry-time faint", datetime: exchange.time}, clock(exchange)),
  ];
}

export const list = new List("exchange", {
  source, row, open: detail,
  // One more, for the interval since the one before.
  onWindow: (first, end) => source.want(first, end + 1),
});

function redraw() {
  list.draw();
  const count = source.count.toLocaleString("en");
  const all = total.toLocaleString("en");
  byId("exchanges-count").textContent = all;
  const searching = source.isSearching ? " so far …" : "";
  byId("exchange-matches").textContent = source.filter ? `${count} of ${all}${searching}` : "";
  byId("no-exchanges").textContent = total ? "No exchange fits the filter." :
    "Nothing has come in yet. Exchanges appear here by themselves.";
  show(byId("no-exchanges"), !source.count && !source.isSearching);
  byId("export-har").href = `/control/exchanges.har?filter=${encodeURIComponent(source.filter)}`;
}

async function apply(filter) {
  const complaint = byId("filter-complaint");
  try {
    await source.load(filter);
    strip.show(filter);
    complaint.textContent = "";
  } catch (error) {
    complaint.textContent = error.message;
  }
  show(complaint, complaint.textContent !== "");
  input.setAttribute("aria-invalid", String(complaint.textContent !== ""));
}

export function setFilter(filter) {
  input.value = filter;
  tell({filter});
  list.window.scroller.scrollTop = 0;
  return apply(filter);
}

const withTime = (filter, range) => `${filter.replace(/(^|\s)-?time:\S*/g, "").trim()}${range ? ` time:${range}` : ""}`.trim();

input.addEventListener("input", () => {
  clearTimeout(typing);
  typing = setTimeout(() => setFilter(input.value), TYPING_MILLISECONDS);
});
byId("clear-filter").addEventListener("click", () => {
  setFilter("");
  input.focus();
});
byId("filter-words").addEventListener("click", (event) => {
  const word = event.target.closest("button")?.textContent;
  if (word) setFilter(`${input.value} ${word}`.trim());
});

/** Everything anew. */
export async function refresh({listed}) {
  total = listed.count;
  source.forget();
  input.value = told("filter");
  await apply(input.value);
  // What has been forgotten meanwhile is not there to be looked at.
  if (Number(list.opened) > listed.last) list.close(false);
  list.follow();
  latest = listed.last;
}

/** What the address says may have changed. */
export function follow() {
  if (told("filter") !== source.filter) apply(input.value = told("filter"));
  list.follow();
}

/** What has just ended. */
export async function news({exchanges, listed}) {
  total = listed.count;
  list.window.shift(await source.add(exchanges, listed.first));
  redraw();
  strip.renew();
  await tellNews(listed.last);
}

// The first look is no news. Of many at once the latest is told.
async function tellNews(number) {
  if (number === latest) return;
  latest = number;
  await source.want(0, 1);
  const exchange = source.entries.get(number);
  if (!exchange) return;
  const fault = exchange.fault ? `, fault ${exchange.fault}` : "";
  byId("news").textContent =
    `Exchange ${number}: ${nameOf(exchange)}, ${exchange.outcome}, ${statusOf(exchange)}${fault}`;
}
