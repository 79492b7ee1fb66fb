// One direction of an exchange.
import {element} from "./dom.js";
import {coloured} from "./xml.js";

function schema(objections) {
  if (objections === null) return null;
  if (!objections.length) return element("p", {class: "good"}, "✓ The schemas have no objection.");
  return element("div", {class: "notice warn"},
    element("p", {}, `The schemas object (${objections.length}):`),
    element("ul", {}, ...objections.map((sentence) => element("li", {}, sentence))));
}

// The first one stands among the checks already.
const furtherObjections = (objections) => objections?.length > 1 ? schema(objections) : null;

export function message(exchange, side) {
  const view = exchange[side];
  const title = side === "request" ? "Request" : "Response";
  const file = `/control/exchanges/${exchange.number}/${side}.http`;
  return element("section", {class: "message", "aria-label": title},
    element("div", {class: "bar"},
      element("h4", {}, title, " ", element("span", {class: "faint"}, `${view.bytes.toLocaleString("en")} bytes`)),
      element("a", {href: file, download: true, "aria-label": `Raw bytes of the ${side}`}, "Raw bytes")),
    view.head ? element("details", {}, element("summary", {}, view.head.split("\n")[0].trim()),
      element("pre", {tabindex: "0", role: "region", "aria-label": `Headers of the ${side}`}, view.head)) : null,
    ...view.notes.map((note) => element("p", {class: "notice warn"}, note)),
    view.body ? element("pre", {class: "body", tabindex: "0", role: "region", "aria-label": `Body of the ${side}`},
      ...(view.xml ? coloured(view.body) : [view.body])) : element("p", {class: "empty"}, "No body."),
    side === "request" ? furtherObjections(view.schema) : schema(view.schema));
}
