"""What the tests of lejis doctor share."""
import os
from pathlib import Path

from lejis_case import SimulatorCase

FLAGS = r"HKCU\Software\VB and VBA Program Settings\TalvexSuite\Flags"
DUMPS = ("LejisSubmitRequest.xml", "LejisSubmitResponse.xml", "LejisSearchRequest.xml", "LejisSearchResponse.xml")
# What it looks at on this machine, beside the registration of either bitness and the variables that are set.
LOCAL = {"Library in use", "LEJIS host", "Environment", "Proxy", "Debug dumps", "Dump files"}


def dump_folders():
    """The folders of all users of the prefix."""
    users = Path(os.environ["WINEPREFIX"], "drive_c", "users")
    return list(users.glob("*/AppData/Local/TalvexSuite/Diagnostics"))


class DoctorCase(SimulatorCase):
    def setUp(self):
        super().setUp()
        self.search_url = os.environ["LEJIS_SIMULATOR_URL"] + "/lejis-core-Rev01/services/search"
        self.remove_dumps()

    @staticmethod
    def remove_dumps():
        for folder in dump_folders():
            for name in DUMPS:
                (folder / name).unlink(missing_ok=True)

    def findings(self, code, *arguments, **options):
        """The health and the text by the subject; the cure stands in the text's second line."""
        found, subject = {}, None
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
