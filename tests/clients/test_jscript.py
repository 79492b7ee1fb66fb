"""A client in JScript, in the platform's own script host."""
import unittest

from client_case import ClientCase
from sample_case import PROJECT, SERVICES

SCRIPT = PROJECT / "tests" / "clients" / "jscript" / "late_bound.js"
# Wine's cscript connects no events, and nothing in a script can be a runnable or ask whether a library may go.
OUT_OF_REACH = {"search", "search refused", "deferred", "release"}


class ClientTest(ClientCase):
    def test_a_late_bound_client(self):
        self.takes_all_steps("JScript, late-bound, STA", self.script(SCRIPT, SERVICES), without=OUT_OF_REACH)


if __name__ == "__main__":
    unittest.main()
