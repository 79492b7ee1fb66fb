"""What registration needs to know of the library's type library, read from the lines of describe_type_library."""
from pathlib import Path
from typing import NamedTuple

PROGID_PREFIX = "TVLejisCore."


class ComClass(NamedTuple):
    guid: str
    name: str
    description: str

    @property
    def progid(self):
        return PROGID_PREFIX + self.name


class Interface(NamedTuple):
    guid: str
    name: str
    kind: str  # dual or events

    @property
    def proxy(self):
        """The system's marshaller: of event interfaces the one for IDispatch, of dual ones that for automation."""
        number = {"events": "00020420", "dual": "00020424"}[self.kind]
        return f"{{{number}-0000-0000-C000-000000000046}}"


class TypeLibrary(NamedTuple):
    guid: str
    version: str
    flags: str
    description: str
    classes: list
    interfaces: list


def read(path):
    rows = {"library": [], "class": [], "interface": []}
    for line in Path(path).read_text(encoding="utf-8").splitlines():
        kind, *fields = line.split("\t")
        rows[kind].append(fields)
    (library,) = rows["library"]
    return TypeLibrary(*library, classes=[ComClass(*row) for row in rows["class"]],
                       interfaces=[Interface(*row) for row in rows["interface"]])
