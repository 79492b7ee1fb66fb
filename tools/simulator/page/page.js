// Puts the views together and keeps them up to date.
import {byId, show} from "./dom.js";
import {forget, get} from "./control.js";
import * as cards from "./cards.js";
import * as exchanges from "./exchanges.js";
import * as faults from "./faults.js";

const RETRY_MILLISECONDS = 2000;
const tabs = ["exchanges", "index", "faults"].map((name) => byId(`tab-${name}`));
const lists = {exchanges: exchanges.list, index: cards.list};
let views = [];

function choose(tab, withFocus = false) {
  for (const one of tabs) {
    const isChosen = one === tab;
    one.setAttribute("aria-selected", String(isChosen));
    one.tabIndex = isChosen ? 0 : -1;
    show(byId(one.getAttribute("aria-controls")), isChosen);
  }
  if (withFocus) tab.focus();
}

const chosen = () => tabs.find((tab) => tab.getAttribute("aria-selected") === "true").id.slice("tab-".length);

function tellFailure(error) {
  byId("failure").textContent = error.message;
  show(byId("failure"), true);
}

async function attempt(work) {
  show(byId("failure"), false);
  try {
    await work();
  } catch (error) {
    tellFailure(error);
  }
}

function tellConnection(isLive) {
  const status = byId("connection");
  const text = isLive ? "Live" : "Not running: trying again …";
  if (status.textContent !== text) status.textContent = text;
  status.classList.toggle("bad", !isLive);
}

async function learnMode() {
  const {far_side: farSide} = await get("status");
  const isRecording = farSide !== null;
  byId("mode").textContent = isRecording ? "recorder" : "simulator";
  byId("far-side").textContent =
    `Everything is passed on to ${farSide} and recorded. Recordings hold personal data.`;
  show(byId("far-side"), isRecording);
  for (const tab of tabs.slice(1)) show(tab, !isRecording);
  if (isRecording) choose(tabs[0]);
  else await faults.prepare();
  views = isRecording ? [exchanges] : [exchanges, cards, faults];
}

// Each answer comes when something has changed, or after a while; a simulator that has ended is asked again.
async function watch() {
  let known = null;
  for (;;) {
    try {
      const {changes} = await get(known === null ? "changes" : `changes?after=${known}`);
      if (known === null) await learnMode();
      if (changes !== known) await Promise.all(views.map((view) => view.refresh()));
      known = changes;
      tellConnection(true);
    } catch {
      known = null;
      tellConnection(false);
      await new Promise((resolve) => setTimeout(resolve, RETRY_MILLISECONDS));
    }
  }
}

const SHORTCUTS = {
  e: () => choose(tabs[0], true),
  i: () => tabs[1].hidden || choose(tabs[1], true),
  f: () => tabs[2].hidden || choose(tabs[2], true),
  j: () => lists[chosen()]?.step(1),
  k: () => lists[chosen()]?.step(-1),
  c: () => tabs[2].hidden || byId("clear-faults").click(),
  Escape: () => lists[chosen()]?.close(),
};

document.addEventListener("keydown", (event) => {
  if (event.ctrlKey || event.altKey || event.metaKey || event.target.matches("input, select, textarea")) return;
  if (event.key !== "Escape" && !byId("with-keys").checked) return;
  if (!Object.hasOwn(SHORTCUTS, event.key)) return;
  event.preventDefault();
  SHORTCUTS[event.key]();
});

byId("tab-exchanges").parentElement.addEventListener("keydown", (event) => {
  const shown = tabs.filter((tab) => !tab.hidden);
  const at = shown.indexOf(event.target);
  const next = {ArrowRight: at + 1, ArrowLeft: at - 1, Home: 0, End: shown.length - 1}[event.key];
  if (at < 0 || next === undefined) return;
  event.preventDefault();
  choose(shown[(next + shown.length) % shown.length], true);
});

for (const tab of tabs) tab.addEventListener("click", () => choose(tab));
function forgetBy(button, what, question) {
  byId(button).addEventListener("click", () => {
    if (!question || confirm(question)) attempt(() => forget(what));
  });
}

forgetBy("forget-exchanges", "exchanges", "Forget all exchanges? Their files are deleted.");
forgetBy("forget-index", "index", "Forget all incidents?");
forgetBy("clear-faults", "faults");

// A detail that cannot be fetched, because it has just been forgotten.
addEventListener("unhandledrejection", (event) => tellFailure(event.reason));

watch();
