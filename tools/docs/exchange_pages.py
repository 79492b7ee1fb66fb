"""Puts real exchanges into docs/roads.md.

    exchange_pages.py EXCHANGES GUIDE OUTPUT

EXCHANGES is the folder in which the simulator kept the exchanges of exchanges.sh, in its order. Below each line
"<!-- exchange: NAME request -->" of GUIDE comes that request, or the response, and the result goes to OUTPUT.
"""
import re
import sys
from pathlib import Path
from xml.dom import minidom

from lxml import etree

# In the order of exchanges.sh.
NAMES = ["submission", "search", "fault", "deletion"]
# What tells the road; the others differ from one machine and run to the next.
HEADERS = {"soapaction", "content-type"}
BLOCK = re.compile(r"(<!-- exchange: (\w+) (request|response) -->\n)(?:\n```http\n.*?\n```\n)?", re.DOTALL)


def readable(xml):
    """One line for each element, with all declarations at the root.

    Two prefixes stand for one namespace: each name keeps its own.
    """
    compact = etree.fromstring(xml, etree.XMLParser(remove_blank_text=True, resolve_entities=False))
    root = minidom.parseString(etree.tostring(compact)).documentElement
    declared = {}
    for element in (root, *root.getElementsByTagName("*")):
        for name in [name for name in element.attributes.keys() if name.startswith("xmlns:")]:
            declared[name] = element.getAttribute(name)
            element.removeAttribute(name)
    for name, uri in declared.items():
        root.setAttribute(name, uri)
    return root.toprettyxml(indent="  ").strip()


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
