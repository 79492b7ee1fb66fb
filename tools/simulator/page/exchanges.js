// The exchanges, latest first, and what went over the wire in one of them.
import {byId, element, show} from "./dom.js";
import {get} from "./control.js";
import {List} from "./list.js";
import {coloured} from "./xml.js";

const MOST_SHOWN = 500;
const SERVICES = {submission: "Submission", search: "Search"};
const CHECKS = {soap_action: "SOAPAction", content_type: "Content-Type", well_formed: "Well-formed XML",
  envelope: "SOAP envelope", schema: "Schema", blocks: "Inquiry blocks"};

const clock = (time) => time.slice(11, 19);
const badge = (kind, text) => element("span", {class: `badge ${kind}`}, text);

export function nameOf({method, path}) {
  const [address, query = ""] = path.split("?");
  const last = address.split("/").pop();
  if (query.toLowerCase().startsWith("wsdl")) return `WSDL of ${last}`;
  if (address.endsWith(".xsd")) return `Schema ${last}`;
  if (method === "POST" && last in SERVICES) return SERVICES[last];
  return `${method} ${path}`.trim() || "No HTTP";
}

export function statusOf({status}) {
  return status ? String(status) : "no answer";
}

function badges(exchange) {
  const isGood = exchange.status >= 200 && exchange.status < 300;
  return [
    badge(isGood ? "good" : "bad", statusOf(exchange)),
    exchange.valid === false ? badge("warn", "check failed") : null,
    exchange.fault ? badge("fault", `fault: ${exchange.fault}`) : null,
    exchange.note ? badge("bad", "broke off") : null,
  ];
}

function row(exchange) {
  return [
    element("span", {class: "entry-title"}, `${nameOf(exchange)} `,
      element("span", {class: "faint"}, `#${exchange.number}`)),
    element("time", {class: "faint", datetime: exchange.time}, clock(exchange.time)),
    element("span", {class: "entry-about"}, exchange.about),
    element("span", {class: "badges"}, ...badges(exchange)),
  ];
}

function checks(verdicts) {
  const items = Object.entries(verdicts).map(([name, verdict]) => {
    const kind = {ok: "good", "not reached": "faint"}[verdict] ?? "bad";
    const mark = {good: "✓", faint: "–", bad: "✗"}[kind];
    return element("li", {class: kind}, element("span", {class: "mark", "aria-hidden": "true"}, mark),
      element("span", {}, element("strong", {}, CHECKS[name] ?? name), `: ${verdict}`));
  });
  return items.length ? [element("h4", {}, "Checks of the request"), element("ul", {class: "checks"}, ...items)] : [];
}

function schema(objections) {
  if (objections === null) return null;
  if (!objections.length) return element("p", {class: "good"}, "✓ The schemas have no objection.");
  return element("div", {class: "notice warn"},
    element("p", {}, `The schemas object (${objections.length}):`),
    element("ul", {}, ...objections.map((sentence) => element("li", {}, sentence))));
}

// The first one stands among the checks already.
function furtherObjections(objections) {
  return objections?.length > 1 ? schema(objections) : null;
}

function message(exchange, side) {
  const view = exchange[side];
  const title = side === "request" ? "Request" : "Response";
  const file = `/control/exchanges/${exchange.number}/${side}.http`;
  return element("section", {class: "message", "aria-label": title},
    element("div", {class: "bar"},
      element("h4", {}, title, " ", element("span", {class: "faint"}, `${view.bytes.toLocaleString("en")} bytes`)),
      element("a", {href: file, download: true, "aria-label": `Raw bytes of the ${side}`}, "Raw bytes")),
    ...view.notes.map((note) => element("p", {class: "notice warn"}, note)),
    side === "request" ? furtherObjections(view.schema) : schema(view.schema),
    view.head ? element("details", {}, element("summary", {}, view.head.split("\n")[0].trim()),
      element("pre", {tabindex: "0", role: "region", "aria-label": `Headers of the ${side}`}, view.head)) : null,
    view.body ? element("pre", {tabindex: "0", role: "region", "aria-label": `Body of the ${side}`},
      ...(view.xml ? coloured(view.body) : [view.body])) : element("p", {class: "empty"}, "No body."));
}

async function detail(key) {
  const exchange = await get(`exchanges/${key}`);
  return [
    element("h3", {id: "exchange-title"}, `${nameOf(exchange)} `,
      element("span", {class: "faint"}, `#${exchange.number}`)),
    element("p", {class: "badges"}, ...badges(exchange),
      element("time", {class: "faint", datetime: exchange.time}, exchange.time.slice(0, 19).replace("T", " "))),
    exchange.about ? element("p", {}, exchange.about) : null,
    exchange.fault ? element("p", {class: "notice fault"}, `The fault “${exchange.fault}” was played here.`) : null,
    exchange.note ? element("p", {class: "notice bad"}, exchange.note) : null,
    ...checks(exchange.checks),
    message(exchange, "request"),
    message(exchange, "response"),
  ];
}

export const list = new List("exchange", {key: (exchange) => String(exchange.number), row, open: detail});
let latest = null;

export async function refresh() {
  const exchanges = (await get(`exchanges?last=${MOST_SHOWN}`)).reverse();
  list.show(exchanges);
  byId("exchanges-count").textContent = exchanges.length === MOST_SHOWN ? `${MOST_SHOWN}+` : String(exchanges.length);
  show(byId("no-exchanges"), !exchanges.length);
  tellNews(exchanges[0]);
}

// The first look is no news.
function tellNews(exchange) {
  if (latest !== null && exchange && exchange.number !== latest) {
    const fault = exchange.fault ? `, fault ${exchange.fault}` : "";
    byId("news").textContent = `Exchange ${exchange.number}: ${nameOf(exchange)}, ${statusOf(exchange)}${fault}`;
  }
  latest = exchange?.number ?? 0;
}
