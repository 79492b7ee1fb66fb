"""Puts real exchanges into docs/roads.md.

    exchange_pages.py EXCHANGES GUIDE OUTPUT

EXCHANGES is the folder in which the simulator kept the exchanges of exchanges.sh, in its order. Below each line
"<!-- exchange: NAME request -->" of GUIDE comes that request, or the response, and the result goes to OUTPUT.
"""
import re
import sys
from pathlib import Path

from lxml import etree

# In the order of exchanges.sh.
NAMES = ["submission", "search", "fault", "deletion"]
# What tells the road; the others differ from one machine and run to the next.
HEADERS = {"soapaction", "content-type"}
BLOCK = re.compile(r"(<!-- exchange: (\w+) (request|response) -->\n)(?:\n```http\n.*?\n```\n)?", re.DOTALL)


def readable(xml):
    root = etree.fromstring(xml, etree.XMLParser(remove_blank_text=True, resolve_entities=False))
    declared = {prefix: uri for element in root.iter() for prefix, uri in element.nsmap.items()}
    etree.cleanup_namespaces(root, top_nsmap=declared)
    return etree.tostring(root, pretty_print=True, encoding="unicode").strip()


def shown(message):
    head, _, body = message.partition(b"\r\n\r\n")
    first, *headers = head.decode("latin-1").split("\r\n")
    kept = [header for header in headers if header.partition(":")[0].lower() in HEADERS]
    return "\n".join([first, *kept, "", readable(body)])


def exchange(folder, name, direction):
    return shown((folder / f"{NAMES.index(name) + 1:06}-{direction}.http").read_bytes())


def main(exchanges, guide, output):
    text = Path(guide).read_text(encoding="utf-8")
    text = BLOCK.sub(lambda block: f"{block[1]}\n```http\n{exchange(Path(exchanges), block[2], block[3])}\n```\n", text)
    Path(output).write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
