// What went over the wire in one exchange, and what one can do with it.
import {byId, element, show} from "./dom.js";
import {get, post, text} from "./control.js";
import {copy} from "./clipboard.js";
import {curlCommand} from "./curl.js";
import {differences} from "./diff.js";
import {Finder} from "./finder.js";
import {message} from "./message.js";
import {badges, clock, duration, nameOf, size} from "./exchange_words.js";

const CHECKS = {soap_action: "SOAPAction", content_type: "Content-Type", well_formed: "Well-formed XML",
  envelope: "SOAP envelope", schema: "Schema", blocks: "Inquiry blocks"};

function check([name, verdict]) {
  const kind = {ok: "good", "not reached": "faint"}[verdict] ?? "bad";
  const mark = {good: "✓", faint: "–", bad: "✗"}[kind];
  return element("li", {class: kind}, element("span", {class: "mark", "aria-hidden": "true"}, mark),
    element("span", {}, element("strong", {}, CHECKS[name] ?? name), `: ${verdict}`));
}

/** One line when all is well; open when it is not. */
function checks({checks: verdicts, valid}) {
  const items = Object.entries(verdicts);
  if (!items.length) return null;
  const failed = items.filter(([, verdict]) => verdict !== "ok" && verdict !== "not reached").length;
  const summary = valid ? `✓ All ${items.length} checks of the request passed` :
    `✗ ${failed} of ${items.length} checks of the request failed`;
  return element("details", {class: "check-list", open: !valid},
    element("summary", {class: valid ? "good" : "bad"}, summary),
    element("ul", {class: "checks"}, ...items.map(check)));
}

// The answer stands beside the buttons, where one looks.
function say(text, isGood = true) {
  const output = byId("action-answer");
  output.textContent = text;
  output.classList.toggle("bad", !isGood);
}

function action(label, work, title) {
  return element("button", {class: "quiet", title, onclick: async () => {
    try {
      say(await work());
    } catch (error) {
      say(error.message, false);
    }
  }}, label);
}

const bodyOf = (exchange) => text(`exchanges/${exchange.number}/request`);

async function copyBody(exchange) {
  await copy(await bodyOf(exchange));
  return "Copied the body of the request as it was sent.";
}

async function copyCommand(exchange) {
  await copy(curlCommand(exchange, await bodyOf(exchange), location.origin));
  return "Copied a curl command for a shell.";
}

async function sendAgain(exchange) {
  const isRecording = !byId("far-side").hidden;
  if (isRecording && !confirm("Send this request to the real LEJIS Interface again?")) return "";
  await post(`exchanges/${exchange.number}/again`);
  return "Sent again: the new exchange is in the list.";
}

function differ(exchange, place) {
  return async () => {
    const before = await get(`exchanges/${exchange.previous}`);
    place.replaceChildren(
      element("h4", {}, `What is different from #${before.number}, the previous exchange of this incident`),
      ...["request", "response"].flatMap((side) => differences(side, before[side].body, exchange[side].body)));
    show(place, true);
    place.scrollIntoView({block: "nearest"});
    return "";
  };
}

function actions(exchange, place) {
  const hasIncident = ["submission", "deletion"].includes(exchange.kind) && exchange.incident;
  const isWhole = exchange.method !== "";
  return element("div", {class: "actions", role: "group", "aria-label": "Actions"},
    action("Copy", () => copyBody(exchange), "The body of the request, as it was sent"),
    isWhole ? action("As curl", () => copyCommand(exchange), "A curl command that sends the same request") : null,
    hasIncident ? element("a", {class: "button", download: true,
      href: `/control/exchanges/${exchange.number}/incident.xml`,
      title: "The incident as a file for lejis.exe"}, "As incident file") : null,
    isWhole && exchange.kind !== "other" ? action("Send again", () => sendAgain(exchange), "The same bytes once more") : null,
    exchange.previous ? action("Differences", differ(exchange, place),
      `From #${exchange.previous}, the previous exchange of this incident`) : null,
    element("output", {id: "action-answer"}));
}

export async function detail(key) {
  const exchange = await get(`exchanges/${key}`);
  const place = element("section", {class: "differences", "aria-label": "Differences", hidden: true});
  const messages = element("div", {class: "messages"}, message(exchange, "request"), message(exchange, "response"));
  return [
    element("h3", {id: "exchange-title"}, `${nameOf(exchange)} `,
      element("span", {class: "faint"}, `#${exchange.number} `), element("span", {class: "about"}, exchange.about)),
    element("div", {class: "facts"},
      element("span", {class: "badges"}, ...badges(exchange)),
      element("time", {class: "faint", datetime: exchange.time}, `${exchange.time.slice(0, 10)} ${clock(exchange)}`),
      element("span", {class: "faint"}, `${duration(exchange.milliseconds)}, ` +
        `${size(exchange.request_bytes)} sent, ${size(exchange.response_bytes)} answered`),
      exchange.user ? element("span", {class: "faint"}, `user ${exchange.user}`) : null),
    exchange.fault ? element("p", {class: "notice fault"}, `The fault “${exchange.fault}” was played here.`) : null,
    exchange.note ? element("p", {class: "notice bad"}, exchange.note) : null,
    checks(exchange),
    element("div", {class: "tools"}, actions(exchange, place), new Finder(messages).element),
    place,
    messages,
  ];
}
