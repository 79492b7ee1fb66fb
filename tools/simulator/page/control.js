// The simulator's control calls.

async function answer(method, path, body) {
  const response = await fetch(`/control/${path}`, {method, body, cache: "no-store"});
  const text = await response.text();
  if (!response.ok) throw new Error(text.trim() || `The simulator answered ${response.status}.`);
  return text;
}

const call = async (...request) => JSON.parse(await answer(...request));

export const text = (path) => answer("GET", path);
export const get = (path) => call("GET", path);
export const forget = (path) => call("DELETE", path);
export const post = (path, body) => call("POST", path, body);
export const order = (fault) => post("faults", JSON.stringify(fault));
