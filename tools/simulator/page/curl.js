// A request as a command for a shell.

const OWN = new Set(["host", "content-length", "connection", "transfer-encoding", "expect", "accept-encoding"]);
// A shell's text cannot hold these, and a terminal would act upon them.
const UNTYPABLE = /[\0-\x08\x0b-\x1f\x7f\ufffd]/;

const quoted = (text) => `'${text.replaceAll("'", "'\\''")}'`;

function headers(head) {
  return head.split(/\r?\n/).slice(1).filter((line) => line.includes(":") && !OWN.has(line.split(":")[0].trim().toLowerCase()));
}

/** `body` is that of the request as it was sent; what cannot be typed is fetched from the simulator. */
export function curlCommand({number, method, path, request}, body, origin) {
  const parts = ["curl", `--request ${quoted(method)}`,
    ...headers(request.head).filter((line) => !UNTYPABLE.test(line)).map((line) => `--header ${quoted(line)}`)];
  const isTypable = !UNTYPABLE.test(body.replaceAll("\r\n", "\n")) && !body.startsWith("@");
  if (body && isTypable) parts.push(`--data-binary ${quoted(body)}`);
  if (body && !isTypable) parts.push("--data-binary @-");
  const command = [...parts, quoted(origin + path)].join(" \\\n  ");
  return isTypable ? command : `curl --silent ${quoted(`${origin}/control/exchanges/${number}/request`)} | ${command}`;
}
