"""What axe finds wrong with the page for those who use assistive technology: nothing."""
import os
import unittest
from pathlib import Path

from page_case import NARROW, SUBMISSION_PATH, WIDE, PageCase

AXE = os.environ.get("LEJIS_AXE", "")


@unittest.skipUnless(AXE, "axe-core is not there (run.sh fetches it)")
class AccessibilityTest(PageCase):
    def setUp(self):
        super().setUp()
        self.submit_plainly("2024-7")
        self.submit_plainly("2024-7", charge="Zonked out")
        self.post(SUBMISSION_PATH, b"<no>")
        self.play(kind="slow", when="every", incident="2024-9")
        self.await_count("#exchange-list .entry-title", 3)

    def check(self, name):
        self.browser.execute_script(Path(AXE).read_text(encoding="utf-8"))
        found = self.browser.execute_async_script("""
            const done = arguments[0];
            axe.run().then(({violations}) => done(violations.map(({id, help, nodes}) =>
                `${id}: ${help}: ${nodes.map(({html}) => html.slice(0, 200)).join(" | ")}`)),
                (error) => done([String(error)]))""")
        self.assertEqual(found, [], name)

    def test_every_view(self):
        for size, scheme in ((WIDE, "light"), (WIDE, "dark"), (NARROW, "light")):
            with self.subTest(size=size, scheme=scheme):
                self.look(size, scheme)
                self.open(os.environ["LEJIS_SIMULATOR_URL"])
                self.await_count("#exchange-list .entry-title", 3)
                self.check("the list")
                self.click(".more summary")
                self.check("the list with more")
                self.click(".more summary")
                self.click("#exchange-list [data-key='2']")
                self.await_text("#exchange-title", "#2")
                self.button("Differences", ".actions").click()
                self.await_count(".differences .now", 2)
                self.check("an exchange")
                self.click("#tab-index")
                self.await_count("#card-list .entry", 1)
                self.click("#card-list .entry")
                self.await_text("#card-title", "2024-7")
                self.check("the index")
                self.click("#tab-faults")
                self.await_text("#fault-list li", "incident 2024-9")
                self.check("the faults")


if __name__ == "__main__":
    unittest.main()
