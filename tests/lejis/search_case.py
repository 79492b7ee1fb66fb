"""What the tests of lejis search share: a simulator with a few incidents, and the user who asks for them."""
import os

from lejis_case import DONE, SAMPLES, SimulatorCase

USER = "jtester"
HELD = ("burglary", "international", "vehicle-theft")


class SearchCase(SimulatorCase):
    def setUp(self):
        super().setUp()
        self.submission_url = self.url
        self.url = os.environ["LEJIS_SIMULATOR_URL"] + "/lejis-core-Rev01/services/search"
        self.hold(*(SAMPLES / f"{name}.xml" for name in HELD))
        self.control("DELETE", "exchanges")

    def hold(self, *files):
        self.expect(DONE, "submit", *files, "--url", self.submission_url)

    def play(self, **fault):
        super().play(**{"target": "search", **fault})

    def search(self, *arguments, user=USER, url=None, **options):
        return self.lejis("search", *arguments, "--user", user, "--url", self.url if url is None else url, **options)

    def find(self, *arguments, **options):
        """What a search prints that must succeed."""
        run = self.search(*arguments, **options)
        self.assertEqual((run.code, run.complaint), (DONE, ""), run)
        return run.output

    def found(self, *arguments, **options):
        """The incident numbers, in the order of the table."""
        return [line.split()[1] for line in self.find(*arguments, **options).splitlines()
                if line.startswith("PA")]

    def last_request(self):
        return self.control("GET", f"exchanges/{self.exchanges()[-1]['number']}/request")
