"""The simulator's page as people use it."""
import os
import re
import socket
import subprocess
import sys
import unittest
from pathlib import Path
from unittest import mock
from xml.sax.saxutils import escape

from selenium.webdriver.common.keys import Keys

from page_case import LOOPBACK, NARROW, SUBMISSION_PATH, WIDE, PageCase, start_browser
from lejis_case import DONE, PROJECT, TRY_AGAIN

PROGRAM = PROJECT / "tools/simulator/lejis_simulator.py"
MARKUP = "<img src=x onerror=document.title=1><script>document.title=2</script>"


class DriverTest(unittest.TestCase):
    def test_no_name_is_looked_up_to_steer_the_browser(self):
        with mock.patch("socket.getaddrinfo", wraps=socket.getaddrinfo) as looked_up:
            start_browser().quit()
        self.assertEqual({call.args[0] for call in looked_up.call_args_list}, {LOOPBACK})


class PageTest(PageCase):
    def test_a_submission_a_fault_and_the_failure(self):
        self.submit(DONE, "2024-7")
        self.await_text("#exchange-list .entry", "PA0990100 2024-7")
        self.click("#exchange-list .entry")
        self.await_text("#exchange-detail [aria-label='Body of the request']", "<j:ID>2024-7</j:ID>")
        self.await_text("#exchange-detail [aria-label='Body of the response']", "0 Accepted. Incidents: 1 added.")
        self.assertEqual(len(self.all("#exchange-detail .checks li.good")), 5)

        self.click("#tab-index")
        self.click("#card-list .entry")
        self.await_text("#card-detail dl", "Millbrook")

        self.click("#tab-faults")
        status = self.find("#fault-http-status-status")
        status.clear()
        status.send_keys("502")
        self.click("[aria-label='Play http-status']")
        self.await_text("#fault-list li", "http-status")
        self.await_text(".said", "status: 502")

        self.submit(TRY_AGAIN, "2024-8")
        self.await_count("#fault-list li", 0)
        self.click("#tab-exchanges")
        self.await_count("#exchange-list .entry", 2)
        latest = self.texts("#exchange-list .entry")[0]
        for text in ("2024-8", "502", "fault: http-status"):
            self.assertIn(text, latest)
        self.click("#exchange-list .entry")
        self.await_text("#exchange-detail .notice.fault", "http-status")
        self.assertEqual(self.indexed(), ["2024-7"])

    def test_every_kind_can_be_ordered_and_cleared(self):
        self.click("#tab-faults")
        self.await_text("#fault-kinds h4", "wrong-schema")
        buttons = self.all("#fault-kinds button")
        for number, button in enumerate(buttons, 1):
            button.click()
            self.await_count("#fault-list li", number)
        kinds = [re.split(r"\s", text)[0] for text in self.texts("#fault-kinds h4")]
        self.assertEqual([re.split(r"\s", text)[0] for text in self.texts("#fault-list li")], kinds)
        self.click("#clear-faults")
        self.await_count("#fault-list li", 0)

    def test_the_answer_to_an_order_is_in_sight(self):
        for size in (NARROW, WIDE):
            self.look(size)
            self.click("#tab-faults")
            self.await_text("#fault-kinds h4", "wrong-schema")
            self.click("[aria-label='Play wrong-schema']")
            self.await_text(".said", "wrong-schema")
            self.until(lambda: self.browser.execute_script("""
                const {top, bottom} = document.querySelector(".said:not(:empty)").getBoundingClientRect();
                return top >= 0 && bottom <= innerHeight"""), lambda: "the answer to come into sight")

    def test_when_and_where(self):
        self.click("#tab-faults")
        self.click("[name='when'][value='every']")
        self.find("#fault-target").send_keys("search")
        self.click("[aria-label='Play close']")
        self.await_text("#fault-list li", "every")
        self.assertIn("search", self.texts("#fault-list li")[0])
        self.click("[name='when'][value='next']")
        count = self.find("#fault-count")
        count.clear()
        count.send_keys("3")
        self.click("[aria-label='Play reset']")
        self.await_text("#fault-list li", "next 3")

    def test_what_makes_no_sense_is_told(self):
        self.click("#tab-faults")
        status = self.find("#fault-soap-fault-status")
        status.clear()
        status.send_keys("1")
        self.click("[aria-label='Play soap-fault']")
        self.await_text(".said.bad", "'status' must be an HTTP status from 200 to 999.")

    def test_markup_in_texts_shows_as_text(self):
        self.submit(DONE, "2024-7", organization=escape(MARKUP))
        self.await_text("#exchange-list .entry", "2024-7")
        self.click("#exchange-list .entry")
        self.await_text("#exchange-detail pre", "&lt;script&gt;")
        self.click("#tab-index")
        self.await_text("#card-list .entry", MARKUP)
        self.click("#card-list .entry")
        self.await_text("#card-detail dd", MARKUP)
        self.assertEqual(len(self.all("main img, main script")), 0)
        self.assertEqual(self.browser.title, "LEJIS Interface simulator")
        # Refusals of the page's policy would be here, and failures of its scripts.
        self.assertEqual(self.browser.get_log("browser"), [])

    def test_a_request_that_the_schema_refuses(self):
        body = b'<x xmlns="http://www.w3.org/1999/xhtml"><script>document.title=1</script></x>'
        self.assertEqual(self.post(SUBMISSION_PATH, body), 500)
        self.await_text("#exchange-list .entry", "check failed")
        self.click("#exchange-list .entry")
        self.await_text("#exchange-detail .checks .bad", "not a SOAP 1.1 envelope")
        self.assertIn("<script>document.title=1</script>", "".join(self.texts("#exchange-detail pre")))

    def test_forgetting(self):
        self.submit(DONE, "2024-7")
        self.await_count("#exchange-list .entry", 1)
        self.click("#exchange-list .entry")
        self.click(".more summary")
        self.click("#forget-exchanges")
        self.browser.switch_to.alert.dismiss()
        self.assertEqual(len(self.exchanges()), 1)
        self.click("#forget-exchanges")
        self.browser.switch_to.alert.accept()
        self.await_count("#exchange-list .entry", 0)
        self.until(lambda: not self.find("#exchange-detail").is_displayed(), lambda: "the detail to close")
        self.click("#tab-index")
        self.click("#forget-index")
        self.browser.switch_to.alert.accept()
        self.await_text("#no-cards", "The index holds no incident.")
        self.assertEqual(self.index(), [])

    def test_a_simulator_that_is_away_for_a_while(self):
        self.browser.execute_cdp_cmd("Network.enable", {})
        conditions = {"latency": 0, "downloadThroughput": -1, "uploadThroughput": -1}
        self.addCleanup(self.browser.execute_cdp_cmd, "Network.emulateNetworkConditions",
                        {"offline": False, **conditions})
        self.browser.execute_cdp_cmd("Network.emulateNetworkConditions", {"offline": True, **conditions})
        self.control("DELETE", "faults")
        self.await_text("#connection", "Stopped")
        self.browser.execute_cdp_cmd("Network.emulateNetworkConditions", {"offline": False, **conditions})
        self.await_text("#connection", "Live")


