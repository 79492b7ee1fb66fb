"""Checks what a Visual Basic file says of the type library. Not a compiler: it follows declarations, With blocks and
chains of members, and refuses what it cannot follow."""
import re

BLOCKS = ("Sub", "Function", "If", "Select", "With", "Enum")
# What Visual Basic brings along itself.
OWN_ROOTS = {"VBA", "Err", "TVLejisCore"}

COMMENT = re.compile(r"'.*")
STRING = re.compile(r'"[^"]*"')
DECLARED = re.compile(r"\b(WithEvents )?(\w+) As (New )?(?:(\w+)\.)?(\w+)")
CREATED = re.compile(r"\bNew TVLejisCore\.(\w+)")
PROCEDURE = re.compile(r"(?:Public |Private )?(?:Sub|Function) (\w+)\((.*?)\)(?: As (?:\w+\.)?(\w+))?$")
CHAIN = re.compile(r"(?<![\w.#])(\w*)((?:(?:\([^()]*\))?\.\w+)+)")
CONSTANT = re.compile(r"\btv\w+")


class VisualBasic:
    def __init__(self, text, types):
        self.types = types
        self.problems = []
        self.members_seen = 0
        self.events_seen = 0
        self.listening = {}  # the classes of the variables WithEvents
        self.module = {}  # the types of the module's variables
        self.local = {}
        self.blocks = []
        for number, line in self._lines(text):
            self.number = number
            self._line(line)
        if self.blocks:
            self._problem(f"{self.blocks} are not closed")

    @staticmethod
    def _lines(text):
        body = text[text.index("Option Explicit"):]
        first = text[:text.index("Option Explicit")].count("\n") + 1
        continued = ""
        for number, line in enumerate(body.splitlines(), first):
            line = continued + COMMENT.sub("", STRING.sub('""', line)).strip()
            continued = line[:-1] if line.endswith(" _") else ""
            if line and not continued:
                yield number, line

    def _problem(self, text):
        self.problems.append(f"line {self.number}: {text}")

    def _line(self, line):
        self._block(line)
        if procedure := PROCEDURE.match(line):
            self._procedure(*procedure.groups())
        for with_events, name, new, owner, type_ in DECLARED.findall(line):
            self._declaration(name, bool(with_events), bool(new), owner, type_)
        for class_ in CREATED.findall(line):
            if class_ not in self.types.default:
                self._problem(f"no class {class_}")
        for constant in CONSTANT.findall(line):
            if constant not in self.types.values:
                self._problem(f"no constant {constant}")
        self._chains(line)

    def _block(self, line):
        words = re.sub(r"^(Public|Private) ", "", line).split()
        if words[0] == "End":
            opened, _ = self.blocks.pop() if self.blocks else ("nothing", None)
            if opened != words[1]:
                self._problem(f"{line} closes {opened}")
        elif words[0] in BLOCKS:
            self.blocks.append((words[0], self._type_of_chain(words[1]) if words[0] == "With" else None))

    def _procedure(self, name, parameters, result):
        self.local = {name: result} if result else {}
        variable, _, event = name.rpartition("_")
        if variable in self.listening:
            self._handler(self.listening[variable], event, parameters)

    def _handler(self, class_, event, parameters):
        self.events_seen += 1
        declared = self.types.members_of(self.types.events[class_]).get(event)
        names = {"BSTR": "String", "long": "Long"}
        wanted = [] if declared is None else [(name, names.get(type_, type_)) for name, type_ in declared.parameters]
        given = [(name, type_) for _, name, _, _, type_ in DECLARED.findall(parameters)]
        if declared is None or wanted != given:
            self._problem(f"the event {class_}.{event} has {wanted}, not {given}")

    def _declaration(self, name, with_events, new, owner, type_):
        if owner == "TVLejisCore" and self.types.members_of(type_) is None:
            self._problem(f"no type {type_}")
        if new and owner == "TVLejisCore" and type_ not in self.types.default:
            self._problem(f"{type_} cannot be created")
        if with_events:
            self.listening[name] = type_
        inside = any(block in ("Sub", "Function") for block, _ in self.blocks)
        (self.local if inside else self.module)[name] = type_ if owner == "TVLejisCore" else None

    def _chains(self, line):
        for chain in CHAIN.finditer(line):
            root, tail = chain.groups()
            if root in OWN_ROOTS or self._is_own(root):
                continue
            last = self._follow(root, tail)
            is_assigned = chain.start() == 0 and re.match(r" = ", line[chain.end():])
            if last and is_assigned and not last.writable:
                self._problem(f"{chain[0]} cannot be set")

    def _is_own(self, root):
        """Is it a variable of a type of Visual Basic's own?"""
        scope = {**self.module, **self.local}
        return root in scope and self.types.members_of(scope[root]) is None

    def _type_of_chain(self, text):
        root, _, tail = text.partition(".")
        last = self._follow(root, f".{tail}") if tail else None
        return last.type if last else {**self.module, **self.local}.get(root)

    def _follow(self, root, tail):
        """The last member of root.a.b.c; a chain without a root belongs to the With block around it."""
        if root:
            type_ = {**self.module, **self.local}.get(root)
        else:
            type_ = next((of for block, of in reversed(self.blocks) if block == "With"), None)
        member = None
        for name in re.findall(r"\.(\w+)", tail):
            members = self.types.members_of(type_) or {}
            member = members.get(name)
            if member is None:
                self._problem(f"{type_ or root or 'With'} has no member {name}")
                return None
            self.members_seen += 1
            type_ = member.type
        return member
