// Puts the views together and keeps them up to date.
import {byId, element, show} from "./dom.js";
import {forget, get, post} from "./control.js";
import {tell, told} from "./address.js";
import {copy} from "./clipboard.js";
import * as cards from "./cards.js";
import * as exchanges from "./exchanges.js";
import * as faults from "./faults.js";

const RETRY_MILLISECONDS = 1000;
// Between two pieces of news.
const PAUSE = 250;
// News of many exchanges comes in larger portions: the page waits so many times as long as the last piece took, so that
// it costs those who send next to nothing.
const [MANY, SHARE, LONG_PAUSE, LONGEST_PAUSE] = [40, 40, 1000, 4000];
const NAMES = ["exchanges", "index", "faults"];
const tabs = NAMES.map((name) => byId(`tab-${name}`));
const lists = {exchanges: exchanges.list, index: cards.list};
let isRecording = false;

function choose(tab, withFocus = false, isStep = true) {
  for (const one of tabs) {
    const isChosen = one === tab;
    one.setAttribute("aria-selected", String(isChosen));
    one.tabIndex = isChosen ? 0 : -1;
    show(byId(one.getAttribute("aria-controls")), isChosen);
  }
  if (withFocus) tab.focus();
  tell({view: chosen() === NAMES[0] ? "" : chosen()}, isStep);
  if (chosen() === "index") attempt(cards.showUp);
  else lists[chosen()]?.draw();
}

const chosen = () => tabs.find((tab) => tab.getAttribute("aria-selected") === "true").id.slice("tab-".length);

/** What the address says. */
function follow() {
  const tab = tabs[Math.max(0, NAMES.indexOf(told("view")))];
  if (tab.getAttribute("aria-selected") !== "true" && !tab.hidden) choose(tab, false, false);
  exchanges.follow();
  if (!isRecording) cards.follow();
}

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
  const text = isLive ? "Live" : "Stopped";
  if (status.textContent !== text) status.textContent = text;
  status.classList.toggle("bad", !isLive);
}

function address(label, text) {
  return element("div", {}, element("dt", {}, label), element("dd", {}, element("code", {}, text),
    element("button", {class: "quiet small", "aria-label": `Copy the address for ${label.toLowerCase()}`,
      onclick: () => attempt(() => copy(text))}, "Copy")));
}

function fact(label, text) {
  return element("div", {}, element("dt", {}, label), element("dd", {}, text));
}

async function learnMode() {
  const {far_side: farSide, services, lejis_host: host, data, keep} = await get("status");
  isRecording = farSide !== null;
  byId("mode").textContent = isRecording ? "recorder" : "simulator";
  byId("far-side").textContent =
    `Everything is passed on to ${farSide} and recorded. Recordings hold personal data.`;
  show(byId("far-side"), isRecording);
  byId("about-server").replaceChildren(
    address("Submissions", location.origin + services.submission), address("Searches", location.origin + services.search),
    fact("LEJIS host", host), fact("Data", data), fact("Keeps", keep ? `the latest ${keep} exchanges` : "all exchanges"));
  for (const tab of tabs.slice(1)) show(tab, !isRecording);
  if (isRecording) choose(tabs[0], false, false);
  else await faults.prepare();
}

async function learn(news) {
  const all = news.what.includes("everything");
  if (all) await Promise.all([learnMode(), exchanges.refresh(news)]);
  else if (news.what.includes("exchanges")) await exchanges.refresh(news);
  else if (news.exchanges.length) await exchanges.news(news);
  if (isRecording) return;
  if (all || news.what.includes("index")) await cards.refresh(news);
  if (all || news.what.includes("faults")) await faults.refresh();
  if (all) follow();
}

const seconds = (milliseconds) => new Promise((resolve) => setTimeout(resolve, milliseconds));

const longPause = (took) => Math.min(LONGEST_PAUSE, Math.max(LONG_PAUSE, SHARE * took));

// Each answer comes when something has changed, or after a while; a simulator that has ended is asked again.
async function watch() {
  let known = null;
  for (;;) {
    try {
      const news = await get(known === null ? "changes" : `changes?after=${known}`);
      const count = known === null ? 0 : news.changes - known;
      const began = performance.now();
      await learn(news);
      const took = performance.now() - began;
      known = news.changes;
      tellConnection(true);
      await seconds(count > MANY ? longPause(took) : count ? PAUSE : 0);
    } catch {
      known = null;
      tellConnection(false);
      await seconds(RETRY_MILLISECONDS);
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
  "/": () => ({exchanges: byId("exchange-filter"), index: byId("card-filter")})[chosen()]?.focus(),
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
addEventListener("popstate", follow);

function forgetBy(button, what, question) {
  byId(button).addEventListener("click", () => {
    if (!question || confirm(question)) attempt(() => forget(what));
  });
}

forgetBy("forget-exchanges", "exchanges", "Forget all exchanges? Their files are deleted.");
forgetBy("forget-index", "index", "Forget all incidents?");
forgetBy("clear-faults", "faults");

byId("import-har").addEventListener("change", (event) => attempt(async () => {
  const [file] = event.target.files;
  if (!file) return;
  const {imported} = await post("exchanges/import", file);
  event.target.value = "";
  byId("news").textContent = `Imported ${imported} exchanges.`;
  await exchanges.setFilter("is:imported");
}));

// A detail that cannot be fetched, because it has just been forgotten.
addEventListener("unhandledrejection", (event) => tellFailure(event.reason));

watch();