class KeyboardTest(PageCase):
    def test_everything_without_a_mouse(self):
        passed = self.tab_to("id", "tab-exchanges")
        self.assertEqual(passed[0], "skip")
        self.press(Keys.ARROW_RIGHT, Keys.ARROW_RIGHT)
        self.assertEqual(self.focused("id"), "tab-faults")
        passed = self.tab_to("aria-label", "Play not-xml")
        order = [passed.index(one) for one in ("clear-faults", "fault-count", "fault-target", "Play soap-fault")]
        self.assertEqual(order, sorted(order))
        self.press(Keys.ENTER)
        self.await_text("#fault-list li", "not-xml")
        self.submit(TRY_AGAIN, "2024-7")
        self.press("e")
        self.assertEqual(self.focused("id"), "tab-exchanges")
        self.await_count("#exchange-list .entry", 1)
        self.press("j", Keys.ENTER)
        self.await_text("#exchange-detail", "This is no XML at all.")
        self.until(lambda: self.focused("id") == "exchange-detail", lambda: "the focus on the detail")
        self.press(Keys.ESCAPE)
        self.assertFalse(self.find("#exchange-detail").is_displayed())
        self.assertEqual(self.focused("data-key"), "1")

    def test_news_do_not_take_the_focus(self):
        self.submit(DONE, "2024-1")
        self.await_count("#exchange-list .entry", 1)
        self.press("j")
        self.assertEqual(self.focused("data-key"), "1")
        self.submit(DONE, "2024-2")
        self.await_count("#exchange-list .entry", 2)
        self.assertEqual(self.focused("data-key"), "1")
        self.press("k")
        self.assertEqual(self.focused("data-key"), "2")
        self.press("j")
        self.assertEqual(self.focused("data-key"), "1")

    def test_keys_are_letters_where_one_writes_and_can_be_switched_off(self):
        self.press("f")
        text = self.find("#fault-response-code-text")
        text.send_keys("effect")
        self.assertEqual(text.get_attribute("value"), "effect")
        self.assertEqual(self.focused("id"), "fault-response-code-text")
        self.click("#with-keys")
        self.find("#tab-faults").send_keys("e")
        self.assertEqual(self.focused("id"), "tab-faults")

    def test_roles_and_names(self):
        for tab in self.all("[role='tab']"):
            panel = self.find("#" + tab.get_attribute("aria-controls"))
            self.assertEqual((panel.get_attribute("role"), panel.get_attribute("aria-labelledby")),
                             ("tabpanel", tab.get_attribute("id")))
        nameless = self.browser.execute_script("""
            return [...document.querySelectorAll("button, a, input, select")].filter((one) =>
                !(one.textContent.trim() || one.getAttribute("aria-label") || one.labels?.length))
                .map((one) => one.outerHTML)""")
        self.assertEqual(nameless, [])


