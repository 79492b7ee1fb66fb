"""The declarations for C# say what the type library's agreed listing says: what stands where in each table of functions
and under which number, and which class creates what."""
import re
import unittest

from type_library import LISTING, PROJECT, TypeLibrary

DECLARATIONS = PROJECT / "samples" / "csharp" / "TVLejisCore.cs"
# IUnknown's and IDispatch's functions come first.
FIRST_SLOT = 7

INTERFACE = re.compile(r'Guid\("([-\w]+)"\), InterfaceType\(ComInterfaceType\.(\w+)\)\]\n    public interface (\w+)\n'
                       r'    \{\n(.*?)^    \}', re.MULTILINE | re.DOTALL)
CLASS = re.compile(r'Guid\("([-\w]+)"\), ClassInterface\(ClassInterfaceType\.None\)'
                   r'(?:, ComSourceInterfaces\(typeof\((\w+)\)\))?\]\n    public class (\w+)Class\n')
CREATED = re.compile(r'Guid\("([-\w]+)"\), CoClass\(typeof\((\w+)Class\)\)\]\n    public interface (\w+) : (\w+)\n')
MEMBER = re.compile(r"^        (?:\[DispId\((-?\d+)\)\] )?(?:\[return: \S+\] )?(\w+) (\w+)(?:\[.*?\])?(\(|.*\{)(.*)$",
                    re.MULTILINE)
ACCESSOR = re.compile(r"\[DispId\((-?\d+)\)\] (?:\[(?:return|param): \S+\] )?(get|set);")
LISTED = re.compile(r"    (-?\d+) (method|get|put) \w+\*? (\w+)\(.*?\)(?: <.*>)?(?: slot (\d+))?$")
HEAD = re.compile(r"(interface|dispinterface|coclass) (\w+) \{(.*?)\}")


def declared_members(body):
    """(number, kind, name) of each function, in order."""
    for number, _, name, opening, rest in MEMBER.findall(body):
        name = "Item" if name == "this" else name
        if opening == "(":
            yield int(number), "method", name
        else:
            for own, kind in ACCESSOR.findall(opening + rest):
                yield int(own), {"get": "get", "set": "put"}[kind], name


class CSharpTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.text = DECLARATIONS.read_text(encoding="utf-8")
        cls.interfaces = {}  # (kind, identifier, functions) by name
        cls.ids = {}
        current = None
        for line in LISTING.read_text(encoding="utf-8").splitlines():
            if head := HEAD.match(line):
                kind, current, identifier = head.groups()
                cls.ids[current] = identifier
                if kind != "coclass":
                    cls.interfaces[current] = (kind, identifier, [])
            elif (member := LISTED.match(line)) and current in cls.interfaces:
                number, kind, name, slot = member.groups()
                cls.interfaces[current][2].append((int(number), kind, name, int(slot or 0)))

    def test_the_functions_stand_in_their_places(self):
        declared = {}
        for identifier, type_, name, body in INTERFACE.findall(self.text):
            is_dual = type_ == "InterfaceIsDual"
            members = [(*member, FIRST_SLOT + place if is_dual else 0)
                       for place, member in enumerate(declared_members(body))]
            declared[name] = ("interface" if is_dual else "dispinterface", identifier, members)
        self.assertEqual(declared, self.interfaces)

    def test_the_classes_are_those_that_can_be_created(self):
        types = TypeLibrary()
        creatable = {name: interface for name, interface in types.default.items() if name != "Collection"}
        self.assertEqual({name: (identifier, events or None) for identifier, events, name in CLASS.findall(self.text)},
                         {name: (self.ids[name], types.events.get(name)) for name in creatable})
        self.assertEqual(CREATED.findall(self.text),
                         [(self.ids[face], name, name, face) for name, face in creatable.items()])

    def test_the_error_numbers_are_there(self):
        self.assertIn("tvTransientError = -1550879440,", self.text)
        self.assertIn("tvFatalError = -1550879439,", self.text)


if __name__ == "__main__":
    unittest.main()
