"""Each picture in docs/pictures shows what its source says."""
import re
import unittest
from xml.etree import ElementTree

from message_sources import PROJECT

PICTURES = sorted((PROJECT / "docs" / "pictures").glob("*.dot"))
TEXT = "{http://www.w3.org/2000/svg}text"
LABEL = re.compile(r'label="([^"]*)"')


class PicturesTest(unittest.TestCase):
    def test_a_picture_has_the_texts_of_its_source(self):
        self.assertTrue(PICTURES)
        for source in PICTURES:
            with self.subTest(source.name):
                labels = LABEL.findall(source.read_text(encoding="utf-8"))
                wanted = sorted(line.strip() for label in labels for line in label.split(r"\n"))
                tree = ElementTree.parse(source.with_suffix(".svg"))
                shown = sorted(element.text.strip().replace("\xa0", " ") for element in tree.iter(TEXT))
                self.assertEqual(shown, wanted)


if __name__ == "__main__":
    unittest.main()
