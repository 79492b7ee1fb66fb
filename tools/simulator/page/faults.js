// The faults that can be played, a form for each, and those that wait.
import {byId, element, fill, show} from "./dom.js";
import {get, order} from "./control.js";

const options = byId("fault-options");
let kinds = [];

function value(input, byDefault) {
  if (byDefault === null && input.value === "") return undefined;
  return typeof byDefault === "number" ? Number(input.value) : input.value;
}

// Such a kind means something else by its count than how often it is played.
const hasOwnCount = (name) => "count" in (kinds.find(({kind}) => kind === name)?.parameters ?? {});

function words(fault) {
  const {when, target, kind, one_in: oneIn, agency, incident, user, hits, exchanges, ...others} = fault;
  const {count, ...rest} = others;
  const values = hasOwnCount(kind) ? others : rest;
  const given = Object.entries(values).filter(([, one]) => one !== null && one !== "");
  const meant = Object.entries({agency, incident, user}).filter(([, one]) => one);
  const often = oneIn ? `one in ${oneIn}` : when === "next" && count > 1 && !hasOwnCount(kind) ? `next ${count}` : when;
  return [
    element("strong", {}, kind), " ",
    element("span", {class: "badge"}, target === "any" ? "any request" : target), " ",
    element("span", {class: "badge"}, often), " ",
    ...meant.flatMap(([name, one]) => [element("span", {class: "badge"}, `${name} ${one}`), " "]),
    element("span", {class: "faint"}, given.map(([name, one]) => `${name}: ${one}`).join(", ")),
  ];
}

// What it has hit: how often, and the latest exchanges to look at.
function hitWords({hits, exchanges}) {
  if (!hits) return [element("span", {class: "faint"}, " – has hit nothing yet")];
  return [` – has hit ${hits} request${hits === 1 ? "" : "s"}: `, ...exchanges.flatMap((number, at) =>
    [at ? ", " : "", element("a", {href: `#view=exchanges&exchange=${number}`}, `#${number}`)])];
}

function field(kind, name, byDefault) {
  const isNumber = typeof byDefault === "number";
  return element("label", {class: isNumber ? "field" : "field wide"}, name.replaceAll("_", " "),
    element("input", {name, type: isNumber ? "number" : "text", step: isNumber ? "any" : null,
      required: isNumber, value: byDefault ?? "", placeholder: byDefault === null ? "usual" : null,
      autocomplete: "off", spellcheck: "false", id: `fault-${kind}-${name}`}));
}

// For whom: what is left empty is left open.
function concern() {
  const entries = ["agency", "incident", "user"].map((name) => [name, byId(`fault-${name}`).value.trim()]);
  return Object.fromEntries(entries.filter(([, text]) => text));
}

function occasions(kind) {
  const when = options.elements.when.value;
  if (when === "one in") return {when: "every", one_in: Number(byId("fault-one-in").value)};
  return when === "next" && !hasOwnCount(kind) ? {when, count: Number(byId("fault-count").value)} : {when};
}

async function play(kind, form) {
  const fault = {kind: kind.kind, ...occasions(kind.kind), ...concern()};
  const target = byId("fault-target").value;
  if (target && kind.targets.length > 1) fault.target = target;
  for (const [name, byDefault] of Object.entries(kind.parameters)) {
    fault[name] = value(form.elements[name], byDefault);
  }
  return ["Ordered: ", ...words(await order(fault))];
}

// The answer stands beside the button, where one looks, and replaces that of an earlier order.
function tell(output, isGood, ...answer) {
  for (const one of document.querySelectorAll("output.said")) one.replaceChildren();
  output.classList.toggle("bad", !isGood);
  output.replaceChildren(...answer);
  output.scrollIntoView({block: "nearest"});
}

function item(kind) {
  const output = element("output", {class: "said"});
  const form = element("form", {class: "kind", "aria-label": kind.kind},
    element("h4", {}, kind.kind, " ",
      kind.targets.length === 1 ? element("span", {class: "badge"}, kind.targets[0]) : null),
    element("p", {}, kind.meaning),
    element("div", {class: "fields"}, ...Object.entries(kind.parameters).map(
      ([name, byDefault]) => field(kind.kind, name, byDefault))),
    element("button", {"aria-label": `Play ${kind.kind}`}, "Play"), output);
  form.addEventListener("submit", (event) => {
    event.preventDefault();
    play(kind, form).then((answer) => tell(output, true, ...answer), (error) => tell(output, false, error.message));
  });
  return element("li", {}, form);
}

function presetItem({name, meaning}) {
  const output = element("output", {class: "said"});
  const button = element("button", {onclick: () => order({preset: name, ...concern()}).then(
    (faults) => tell(output, true, `Ordered: ${faults.length === 1 ? "one fault waits" : `${faults.length} faults wait`}.`),
    (error) => tell(output, false, error.message))}, name);
  return element("li", {class: "preset"}, button, element("p", {}, meaning), output);
}

function grouped(all, heading, made) {
  return [...new Set(all.map(({group}) => group))].map((group) =>
    element("section", {class: "group", "aria-label": group}, element(heading, {}, group),
      element("ul", {class: "kinds"}, ...all.filter((one) => one.group === group).map(made))));
}

export async function prepare() {
  const presets = await get("faults/presets");
  kinds = await get("faults/kinds");
  byId("fault-presets").replaceChildren(...grouped(presets, "h3", presetItem));
  byId("fault-kinds").replaceChildren(...grouped(kinds, "h3", item));
}

export async function refresh() {
  const waiting = await get("faults");
  fill(byId("fault-list"), ...waiting.map((fault) => element("li", {}, ...words(fault), ...hitWords(fault))));
  byId("faults-count").textContent = waiting.length ? String(waiting.length) : "";
  show(byId("no-faults"), !waiting.length);
}

options.addEventListener("submit", (event) => event.preventDefault());
options.addEventListener("change", () => {
  show(byId("fault-count").parentElement, options.elements.when.value === "next");
  show(byId("fault-one-in").parentElement, options.elements.when.value === "one in");
});
