"""table.py FOLDER: prints what the clients did, from the records that their tests have left in the folder."""
import json
import sys
from pathlib import Path

STEPS = ("create", "properties", "numbers", "dates", "null", "collections", "errors", "xml", "submit", "transient",
         "refused", "search", "search refused", "withdraw", "deferred", "release")
ARCHITECTURES = ("x86", "x64")
LANGUAGES = ("C#", "Free Pascal")


def cell(records, client, step):
    done = [architecture for architecture in ARCHITECTURES if step in records.get((client, architecture), ())]
    return " ".join(done) or "-"


def table(records):
    clients = sorted({client for client, _ in records})
    rows = [["", *clients], ["---"] * (len(clients) + 1)]
    rows += [[step, *(cell(records, client, step) for client in clients)] for step in STEPS]
    return "\n".join(f"| {' | '.join(row)} |" for row in rows)


def main(folder):
    records = {}
    for path in Path(folder).glob("*.json"):
        record = json.loads(path.read_text(encoding="utf-8"))
        records[record["client"], record["architecture"]] = record["steps"]
    if records:
        print("What clients did, in programs of which bitness:")
        print(table(records))
    for language in LANGUAGES:
        if not any(client.startswith(language) for client, _ in records):
            print(f"No client in {language} was run to its end: see above")


if __name__ == "__main__":
    main(*sys.argv[1:])
