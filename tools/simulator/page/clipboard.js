// Texts for other programs.
import {element} from "./dom.js";

export async function copy(text) {
  if (navigator.clipboard) {
    await navigator.clipboard.writeText(text);
    return;
  }
  // Browsers keep the clipboard from pages of other machines without TLS, but not from this.
  const area = element("textarea", {class: "unseen", "aria-hidden": "true"});
  area.value = text;
  document.body.append(area);
  area.select();
  const isDone = document.execCommand("copy");
  area.remove();
  if (!isDone) throw new Error("This browser does not let the page copy.");
}
