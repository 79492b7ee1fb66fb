// The view, the filter and what is open stand in the address, so that a reload and a link lead back.

const read = () => new URLSearchParams(location.hash.slice(1));

/** What the address says: a text, empty where it says nothing. */
export const told = (name) => read().get(name) ?? "";

/** Changes what the address says; `isStep` makes the browser's Back lead to the state before. */
export function tell(changes, isStep = false) {
  const said = read();
  for (const [name, value] of Object.entries(changes)) {
    if (value) said.set(name, value);
    else said.delete(name);
  }
  const hash = `#${said}`;
  if (hash === (location.hash || "#")) return;
  history[isStep ? "pushState" : "replaceState"](null, "", hash === "#" ? location.pathname : hash);
}
