// The differences between two texts, line by line.
import {element} from "./dom.js";

// With more pairs of lines than this, the whole middle is shown as replaced.
const MOST_PAIRS = 4_000_000;
const CONTEXT = 2;

/** Pairs of a sign (" ", "-", "+") and a line. */
export function lines(before, after) {
  const [old, now] = [before.split("\n"), after.split("\n")];
  let start = 0;
  while (start < old.length && start < now.length && old[start] === now[start]) start++;
  let end = 0;
  while (end < old.length - start && end < now.length - start && old.at(-1 - end) === now.at(-1 - end)) end++;
  return [
    ...old.slice(0, start).map((line) => [" ", line]),
    ...middle(old.slice(start, old.length - end), now.slice(start, now.length - end)),
    ...old.slice(old.length - end).map((line) => [" ", line]),
  ];
}

function middle(old, now) {
  if (old.length * now.length > MOST_PAIRS) {
    return [...old.map((line) => ["-", line]), ...now.map((line) => ["+", line])];
  }
  const longest = commonLengths(old, now);
  const found = [];
  let [at, to] = [0, 0];
  while (at < old.length || to < now.length) {
    if (at < old.length && to < now.length && old[at] === now[to]) {
      found.push([" ", old[at++]]);
      to++;
    } else if (to === now.length || (at < old.length && longest[at + 1][to] >= longest[at][to + 1])) {
      found.push(["-", old[at++]]);
    } else {
      found.push(["+", now[to++]]);
    }
  }
  return found;
}

// How many lines the rests of both have in common, from each pair of lines on.
function commonLengths(old, now) {
  const longest = Array.from({length: old.length + 1}, () => new Uint16Array(now.length + 1));
  for (let at = old.length - 1; at >= 0; at--) {
    for (let to = now.length - 1; to >= 0; to--) {
      longest[at][to] = old[at] === now[to] ? longest[at + 1][to + 1] + 1 : Math.max(longest[at + 1][to], longest[at][to + 1]);
    }
  }
  return longest;
}

const NAMES = {"-": "before", "+": "now"};

function shown(all) {
  const isNear = all.map((_, at) => all.slice(Math.max(0, at - CONTEXT), at + CONTEXT + 1).some(([sign]) => sign !== " "));
  const items = [];
  all.forEach(([sign, line], at) => {
    if (isNear[at]) {
      items.push(element("span", {class: sign === " " ? "same" : NAMES[sign]},
        sign === " " ? null : element("span", {class: "unseen"}, `${NAMES[sign]}: `), `${sign} ${line}\n`));
    } else if (at === 0 || isNear[at - 1]) {
      items.push(element("span", {class: "xml-other"}, "  …\n"));
    }
  });
  return items;
}

/** What changed in one of the messages. */
export function differences(side, before, after) {
  const title = side === "request" ? "Request" : "Response";
  if (before === after) return [element("p", {}, `${title}: no difference.`)];
  return [element("p", {}, `${title}:`),
    element("pre", {class: "diff", tabindex: "0", role: "region", "aria-label": `Differences of the ${side}`},
      ...shown(lines(before, after)))];
}
