"""The list of exchanges: long, filtered, and over time."""
import json
import os
import subprocess
import sys
import time
import unittest

from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys

from page_case import NARROW, SUBMISSION_HEADERS, SUBMISSION_PATH, PageCase, documents
from lejis_case import PROJECT

PROGRAM = PROJECT / "tools/simulator/lejis_simulator.py"
MANY = 100_000


class FilterTest(PageCase):
    def setUp(self):
        super().setUp()
        for number in ("2024-1", "2024-2", "2024-3"):
            self.submit_plainly(number, charge=f"Charge of {number}")
        self.post("/lejis-core-Rev01/services/submission", b"<no>")
        self.search_plainly("Main STREET")
        self.await_count("#exchange-list .entry-title", 5)

    def rows(self):
        return self.browser.execute_script(
            "return [...document.querySelectorAll('#exchange-list .entry')].map((one) => Number(one.dataset.key))")

    def await_rows(self, expected):
        self.until(lambda: self.rows() == expected, lambda: f"{expected}, there is {self.rows()}")

    def test_what_a_row_says(self):
        texts = self.texts("#exchange-list .entry")
        for part in ("Search", "Main, STREET", "accepted", "200", " ms", " kB", "+"):
            self.assertIn(part, texts[0])
        for part in ("refused", "500", "check failed"):
            self.assertIn(part, texts[1])
        self.assertRegex(texts[0], r"\d\d:\d\d:\d\d\.\d{3}")

    def test_it_is_filtered_as_one_types(self):
        self.type("#exchange-filter", "kind:submission -outcome:refused")
        self.await_rows([3, 2, 1])
        self.await_text("#exchange-matches", "3 of 5")
        self.type("#exchange-filter", '"charge of 2024-2"')
        self.await_rows([2])
        self.submit_plainly("2024-2", charge="Charge of 2024-2")
        self.submit_plainly("2024-9")
        self.await_rows([6, 2])
        self.await_text("#exchange-matches", "2 of 7")
        self.type("#exchange-filter", "nothing-like-it")
        self.await_text("#no-exchanges", "No exchange fits the filter.")
        self.click("#clear-filter")
        self.await_rows([7, 6, 5, 4, 3, 2, 1])

    def test_what_makes_no_sense_is_told(self):
        self.type("#exchange-filter", "status:many")
        self.await_text("#filter-complaint", "A status is a number")
        self.type("#exchange-filter", "status:5xx")
        self.await_rows([4])
        self.assertFalse(self.find("#filter-complaint").is_displayed())

    def test_words_to_click_at(self):
        self.click(".more summary")
        self.button("kind:submission", ".more").click()
        self.await_rows([4, 3, 2, 1])
        self.button("-outcome:accepted", ".more").click()
        self.await_rows([4])

    def test_what_ends_between_a_look_and_its_answer_is_not_missed(self):
        # The first answer was right when the server gave it, and comes after the news of another exchange.
        found = self.browser.execute_async_script("""
            const done = arguments[0];
            const answers = ['{"ranges": [[1, 4]], "reached": 1}', '{"ranges": [[5, 5]], "reached": 5}'];
            let release;
            const held = new Promise((resolve) => { release = resolve; });
            const real = window.fetch;
            window.fetch = async () => {
              const text = answers.shift();
              if (answers.length) await held;
              return new Response(text);
            };
            (async () => {
              const {ExchangeSource} = await import("/page/exchange_source.js");
              const source = new ExchangeSource(() => {});
              const loading = source.load("");
              await source.add([[5, 5]], 1);
              release();
              await loading;
              return source.numbers.ranges;
            })().then(done, (error) => done(String(error))).finally(() => { window.fetch = real; });""")
        self.assertEqual(found, [[1, 5]])

    def test_more_is_in_sight_beside_an_open_exchange_and_on_a_narrow_screen(self):
        self.click("#exchange-list [data-key='1']")
        self.await_text("#exchange-title", "2024-1")
        self.click(".more summary")
        self.check_in_sight(".more-content")
        self.button("Close").click()
        self.look(NARROW)
        self.check_in_sight(".more-content")

    def check_in_sight(self, selector):
        self.assertTrue(self.find(selector).is_displayed())
        left, right, width = self.browser.execute_script("""
            const {left, right} = document.querySelector(arguments[0]).getBoundingClientRect();
            return [left, right, innerWidth]""", selector)
        self.assertGreaterEqual(left, 0)
        self.assertLessEqual(right, width)

    def test_a_reload_a_link_and_back_lead_to_the_same(self):
        self.type("#exchange-filter", "kind:submission")
        self.await_rows([4, 3, 2, 1])
        self.click("#exchange-list [data-key='2']")
        self.await_text("#exchange-title", "2024-2")
        address = self.browser.current_url
        self.browser.get("about:blank")
        self.browser.get(address)
        self.await_text("#exchange-title", "2024-2")
        self.await_rows([4, 3, 2, 1])
        self.assertEqual(self.find("#exchange-filter").get_attribute("value"), "kind:submission")
        self.click("#exchange-list [data-key='1']")
        self.await_text("#exchange-title", "2024-1")
        self.browser.back()
        self.await_text("#exchange-title", "2024-2")
        self.click("#tab-faults")
        self.browser.refresh()
        self.await_text("#connection", "Live")
        self.until(lambda: self.find("#panel-faults").is_displayed(), lambda: "the faults")

    def test_a_key_leads_to_the_filter(self):
        self.press("/")
        self.assertEqual(self.focused("id"), "exchange-filter")

    def test_a_range_of_time_is_chosen_with_the_mouse(self):
        time.sleep(0.05)
        self.browser.refresh()
        self.await_count("#exchange-list .entry-title", 5)
        picture = self.find(".strip-picture")
        width = picture.size["width"]
        ActionChains(self.browser).move_to_element_with_offset(picture, -width // 2 + 2, 0).click_and_hold() \
            .move_by_offset(width // 4, 0).release().perform()
        self.until(lambda: "time:" in self.find("#exchange-filter").get_attribute("value"), lambda: "a range")
        self.until(lambda: self.rows() and self.rows()[-1] == 1, lambda: f"the first one, there is {self.rows()}")
        self.button("Whole time", "#strip").click()
        self.await_rows([5, 4, 3, 2, 1])

    def test_a_range_of_time_is_chosen_with_keys(self):
        self.browser.refresh()
        self.await_count("#exchange-list .entry-title", 5)
        self.find(".strip-picture").send_keys(Keys.HOME)
        self.await_text(".strip-said", "accepted")
        self.press(Keys.SHIFT + Keys.END)
        self.press(Keys.ENTER)
        self.until(lambda: "time:" in self.find("#exchange-filter").get_attribute("value"), lambda: "a range")
        self.await_rows([5, 4, 3, 2, 1])


class IndexTest(PageCase):
    """More incidents than a page of them holds."""

    def setUp(self):
        super().setUp()
        cards = [documents.card(f"2024-{number:03}", charge=f"Charge of {number:03}") for number in range(250)]
        self.post(SUBMISSION_PATH, documents.submission(*cards), SUBMISSION_HEADERS)
        self.click("#tab-index")
        self.await_text("#card-list .entry", "2024-000")

    def test_all_of_them_can_be_reached(self):
        self.await_text("#index-count", "250")
        self.browser.execute_script(
            "const one = document.querySelector('#card-list').parentElement; one.scrollTop = one.scrollHeight")
        self.await_text("#card-list .entry", "2024-249")
        self.assertLess(len(self.all("#card-list .entry")), 100)
        self.click("#card-list [data-key*='2024-249']")
        self.await_text("#card-detail", "Charge of 249")

    def test_they_are_filtered(self):
        self.type("#card-filter", "2024-123 CHARGE")
        self.await_text("#card-matches", "1 of 250")
        self.await_count("#card-list .entry", 1)
        self.assertIn("2024-123", self.texts("#card-list .entry")[0])
        self.browser.refresh()
        self.await_text("#card-matches", "1 of 250")
        self.await_count("#card-list .entry", 1)


class LongListTest(PageCase):
    """A record of a hundred thousand exchanges."""

    def setUp(self):
        super().setUp()
        data = self.folder / "data" / "exchanges"
        data.mkdir(parents=True)
        entry = {"time": "2026-03-01T12:00:00+0000", "method": "POST", "soap_action": None, "content_type": None,
                 "path": "/lejis-core-Rev01/services/submission", "request_bytes": 0, "response_bytes": 0, "checks": {},
                 "valid": None, "status": 200, "fault": None, "kind": "submission", "outcome": "accepted",
                 "ori": "PA0990100", "user": "", "milliseconds": 1.5}
        with open(data / "exchanges.jsonl", "w", encoding="utf-8") as lines:
            for number in range(1, MANY + 1):
                lines.write(json.dumps({**entry, "number": number, "at": 1772366400000 + 10 * number,
                                        "incident": f"I-{number}", "about": f"PA0990100 I-{number}"}) + "\n")
        port_file = self.folder / "port"
        self.simulator = subprocess.Popen(
            [sys.executable, "-B", str(PROGRAM), "--port-file", str(port_file), "--data", str(self.folder / "data"),
             "--parent", str(os.getpid())], stdout=subprocess.DEVNULL)
        self.addCleanup(self.simulator.wait)
        self.addCleanup(self.simulator.terminate)
        self.until(port_file.exists, lambda: "the simulator")
        self.open(f"http://127.0.0.1:{port_file.read_text().strip()}")
        self.await_text("#exchange-list .entry", f"I-{MANY}")

    def scroll(self, to):
        self.browser.execute_script(
            "const one = document.querySelector('.scroller'); one.scrollTop = arguments[0] * one.scrollHeight", to)

    def test_all_of_it_can_be_reached_and_little_of_it_exists(self):
        self.await_text("#exchanges-count", "100,000")
        for place, number in ((0.5, MANY // 2), (1, 1), (0, MANY)):
            self.scroll(place)
            self.await_text("#exchange-list .entry", f"I-{number}")
            self.assertLess(len(self.all("#exchange-list .entry")), 100)
        item = self.find(f"#exchange-list li:has([data-key='{MANY}'])")
        self.assertEqual((item.get_attribute("aria-posinset"), item.get_attribute("aria-setsize")), ("1", str(MANY)))

    def test_keys_go_on_beyond_what_is_in_sight(self):
        self.press("j")
        for _ in range(60):
            self.press("j")
        self.assertEqual(self.focused("data-key"), str(MANY - 60))

    def test_it_is_filtered_soon(self):
        began = time.monotonic()
        self.type("#exchange-filter", "incident:I-7777")
        self.await_text("#exchange-matches", "11 of 100,000")
        self.assertLess(time.monotonic() - began, 5)

    def test_it_says_soon_that_the_simulator_has_stopped(self):
        self.simulator.kill()
        self.simulator.wait()
        began = time.monotonic()
        self.await_text("#connection", "Stopped")
        self.assertLess(time.monotonic() - began, 2)


if __name__ == "__main__":
    unittest.main()
