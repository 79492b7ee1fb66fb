"""Checks the members that a late-bound program names against the type library.

A reader for each language turns the program's text into chains of members. One check serves the chains of all.
The check follows a variable from the line that sets it. Callers name the variables that hold items of collections.
"""
import re
from typing import NamedTuple


class Chain(NamedTuple):
    line: int
    target: str  # the variable that the value goes to, or ""
    root: str
    members: list
    is_set: bool


class Creation(NamedTuple):
    line: int
    target: str
    name: str


DOTTED = re.compile(r"(?:(?P<target>\w+) = )?(?<![\w.\"'])(?P<root>\w+)(?P<members>(?:(?:\([^()]*\))?\.[A-Za-z]\w*)+)"
                    r"(?P<set>\s= )?")
DOTTED_CREATION = re.compile(r"(?:(\w+) = )?(?:new ActiveXObject|Dispatch|DispatchWithEvents|New-Object -ComObject)"
                             r"[( ]\"?TVLejisCore\.(\w+)")
GO = re.compile(r"(?:(?P<target>\w+)(?:, \w+)? := )?(?P<root>\w+)\.(?P<how>Set|Get|Text|Object|Add|Call)"
                r"\(\"(?P<members>[\w.]+)\"")
GO_CREATION = re.compile(r"(?:(\w+) := )?lejis\.Create\(\"(\w+)\"\)")
COMMENT = re.compile(r"(?:#|//) .*$")


def lines_of(text):
    for number, line in enumerate(text.splitlines(), 1):
        yield number, COMMENT.sub("", line)


def read_dotted(text):
    """Python, PowerShell without its dollars, JScript."""
    for number, line in lines_of(text.replace("$", "")):
        for target, name in DOTTED_CREATION.findall(line):
            yield Creation(number, target, name)
        for chain in DOTTED.finditer(DOTTED_CREATION.sub("", line)):
            yield Chain(number, chain["target"] or "", chain["root"], re.findall(r"\.(\w+)", chain["members"]),
                        bool(chain["set"]))


def read_go(text):
    """Go, by the methods of lejis.Object, which take a path."""
    for number, line in lines_of(text):
        for target, name in GO_CREATION.findall(line):
            yield Creation(number, target, name)
        for chain in GO.finditer(line):
            yield Chain(number, chain["target"] or "", chain["root"], chain["members"].split("."),
                        chain["how"] == "Set")


class LateBound:
    def __init__(self, statements, types, known):
        self.types = types
        self.variables = dict(known)
        self.problems = []
        self.members_seen = 0
        for statement in statements:
            if isinstance(statement, Creation):
                self._create(statement)
            else:
                self._follow(statement)

    def _create(self, creation):
        if creation.name not in self.types.default or creation.name == "Collection":
            self.problems.append(f"line {creation.line}: no class {creation.name} to create")
        elif creation.target:
            self.variables[creation.target] = creation.name

    def _follow(self, chain):
        type_ = self.variables.get(chain.root)
        if type_ is None:
            return
        member = None
        for name in chain.members:
            member = (self.types.members_of(type_) or {}).get(name)
            if member is None:
                self.problems.append(f"line {chain.line}: {type_} has no member {name}")
                return
            self.members_seen += 1
            type_ = member.type
        if chain.is_set and not member.writable:
            self.problems.append(f"line {chain.line}: {'.'.join(chain.members)} cannot be set")
        if chain.target and self.types.members_of(type_):
            self.variables[chain.target] = type_
