"""Whatever becomes of a file: a text that is not in the request has a warning of its own or of what it stands in, and
one that is there has none."""
import copy
import json
import random
import re
import unittest
from xml.etree import ElementTree
from xml.parsers import expat

from lejis_case import LejisCase
from test_incident_format import document, qualified, values_of_format

FILES, SEED = 25, 20240309
MADE_UP = re.compile(r"\b(?:text|copy)\d+\b")
# What the warnings that name a loss say; others tell what is read or sent otherwise.
LOSS = re.compile(r"Line (\d+): (?!The )\S+ is not read(?!: it stands in)")
IDENTIFIERS = {qualified(name) for name in (
    "card:LejisIndexUid", "j:OrganizationORIID", "j:ActivityID", "j:SubmissionSubmitter.Organization")}


class Damage:
    """Does something to an element of a file, at random."""

    def __init__(self, root, chance):
        self.root, self.chance = root, chance
        self.parents = {child: parent for parent in root.iter() for child in parent}

    def strike(self):
        element = self.chance.choice([one for one in self.parents if one.tag not in IDENTIFIERS
                                      and self.parents[one].tag not in IDENTIFIERS])
        self.chance.choice([self.misspell, self.repeat, self.move, self.wrap])(element, self.parents[element])

    def misspell(self, element, _):
        element.tag = self.chance.choice([element.tag + "x", re.sub("{.*}", "{urn:other}", element.tag)])

    def repeat(self, element, parent):
        twin = copy.deepcopy(element)
        for one in twin.iter():
            one.text = one.text and MADE_UP.sub(lambda _: f"copy{self.chance.randrange(10000)}", one.text)
        parent.insert(self.chance.randrange(len(parent) + 1), twin)

    def move(self, element, parent):
        inside = set(element.iter())
        target = self.chance.choice([place for place in self.root.iter()
                                     if place not in inside and place.tag not in IDENTIFIERS])
        parent.remove(element)
        target.append(element)

    def wrap(self, element, parent):
        place = list(parent).index(element)
        parent[place] = ElementTree.Element(self.chance.choice(
            ["{urn:other}wrapper", qualified("j:Residence"), qualified("card:RMSPersonIndexCards")]))
        parent[place].append(element)


def places_of_texts(xml):
    """For each made-up text the lines of the elements that it stands in."""
    places, lines = {}, []
    parser = expat.ParserCreate()
    parser.StartElementHandler = lambda *_: lines.append(parser.CurrentLineNumber)
    parser.EndElementHandler = lambda _: lines.pop()
    parser.CharacterDataHandler = lambda text: places.update((word, set(lines)) for word in MADE_UP.findall(text))
    parser.Parse(xml, True)
    return places


class NothingLostTest(LejisCase):
    def check(self, xml):
        self.write("a.xml", xml)
        run = json.loads(self.lejis("show", "a.xml", "--json").output)
        if run["request"] is None:
            self.assertIn("cannot be read", run["errors"][0])
            return
        sent = set(MADE_UP.findall(run["request"]))
        warned = {int(line) for line in re.findall(r"Line (\d+): ", "\n".join(run["warnings"]))}
        lost = {int(found[1]) for found in map(LOSS.match, run["warnings"]) if found}
        for text, lines in places_of_texts(xml).items():
            self.assertTrue(text in sent or lines & warned, (text, xml, run["warnings"]))
            self.assertFalse(text in sent and lines & lost, (text, xml, run["warnings"]))

    def test_no_text_of_a_damaged_file_is_lost_in_silence(self):
        chance = random.Random(SEED)
        for number in range(FILES):
            root = ElementTree.fromstring(document(values_of_format()))
            for _ in range(chance.randrange(1, 7)):
                Damage(root, chance).strike()
            ElementTree.indent(root)
            with self.subTest(number):
                self.check(ElementTree.tostring(root, encoding="unicode"))


if __name__ == "__main__":
    unittest.main()
