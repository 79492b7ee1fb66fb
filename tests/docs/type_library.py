"""The type library as its agreed listing tells it: classes, members, events and values by name."""
import re
from pathlib import Path
from typing import NamedTuple

PROJECT = Path(__file__).resolve().parents[2]
LISTING = PROJECT / "tests" / "client" / "golden" / "type_library.txt"

HEAD = re.compile(r"(interface|dispinterface|coclass|enum) (\w+) (\{.*?\})")
MEMBER = re.compile(r"    (-?\d+) (method|get|put) \w+\*? (\w+)\((.*)\)")
PARAMETER = re.compile(r"\[([^]]*)\] (\w+)\**(?: (\w+))?")
IMPLEMENTED = re.compile(r"    \[(.*)\] (\w+)")
VALUE = re.compile(r"    (\w+) = ")


class Member(NamedTuple):
    name: str
    type: str  # "" for a method that returns nothing
    parameters: list  # (name, type)
    writable: bool


class TypeLibrary:
    def __init__(self):
        self.members = {}  # of an interface, by name
        self.default = {}  # interface of a class
        self.events = {}  # interface of a class
        self.values = set()
        self.identifiers = {}  # by name
        self._numbers = {}  # of the members of an interface: (number, name)
        kind = name = None
        for line in LISTING.read_text(encoding="utf-8").splitlines()[1:]:
            if head := HEAD.match(line):
                kind, name, self.identifiers[name] = head.groups()
            elif line.startswith(" "):
                getattr(self, f"_{kind}")(name, line)

    def _interface(self, name, line):
        number, kind, member, arguments = MEMBER.match(line).groups()
        self._numbers.setdefault(name, []).append((number, member))
        members = self.members.setdefault(name, {})
        if kind == "put":
            members[member] = members[member]._replace(writable=True)
            return
        parameters = [parameter.groups() for parameter in PARAMETER.finditer(arguments)]
        result = next((type_ for flags, type_, _ in parameters if "retval" in flags), "")
        inward = [(own, type_) for flags, type_, own in parameters if "retval" not in flags]
        members[member] = Member(member, result, inward, False)

    _dispinterface = _interface

    def _coclass(self, name, line):
        flags, interface = IMPLEMENTED.match(line).groups()
        if "source" in flags:
            self.events[name] = interface
        elif "default" in flags:
            self.default[name] = interface

    def _enum(self, _, line):
        self.values.add(VALUE.match(line)[1])

    def members_of(self, type_):
        """The members by name; a class has those of its default interface. None for a type of another library."""
        return self.members.get(self.default.get(type_, type_))

    def numbers(self, interface):
        """(number, name) of its members."""
        return self._numbers[interface]
