"""lejis submit to a server that only a proxy reaches."""
import os
import re
import unittest

from lejis_case import DONE, NOTHING_SENT, SEND_AGAIN, TRY_AGAIN, SimulatorCase, card
from registration import use_proxy
from small_server import Proxy

DOWN = "  ! The LEJIS Interface service is down. It may need to be restarted.\n"
NO_DATA = "  ! Internal error -2146697209: .*\n"
SIMULATOR = os.environ["LEJIS_SIMULATOR_URL"]
# No name server knows it, so it is not reached without the proxy.
ELSEWHERE = "http://lejis.invalid/lejis-core-Rev01/services/submission"


class ProxyTest(SimulatorCase):
    def submit(self, code, url, *options):
        self.write("a.xml", card())
        return self.expect(code, "submit", "a.xml", "--url", url, "--force", *options)

    def test_a_proxy_that_works_passes_the_incident_on(self):
        with Proxy() as proxy:
            use_proxy(self, proxy.name)
            self.submit(DONE, self.url)
            self.assertEqual((proxy.passed, self.indexed()), ([self.url], ["2024-1"]))

    def test_an_incident_whose_answer_a_proxy_spoils_may_have_been_taken(self):
        # An answer that says that it is compressed, and is not, looks like a server that is down. Wine now and then
        # gives the number of data that are missing instead.
        with Proxy(SIMULATOR, ("Content-Encoding", "gzip")) as proxy:
            use_proxy(self, proxy.name)
            output = self.submit(TRY_AGAIN, ELSEWHERE)
        self.assertRegex(output, f"^a.xml  unknown\n({re.escape(DOWN)}|{NO_DATA}){re.escape(SEND_AGAIN)}$")
        self.assertEqual(self.indexed(), ["2024-1"])

    def test_nothing_is_sent_through_a_proxy_that_takes_no_connection(self):
        use_proxy(self, "127.0.0.1:1")
        output = self.submit(TRY_AGAIN, ELSEWHERE)
        self.assertEqual(output, f"a.xml  not sent\n{DOWN}{NOTHING_SENT}")

    def test_an_exception_is_reached_without_the_proxy(self):
        use_proxy(self, "127.0.0.1:1", "127.0.0.1")
        self.submit(DONE, self.url)
        self.assertEqual(self.indexed(), ["2024-1"])


if __name__ == "__main__":
    unittest.main()
