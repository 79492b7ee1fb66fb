"""Clients in JScript and VBScript, in the platform's own script host."""
import unittest

from client_case import ClientCase
from sample_case import PROJECT, SERVICES

FOLDER = PROJECT / "tests" / "clients"
# Wine's cscript connects no events, and nothing in a script can be a runnable or ask whether a library may go.
OUT_OF_REACH = {"search", "search refused", "deferred", "release"}


class ClientTest(ClientCase):
    def test_a_late_bound_client_in_jscript(self):
        run = self.script(FOLDER / "jscript" / "late_bound.js", SERVICES)
        self.takes_all_steps("JScript, late-bound, STA", run, without=OUT_OF_REACH)

    def test_a_late_bound_client_in_vbscript(self):
        run = self.script(FOLDER / "vbscript" / "late_bound.vbs", SERVICES)
        self.takes_all_steps("VBScript, late-bound, STA", run, without=OUT_OF_REACH)


if __name__ == "__main__":
    unittest.main()
