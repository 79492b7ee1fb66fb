// Colours pretty-printed XML: tags, names of attributes, their values. Namespaces are folded up.
import {element} from "./dom.js";

const TAG = /<!--[^]*?-->|<[^>]*>/g;
const PARTS = /^(<[/?]?[^\s/>?]*)([^]*?)([/?]?>)$/;
const ATTRIBUTE = /([^\s=]+)(=)("[^"]*"|'[^']*')/g;
const NAMESPACE = /^xmlns(:|$)/;
// Beyond this the colours cost more than they help.
const MAX_COLOURED = 120_000;

const span = (kind, ...content) => element("span", {class: `xml-${kind}`}, ...content);

function folded(namespaces) {
  const content = span("namespaces", ...namespaces);
  content.hidden = true;
  const label = (count) => `${count} namespace${count === 1 ? "" : "s"}`;
  const count = namespaces.length;
  const button = element("button", {class: "fold", "aria-expanded": "false", onclick: () => {
    content.hidden = !content.hidden;
    button.setAttribute("aria-expanded", String(!content.hidden));
  }}, label(count));
  return [" ", button, content];
}

function attributes(text) {
  const nodes = [];
  const namespaces = [];
  let at = 0;
  for (const match of text.matchAll(ATTRIBUTE)) {
    const before = text.slice(at, match.index);
    const parts = [span("name", match[1]), match[2], span("value", match[3])];
    if (NAMESPACE.test(match[1])) namespaces.push(span("namespace", before, ...parts));
    else nodes.push(before, ...parts);
    at = match.index + match[0].length;
  }
  return [...nodes, ...(namespaces.length ? folded(namespaces) : []), text.slice(at)];
}

function tag(text) {
  const parts = text.startsWith("<!") ? null : PARTS.exec(text);
  return parts ? [span("tag", parts[1]), ...attributes(parts[2]), span("tag", parts[3])] : [span("other", text)];
}

export function coloured(text) {
  if (text.length > MAX_COLOURED) return [text];
  const nodes = [];
  let at = 0;
  for (const match of text.matchAll(TAG)) {
    nodes.push(text.slice(at, match.index), ...tag(match[0]));
    at = match.index + match[0].length;
  }
  return [...nodes, text.slice(at)];
}
