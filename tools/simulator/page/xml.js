// Colours pretty-printed XML: tags, names of attributes, their values.
import {element} from "./dom.js";

const TAG = /<!--[^]*?-->|<[^>]*>/g;
const PARTS = /^(<[/?]?[^\s/>?]*)([^]*?)([/?]?>)$/;
const ATTRIBUTE = /([^\s=]+)(=)("[^"]*"|'[^']*')/g;
// Beyond this the colours cost more than they help.
const MAX_COLOURED = 120_000;

const span = (kind, text) => element("span", {class: `xml-${kind}`}, text);

function attributes(text) {
  const nodes = [];
  let at = 0;
  for (const match of text.matchAll(ATTRIBUTE)) {
    nodes.push(text.slice(at, match.index), span("name", match[1]), match[2], span("value", match[3]));
    at = match.index + match[0].length;
  }
  return [...nodes, text.slice(at)];
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
