"""lejis doctor: the user's settings for debug dumps."""
import unittest

from doctor_case import DoctorCase
from lejis_case import DONE
from registration import set_value

FLAGS = r"HKCU\Software\VB and VBA Program Settings\TalvexSuite\Flags"


class DumpsTest(DoctorCase):
    def test_dumps_that_are_on(self):
        set_value(self, FLAGS, "DebugLejis", "Y")
        health, text = self.findings(DONE)["Debug dumps"]
        self.assertEqual(health, "warning")
        self.assertRegex(text, r"personal data, are written to C:\\.*\\TalvexSuite\\Diagnostics\nSet DebugLejis to ")


if __name__ == "__main__":
    unittest.main()
