"""What the tests of lejis doctor share."""
import os

from lejis_case import SimulatorCase

# What it looks at on this machine, beside the registration of either bitness.
LOCAL = {"Library in use", "LEJIS host", "Proxy", "Debug dumps"}


class DoctorCase(SimulatorCase):
    def setUp(self):
        super().setUp()
        self.search_url = os.environ["LEJIS_SIMULATOR_URL"] + "/lejis-core-Rev01/services/search"

    def findings(self, code, *arguments, **options):
        """The health and the text by the subject; the cure stands in the text's second line."""
        found = {}
        for line in self.expect(code, "doctor", *arguments, **options).splitlines():
            if line.startswith(" "):
                found[subject] = (found[subject][0], found[subject][1] + "\n" + line.strip())
            else:
                subject = line[9:29].rstrip()
                found[subject] = (line[:9].rstrip(), line[29:])
        return found

    def in_schemas(self, code, *arguments):
        """Wine takes one schema's reference to another as relative to the current folder."""
        return self.findings(code, *arguments, folder=os.environ["LEJIS_SIMULATOR_SCHEMAS"])

    def expect_failure(self, found, subject, text):
        health, words = found[subject]
        self.assertEqual(health, "failed", found)
        self.assertRegex(words, text)
