import re
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
LINK = re.compile(r"\[[^]]*\]\(([^)\s]+)\)")
CODE = re.compile(r"^```.*?^```$", re.MULTILINE | re.DOTALL)


def headings(page):
    """The anchors of a page's headings."""
    lines = re.findall(r"^#+ (.*)$", CODE.sub("", page.read_text(encoding="utf-8")), re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", line.lower()).replace(" ", "-") for line in lines}


class LinksTest(unittest.TestCase):
    def test_every_link_leads_somewhere(self):
        pages = [page for page in PROJECT.rglob("*.md") if PROJECT / "build" not in page.parents]
        self.assertGreater(len(pages), 40)
        for page in pages:
            for link in LINK.findall(CODE.sub("", page.read_text(encoding="utf-8"))):
                target, _, anchor = link.partition("#")
                if re.match(r"[a-z]+:", target):
                    continue
                with self.subTest(page=page.relative_to(PROJECT), link=link):
                    file = page.parent / target if target else page
                    self.assertTrue(file.exists())
                    if anchor:
                        self.assertIn(anchor, headings(file))


if __name__ == "__main__":
    unittest.main()