class SmallScreenTest(PageCase):
    def test_nothing_sticks_out(self):
        self.submit(DONE, "2024-7", organization="M" * 75)
        self.play(kind="http-status", when="every", reason="x" * 200)
        self.submit(TRY_AGAIN, "2024-8")
        for size in (NARROW, WIDE):
            for scheme in ("light", "dark"):
                with self.subTest(size=size, scheme=scheme):
                    self.look(size, scheme)
                    self.open(os.environ["LEJIS_SIMULATOR_URL"])
                    self.walk_through()

    def walk_through(self):
        self.await_count("#exchange-list .entry", 2)
        self.fits()
        for key in ("1", "2"):
            self.click(f"#exchange-list [data-key='{key}']")
            self.await_text("#exchange-title", f"#{key}")
            for summary in self.all("#exchange-detail summary"):
                summary.click()
            self.fits()
            self.click("#exchange-detail .bar button")
        self.click("#tab-index")
        self.fits()
        self.click("#card-list .entry")
        self.await_text("#card-title", "2024-7")
        self.fits()
        self.click("#tab-faults")
        self.fits()

    def fits(self):
        width, room = self.browser.execute_script("return [document.documentElement.scrollWidth, innerWidth]")
        self.assertLessEqual(width, room)


class RecorderPageTest(PageCase):
    def setUp(self):
        super().setUp()
        port_file = self.folder / "port"
        recorder = subprocess.Popen(
            [sys.executable, "-B", str(PROGRAM), "--record-to", os.environ["LEJIS_SIMULATOR_URL"],
             "--port-file", str(port_file), "--data", str(self.folder / "recorder"), "--parent", str(os.getpid())],
            stdout=subprocess.PIPE, text=True)
        self.addCleanup(recorder.wait)
        self.addCleanup(recorder.stdout.close)
        self.addCleanup(recorder.terminate)
        recorder.stdout.readline()
        self.recorder = f"http://127.0.0.1:{port_file.read_text().strip()}"
        self.recorded_url = self.url.replace(os.environ["LEJIS_SIMULATOR_URL"], self.recorder)
        self.open(self.recorder)

    def test_recorded_exchanges(self):
        self.assertIn("recorded", self.find("#far-side").text)
        self.assertFalse(self.find("#tab-faults").is_displayed())
        self.submit(DONE, "2024-7", url=self.recorded_url)
        self.assertEqual(self.indexed(), ["2024-7"])
        self.await_text("#exchange-list .entry", "2024-7")
        self.play(kind="truncated")
        self.submit(TRY_AGAIN, "2024-8", url=self.recorded_url)
        self.await_text("#exchange-list .entry", "broke off")
        self.click("#exchange-list .entry")
        self.await_text("#exchange-detail .notice.bad", "before the end of the body")
        recorded = self.folder / "recorder/exchanges/000002-response.http"
        sent = os.path.join(os.environ["LEJIS_SIMULATOR_DATA"], "exchanges/000002-response.http")
        self.assertEqual(recorded.read_bytes(), Path(sent).read_bytes())


if __name__ == "__main__":
    unittest.main()
