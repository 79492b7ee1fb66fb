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
  const {when, target, kind, ...others} = fault;
  const {count, ...rest} = others;
  const values = hasOwnCount(kind) ? others : rest;
  const given = Object.entries(values).filter(([, one]) => one !== null && one !== "");
  return [
    element("strong", {}, kind), " ",
    element("span", {class: "badge"}, target === "any" ? "any request" : target), " ",
    element("span", {class: "badge"}, when === "next" && count > 1 && !hasOwnCount(kind) ? `next ${count}` : when), " ",
    element("span", {class: "faint"}, given.map(([name, one]) => `${name}: ${one}`).join(", ")),
  ];
}

function field(kind, name, byDefault) {
  const isNumber = typeof byDefault === "number";
  return element("label", {class: isNumber ? "field" : "field wide"}, name.replaceAll("_", " "),
    element("input", {name, type: isNumber ? "number" : "text", step: isNumber ? "any" : null,
      required: isNumber, value: byDefault ?? "", placeholder: byDefault === null ? "usual" : null,
      autocomplete: "off", spellcheck: "false", id: `fault-${kind}-${name}`}));
}

async function play(kind, form) {
  const fault = {kind: kind.kind, when: options.elements.when.value};
  const target = byId("fault-target").value;
  if (target && kind.targets.length > 1) fault.target = target;
  if (fault.when === "next" && !hasOwnCount(kind.kind)) fault.count = Number(byId("fault-count").value);
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
    element("h3", {}, kind.kind, " ",
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

export async function prepare() {
  kinds = await get("faults/kinds");
  byId("fault-kinds").replaceChildren(...kinds.map(item));
}

export async function refresh() {
  const waiting = await get("faults");
  fill(byId("fault-list"), ...waiting.map((fault) => element("li", {}, ...words(fault))));
  byId("faults-count").textContent = waiting.length ? String(waiting.length) : "";
  show(byId("no-faults"), !waiting.length);
}

options.addEventListener("submit", (event) => event.preventDefault());
options.addEventListener("change", () => {
  show(byId("fault-count").parentElement, options.elements.when.value === "next");
});
