// How exchanges are called and measured.
import {element} from "./dom.js";

const NAMES = {submission: "Submission", deletion: "Deletion", search: "Search"};
const TONES = {accepted: "good", refused: "bad", fault: "bad", "too broad": "warn", "cut off": "bad", unreadable: "bad"};

export function nameOf({kind, method, path}) {
  const last = path.split("?")[0].split("/").pop();
  if (kind in NAMES) return NAMES[kind];
  if (kind === "wsdl") return `WSDL of ${last}`;
  if (kind === "schema") return `Schema ${last}`;
  return `${method} ${path}`.trim() || "No HTTP";
}

export const statusOf = ({status}) => status ? String(status) : "no answer";

/** The time of day on the server's clock, to the millisecond. */
export const clock = ({time, at}) => `${time.slice(11, 19)}.${String(at % 1000).padStart(3, "0")}`;

export function duration(milliseconds) {
  if (milliseconds < 10) return `${milliseconds.toFixed(1)} ms`;
  if (milliseconds < 1000) return `${Math.round(milliseconds)} ms`;
  const seconds = milliseconds / 1000;
  if (seconds < 100) return `${seconds.toFixed(seconds < 10 ? 2 : 1)} s`;
  const minutes = Math.floor(seconds / 60);
  if (minutes < 100) return `${minutes} min ${Math.round(seconds % 60)} s`;
  return minutes < 6000 ? `${Math.floor(minutes / 60)} h ${minutes % 60} min` : `${Math.floor(minutes / 1440)} days`;
}

export function size(bytes) {
  if (bytes < 1000) return `${bytes} B`;
  return bytes < 1e6 ? `${(bytes / 1000).toFixed(1)} kB` : `${(bytes / 1e6).toFixed(1)} MB`;
}

const badge = (tone, text) => element("span", {class: `badge ${tone}`}, text);

export function badges(exchange) {
  return [
    badge(TONES[exchange.outcome] ?? "", exchange.outcome),
    badge("", statusOf(exchange)),
    exchange.valid === false ? badge("warn", "check failed") : null,
    exchange.fault ? badge("fault", `fault: ${exchange.fault}`) : null,
    exchange.note ? badge("bad", "broke off") : null,
    exchange.imported ? badge("", "imported") : null,
  ];
}
