"""The pages of the packages: every link leads to something in the package."""
import html.parser
import posixpath
import re
import unittest

from package_case import PackageCase, for_each_architecture, package
from test_content import content

import pages


class Page(html.parser.HTMLParser):
    """The links and the anchors of a page."""

    def __init__(self, text):
        super().__init__()
        self.links, self.anchors = [], set()
        self.feed(text.decode())

    def handle_starttag(self, tag, attrs):
        found = dict(attrs)
        self.links += [found[name] for name in ("href", "src") if name in found]
        self.anchors.add(found.get("id"))


class LinksTest(PackageCase):
    @for_each_architecture
    def test_every_link_leads_to_something_in_the_package(self, architecture):
        files = content(package(architecture, ".zip"))
        found = {name: Page(text) for name, text in files.items() if name.endswith(".html")}
        self.assertGreater(len(found), 45)
        self.assertGreater(sum(len(page.links) for page in found.values()), 150)
        for name, page in found.items():
            for link in page.links:
                with self.subTest(page=name, link=link):
                    path, _, anchor = link.partition("#")
                    target = posixpath.normpath(posixpath.join(posixpath.dirname(name), path)) if path else name
                    self.assertIn(target, files)
                    if anchor:
                        self.assertIn(anchor, found[target].anchors)

    @for_each_architecture
    def test_every_page_can_be_reached_from_the_first_one(self, architecture):
        files = content(package(architecture, ".zip"))
        reached, waiting = set(), [pages.START]
        while waiting:
            name = waiting.pop()
            if name in reached or not name.endswith(".html"):
                continue
            reached.add(name)
            waiting += [posixpath.normpath(posixpath.join(posixpath.dirname(name), link.partition("#")[0]))
                        for link in Page(files[name]).links]
        self.assertEqual({name for name in files if name.endswith(".html")} - reached, set())


class PageTest(unittest.TestCase):
    def page(self, text, **names):
        return pages.page("# Title\n\n" + text, "docs/a.md", "docs/a.html", names, "1.2.3")

    def test_a_link_to_what_is_not_in_the_package_is_text(self):
        page = self.page("See [the tool](../tools/lejis/README.md) and [a site](https://example.org/).")
        self.assertIn("See <span>the tool</span> and <span>a site</span>.", page)
        self.assertEqual(Page(page.encode()).links, ["index.html"])

    def test_a_link_to_what_is_nowhere_in_the_project_is_a_mistake(self):
        for link in ("instaling.md", "../tools/lejis/README.html", "../../README.md"):
            with self.assertRaisesRegex(ValueError, rf"^docs/a\.md: the link to {link} leads nowhere$"):
                self.page(f"See [that]({link}).")

    def test_a_link_in_the_package_follows_its_names(self):
        page = pages.page("# Title\n\n[that](../samples/b.md#c)", "docs/a.md", "docs/a.html",
                          {"samples/b.md": "samples/b.html"}, "1.2.3")
        self.assertIn('<a href="../samples/b.html#c">that</a>', page)

    def test_what_is_for_those_with_the_sources_is_left_out(self):
        page = self.page("Stays.\n\n<!-- sources only -->\nGoes.\n<!-- end of sources only -->\n\nStays too.\n")
        self.assertNotIn("Goes", page)
        self.assertEqual(len(re.findall("Stays", page)), 2)


if __name__ == "__main__":
    unittest.main()
