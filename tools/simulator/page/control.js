// The simulator's control calls.

async function call(method, path, body) {
  const answer = await fetch(`/control/${path}`, {method, body, cache: "no-store"});
  const text = await answer.text();
  if (!answer.ok) throw new Error(text.trim() || `The simulator answered ${answer.status}.`);
  return JSON.parse(text);
}

export const get = (path) => call("GET", path);
export const forget = (path) => call("DELETE", path);
export const order = (fault) => call("POST", "faults", JSON.stringify(fault));
