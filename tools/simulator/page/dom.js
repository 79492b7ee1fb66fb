// Builds elements. Texts become text nodes, never markup, whatever they hold.

export const byId = (id) => document.getElementById(id);

/** An element: its attributes by name, "on…" for listeners; children are elements, texts or nothing. */
export function element(name, attributes = {}, ...children) {
  const made = document.createElement(name);
  for (const [key, value] of Object.entries(attributes)) {
    if (key.startsWith("on")) made.addEventListener(key.slice(2), value);
    else if (value === true) made.setAttribute(key, "");
    else if (value !== false && value !== null && value !== undefined) made.setAttribute(key, value);
  }
  made.append(...children.flat().filter((child) => child !== null && child !== undefined && child !== ""));
  return made;
}

/** Shows or hides, with the attribute that assistive technology knows. */
export function show(shown, wanted) {
  shown.hidden = !wanted;
}

/** Replaces the children only if something is different, so that focus and selection stay. */
export function fill(parent, ...children) {
  const next = element("div", {}, ...children);
  const isSame = parent.childNodes.length === next.childNodes.length &&
    [...parent.childNodes].every((child, at) => child.isEqualNode(next.childNodes[at]));
  if (!isSame) parent.replaceChildren(...next.childNodes);
}
