// The faults that can be played, a form for each, and those that wait.
import {byId, element, fill, show} from "./dom.js";
import {get, order} from "./control.js";

const options = byId("fault-options");
const said = byId("fault-said");

function value(input, byDefault) {
  if (byDefault === null && input.value === "") return undefined;
  return typeof byDefault === "number" ? Number(input.value) : input.value;
}

function words(fault) {
  const {when, count, target, kind, ...values} = fault;
  const given = Object.entries(values).filter(([, one]) => one !== null && one !== "");
  const often = when === "every" ? "every" : count > 1 ? `next ${count}` : "next";
  return [
    element("strong", {}, kind), ` on ${often} ${target === "any" ? "request" : target}`,
    given.length ? element("span", {class: "faint"}, ` ${given.map(([name, one]) => `${name}: ${one}`).join(", ")}`) : null,
  ];
}

function field(kind, name, byDefault) {
  const isNumber = typeof byDefault === "number";
  return element("label", {class: "field"}, name.replaceAll("_", " "),
    element("input", {name, type: isNumber ? "number" : "text", step: isNumber ? "any" : null,
      required: isNumber, value: byDefault ?? "", placeholder: byDefault === null ? "usual" : null,
      autocomplete: "off", spellcheck: "false", id: `fault-${kind}-${name}`}));
}

async function play(kind, form) {
  const fault = {kind: kind.kind, when: options.elements.when.value};
  const target = byId("fault-target").value;
  if (target && kind.targets.length > 1) fault.target = target;
  if (fault.when === "next" && !("count" in kind.parameters)) fault.count = Number(byId("fault-count").value);
  for (const [name, byDefault] of Object.entries(kind.parameters)) {
    fault[name] = value(form.elements[name], byDefault);
  }
  const ordered = await order(fault);
  said.classList.remove("bad");
  said.replaceChildren("Ordered: ", ...words(ordered).filter(Boolean), ".");
}

function tell(error) {
  said.classList.add("bad");
  said.textContent = error.message;
}

function item(kind) {
  const form = element("form", {class: "kind", "aria-label": kind.kind},
    element("h3", {}, kind.kind, " ",
      kind.targets.length === 1 ? element("span", {class: "badge"}, kind.targets[0]) : null),
    element("p", {}, kind.meaning),
    element("div", {class: "fields"}, ...Object.entries(kind.parameters).map(
      ([name, byDefault]) => field(kind.kind, name, byDefault))),
    element("button", {"aria-label": `Play ${kind.kind}`}, "Play"));
  form.addEventListener("submit", (event) => {
    event.preventDefault();
    play(kind, form).catch(tell);
  });
  return element("li", {}, form);
}

export async function prepare() {
  byId("fault-kinds").replaceChildren(...(await get("faults/kinds")).map(item));
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
