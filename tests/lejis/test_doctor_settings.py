"""lejis doctor: the user's settings for debug dumps and for the proxy."""
import unittest

from doctor_case import DoctorCase
from lejis_case import DONE, TRY_AGAIN
from registration import reg, set_value
from small_server import Proxy

FLAGS = r"HKCU\Software\VB and VBA Program Settings\TalvexSuite\Flags"
INTERNET = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Internet Settings"


class DumpsTest(DoctorCase):
    def test_dumps_that_are_on(self):
        set_value(self, FLAGS, "DebugLejis", "Y")
        health, text = self.findings(DONE)["Debug dumps"]
        self.assertEqual(health, "warning")
        self.assertRegex(text, r"personal data, are written to C:\\.*\\TalvexSuite\\Diagnostics\nSet DebugLejis to ")


class ProxyTest(DoctorCase):
    def use(self, servers, exceptions=None):
        self.addCleanup(reg, "add", INTERNET, "/v", "ProxyEnable", "/t", "REG_DWORD", "/d", "0", "/f")
        reg("add", INTERNET, "/v", "ProxyEnable", "/t", "REG_DWORD", "/d", "1", "/f")
        set_value(self, INTERNET, "ProxyServer", servers)
        if exceptions:
            set_value(self, INTERNET, "ProxyOverride", exceptions)

    def test_none(self):
        self.assertEqual(self.findings(DONE)["Proxy"], ("ok", "none for this user"))

    def test_it_is_named_with_its_exceptions(self):
        self.use("proxy.example:8080", "<local>;*.police.example")
        self.assertEqual(self.findings(DONE)["Proxy"],
                         ("ok", "proxy.example:8080, except for <local>;*.police.example"))

    def test_one_that_works(self):
        with Proxy() as proxy:
            self.use(proxy.name)
            found = self.in_schemas(DONE, "--url", self.url)
        self.assertEqual((found["Proxy"], found["Submission server"]), (("ok", proxy.name), ("ok", "reached")))
        self.assertIn(self.url + "?wsdl", proxy.passed)

    def test_a_dead_one_is_the_cause(self):
        self.use("127.0.0.1:1")
        found = self.findings(TRY_AGAIN, "--url", self.url)
        self.expect_failure(found, "Submission server",
                            "^not reached: the proxy 127.0.0.1:1 takes no connection\nSee that the proxy runs")

    def test_a_dead_one_for_this_scheme_is_the_cause(self):
        self.use("https=proxy.example:8080;http=127.0.0.1:1")
        found = self.findings(TRY_AGAIN, "--url", self.url)
        self.expect_failure(found, "Submission server", "^not reached: the proxy 127.0.0.1:1 takes no connection")


if __name__ == "__main__":
    unittest.main()
