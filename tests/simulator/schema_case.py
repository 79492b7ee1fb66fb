"""What every schema test does: change one thing about a good message and ask the schemas."""

from __future__ import annotations

import copy
import tempfile
import unittest
from collections.abc import Callable
from pathlib import Path
from types import ModuleType

from lxml import etree

from documents import NAMES, PREFIXES, find

from lejis.schema_set import SchemaSet

Rows = dict[str, tuple[list[str], list[str]]]


def local(element: etree._Element) -> str:
    """The name without its namespace."""
    return etree.QName(element).localname


class SchemaCase(unittest.TestCase):
    """`messages` is the module that makes the good message."""

    messages: ModuleType

    @classmethod
    def setUpClass(cls) -> None:
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.schemas = SchemaSet(Path(folder.name), NAMES)

    def errors(self, root: etree._Element) -> list[str]:
        """What the schemas object to in an envelope's payload."""
        return self.schemas.errors(self.messages.payload(root))


class StructureChecks(SchemaCase):
    """Goes through every element of the message and changes something about it."""

    optional: dict[str, set[str]]
    repeated: set[str]

    def check_each(self, change: Callable[[etree._Element], object],
                   expected: Callable[[etree._Element], bool | None]) -> None:
        """Applies `change` to a fresh copy for every element below the payload's root."""
        count = len(list(self.messages.payload(self.messages.envelope()).iter("*")))
        for number in range(1, count):
            root = self.messages.envelope()
            element = list(self.messages.payload(root).iter("*"))[number]
            should_pass = expected(element)
            if should_pass is None:
                continue
            with self.subTest(element=root.getroottree().getelementpath(element)):
                change(element)
                errors = self.errors(root)
                self.assertEqual(should_pass, not errors, errors)

    def test_left_out(self) -> None:
        self.check_each(lambda element: element.getparent().remove(element),
                        lambda element: local(element) in
                        self.optional.get(local(element.getparent()), ()))

    def test_twice(self) -> None:
        self.check_each(lambda element: element.addnext(copy.deepcopy(element)),
                        lambda element: local(element) in self.repeated)

    def test_order(self) -> None:
        self.check_each(lambda element: element.getnext().addnext(element),
                        lambda element: None if element.getnext() is None else False)

    def test_other_namespace(self) -> None:
        def move(element: etree._Element) -> None:
            element.tag = "{urn:somewhere}" + local(element)
        self.check_each(move, lambda element: False)

    def test_unknown_element_inside(self) -> None:
        self.check_each(lambda element: etree.SubElement(element, "{urn:somewhere}x"),
                        lambda element: False)

    def test_unknown_attribute(self) -> None:
        self.check_each(lambda element: element.set("x", "y"), lambda element: False)


class ValueChecks(SchemaCase):
    """Each row changes one value of the message and nothing else."""

    rows: Rows
    units: dict[str, str]

    def errors_with(self, path: str, value: str) -> list[str]:
        """The objections to another text in one element."""
        root = self.messages.envelope()
        find(root, path).text = value
        return self.errors(root)

    def needs_row(self, element: etree._Element) -> bool:
        """Whether a row of its own has to cover the element."""
        return not len(element)

    def test_the_full_message_is_valid(self) -> None:
        self.assertEqual([], self.errors(self.messages.envelope()))

    def test_values_taken(self) -> None:
        for path, (taken, _) in self.rows.items():
            for value in taken:
                with self.subTest(path=path, value=value):
                    self.assertEqual([], self.errors_with(path, value))

    def test_values_refused(self) -> None:
        for path, (_, refused) in self.rows.items():
            name = path.split("/")[-1]
            for value in refused:
                with self.subTest(path=path, value=value):
                    self.assertIn(f"Element '{name}'", self.errors_with(path, value)[0])

    def test_every_text_element_has_a_row(self) -> None:
        root = self.messages.envelope()
        covered = {element for path in self.rows
                   for element in root.xpath(path, namespaces=PREFIXES)}
        for element in self.messages.payload(root).iter("*"):
            if self.needs_row(element):
                self.assertIn(element, covered, element.tag)

    def test_unit_attributes(self) -> None:
        for path, name in self.units.items():
            qualified = f"{{{PREFIXES['j']}}}{name}"
            for change, attributes in {"other unit": {qualified: "metric"}, "missing": {},
                                       "unqualified": {name: "ncic"},
                                       "one more": {qualified: "ncic", "x": "y"}}.items():
                with self.subTest(path=path, change=change):
                    root = self.messages.envelope()
                    element = find(root, path)
                    element.attrib.clear()
                    element.attrib.update(attributes)
                    self.assertNotEqual([], self.errors(root))
