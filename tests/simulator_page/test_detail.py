"""One exchange, and what can be done with it."""
import json
import os
import subprocess
import unittest
import urllib.request
from pathlib import Path

from selenium.webdriver.common.keys import Keys

from page_case import NARROW, SUBMISSION_HEADERS, SUBMISSION_PATH, PageCase, documents
from lejis_case import DONE

LAPTOP = (1400, 900)


class DetailTest(PageCase):
    def setUp(self):
        super().setUp()
        self.browser.execute_cdp_cmd("Browser.grantPermissions", {
            "origin": os.environ["LEJIS_SIMULATOR_URL"],
            "permissions": ["clipboardReadWrite", "clipboardSanitizedWrite"]})
        self.look(LAPTOP)

    def opened(self, number=1):
        self.await_count(f"#exchange-list [data-key='{number}'] .entry-title", 1)
        self.click(f"#exchange-list [data-key='{number}']")
        self.await_text("#exchange-title", f"#{number}")

    def box(self, selector):
        return self.browser.execute_script(
            "return document.querySelector(arguments[0]).getBoundingClientRect().toJSON()", selector)

    def clipboard(self):
        return self.browser.execute_async_script(
            "const done = arguments[0]; navigator.clipboard.readText().then(done, (error) => done(String(error)))")

    def control_json(self, path):
        return json.loads(self.control("GET", path))

    def test_side_by_side_where_there_is_room_and_the_answer_in_sight(self):
        self.submit_plainly("2024-7")
        self.opened()
        request, response = self.box("[aria-label='Request']"), self.box("[aria-label='Response']")
        self.assertEqual(request["top"], response["top"])
        self.assertGreaterEqual(response["left"], request["right"])
        self.assertLess(self.box("[aria-label='Body of the response']")["top"] + 40, LAPTOP[1])
        self.look(NARROW)
        request, response = self.box("[aria-label='Request']"), self.box("[aria-label='Response']")
        self.assertGreaterEqual(response["top"], request["bottom"])

    def test_checks_are_one_line_when_all_is_well_and_open_when_not(self):
        self.submit_plainly("2024-7")
        self.opened()
        self.await_text(".check-list summary", "All 5 checks of the request passed")
        self.assertFalse(self.find(".check-list .checks").is_displayed())
        self.post(SUBMISSION_PATH, b"<no>")
        self.opened(2)
        self.await_text(".check-list summary", "3 of 5 checks of the request failed")
        self.assertTrue(self.find(".check-list .checks").is_displayed())

    def test_namespaces_are_folded_and_unfold(self):
        self.submit_plainly("2024-7")
        self.opened()
        body = "[aria-label='Body of the request']"
        self.assertNotIn("xmlns", self.texts(body)[0])
        self.click(f"{body} .fold")
        self.assertIn('xmlns:lejis="http://lejis.example/', self.texts(body)[0])
        self.click(f"{body} .fold")
        self.assertNotIn("xmlns", self.texts(body)[0])

    def test_search_within(self):
        self.submit_plainly("2024-7", charge="Zonked out")
        self.opened()
        self.type(".finder input", "ZONKED")
        self.await_text(".finder output", "1 of 1")
        self.type(".finder input", "2024-7")
        self.await_text(".finder output", "1 of ")
        self.type(".finder input", "<soap:body>")
        self.await_text(".finder output", "1 of 2")
        self.press(Keys.ENTER)
        self.await_text(".finder output", "2 of 2")
        self.assertEqual(self.focused("type"), "search")
        self.assertEqual(self.browser.execute_script("return CSS.highlights.get('found').size"), 2)
        self.type(".finder input", "nowhere")
        self.await_text(".finder output", "not found")

    def test_what_is_found_in_folded_text_is_unfolded(self):
        self.submit_plainly("2024-7")
        self.opened()
        self.type(".finder input", "content-length")
        self.await_text(".finder output", "1 of 2")
        self.assertTrue(self.find("[aria-label='Headers of the request']").is_displayed())

    def test_copy(self):
        self.submit_plainly("2024-7")
        self.opened()
        self.button("Copy", ".actions").click()
        self.await_text("#action-answer", "Copied")
        self.assertEqual(self.clipboard().encode(), documents.submission(documents.card("2024-7")))

    def test_the_curl_command_sends_the_same(self):
        body = documents.submission(documents.card("2024-7", charge="It's $HOME `x` \\ \"quoted\"")) + b"\n"
        self.post(SUBMISSION_PATH, body, SUBMISSION_HEADERS)
        self.opened()
        self.button("As curl", ".actions").click()
        self.await_text("#action-answer", "Copied a curl command")
        subprocess.run(["bash", "-c", self.clipboard()], check=True, capture_output=True, timeout=20)
        self.await_count("#exchange-list [data-key='2']", 1)
        first, second = self.control_json("exchanges")
        self.assertEqual((second["valid"], second["outcome"]), (True, "accepted"))
        sent = [Path(os.environ["LEJIS_SIMULATOR_DATA"], f"exchanges/00000{number}-request.http").read_bytes()
                for number in (1, 2)]
        self.assertTrue(all(one.endswith(b"\r\n\r\n" + body) for one in sent))

    def test_a_body_that_cannot_be_typed_is_fetched_by_the_curl_command(self):
        self.post(SUBMISSION_PATH, b"\x00\xff'\x1b]0;x\x07", SUBMISSION_HEADERS)
        self.opened()
        self.button("As curl", ".actions").click()
        self.await_text("#action-answer", "Copied a curl command")
        command = self.clipboard()
        self.assertNotRegex(command, "[\x00-\x09\x0b-\x1f\x7f]")
        subprocess.run(["bash", "-c", command], check=True, capture_output=True, timeout=20)
        self.await_count("#exchange-list [data-key='2']", 1)
        self.assertEqual(self.control_json("exchanges")[1]["request_bytes"], 9)

    def test_the_incident_file_can_be_submitted(self):
        self.submit_plainly("2024-7")
        self.opened()
        address = self.button("As incident file", ".actions").get_attribute("href")
        with urllib.request.urlopen(address, timeout=20) as answer:
            self.assertIn("attachment", answer.headers["Content-Disposition"])
            file = self.write("incident.xml", answer.read())
        self.control("DELETE", "index")
        self.expect(DONE, "submit", file, "--url", self.url)
        self.assertEqual(self.indexed(), ["2024-7"])

    def test_send_again(self):
        self.submit_plainly("2024-7")
        self.opened()
        self.button("Send again", ".actions").click()
        self.await_text("#action-answer", "Sent again")
        self.await_count("#exchange-list [data-key='2']", 1)
        folder = Path(os.environ["LEJIS_SIMULATOR_DATA"], "exchanges")
        self.assertEqual((folder / "000002-request.http").read_bytes(), (folder / "000001-request.http").read_bytes())
        self.assertIn(b"1 replaced", (folder / "000002-response.http").read_bytes())

    def test_differences_to_the_exchange_before(self):
        self.submit_plainly("2024-7", charge="Simple assault")
        self.submit_plainly("2024-8")
        changed = documents.submission(documents.card("2024-7", charge="Zonked out"))
        changed = changed.replace(b"2007-03-09</j:ActivityDate>", b"2007-03-08</j:ActivityDate>")
        self.post(SUBMISSION_PATH, changed, SUBMISSION_HEADERS)
        self.opened(1)
        self.assertNotIn("Differences", self.texts(".actions button"))
        self.opened(3)
        self.button("Differences", ".actions").click()
        self.await_text(".differences h4", "#1")
        self.assertEqual([text.split("-", 1)[1].strip() for text in self.texts(".differences .before")], [
            "<j:ActivityDate>2007-03-09</j:ActivityDate>",
            "<j:ChargeDescriptionText>Simple assault</j:ChargeDescriptionText>",
            "<lejis:submissionResponse>0 Accepted. Incidents: 1 added.</lejis:submissionResponse>"])
        self.assertEqual(len(self.all(".differences .now")), 3)

    def test_the_addresses_can_be_copied(self):
        self.click(".about summary")
        self.await_text("#about-server", "lejis.example")
        self.assertIn(os.environ["LEJIS_SIMULATOR_DATA"], self.texts("#about-server")[0])
        self.click("[aria-label='Copy the address for submissions']")
        self.until(lambda: self.clipboard() == self.url, lambda: f"the address, there is {self.clipboard()!r}")


class HarTest(PageCase):
    def test_out_and_in_again(self):
        self.submit_plainly("2024-7")
        self.search_plainly("Main STREET")
        self.await_count("#exchange-list .entry-title", 2)
        self.type("#exchange-filter", "kind:search")
        self.await_text("#exchange-matches", "1 of 2")
        self.click(".more summary")
        with urllib.request.urlopen(self.find("#export-har").get_attribute("href"), timeout=20) as answer:
            archive = answer.read()
        (entry,) = json.loads(archive)["log"]["entries"]
        self.assertIn("Main STREET", entry["request"]["postData"]["text"])
        file = self.write("some.har", archive)
        self.find("#import-har").send_keys(str(file))
        self.await_text("#exchange-list .entry", "imported")
        self.await_text("#exchange-matches", "1 of 3")
        self.assertEqual(self.texts("#exchange-list .entry-about"), ["Main, STREET"])

    def test_a_file_that_is_no_archive(self):
        self.find("#import-har").send_keys(str(self.write("some.har", "{}")))
        self.await_text("#failure", "not an HTTP archive")


class FaultsTest(PageCase):
    def test_a_preset_for_one_incident_and_what_it_hit(self):
        self.click("#tab-faults")
        self.await_text("#fault-presets button", "LEJIS core is offline")
        self.type("#fault-incident", "2024-8")
        self.button("LEJIS core is offline", "#fault-presets").click()
        self.await_text("#fault-presets .said", "2 faults wait")
        self.await_text("#fault-list li", "incident 2024-8")
        self.await_text("#fault-list li", "has hit nothing yet")
        self.submit_plainly("2024-7")
        self.submit_plainly("2024-8")
        self.await_text("#fault-list li", "has hit 1 request: #2")
        self.find("#fault-list a").click()
        self.await_text("#exchange-title", "2024-8")
        self.await_text("#exchange-detail .notice.fault", "response-code")

    def test_every_preset_has_a_button_that_works(self):
        self.click("#tab-faults")
        self.await_text("#fault-presets h3", "Installation")
        for button in self.all("#fault-presets button"):
            button.click()
            self.until(lambda: button.find_element("xpath", "..").find_element("css selector", ".said").text,
                       lambda: "an answer")
        presets = json.loads(self.control("GET", "faults/presets"))
        self.await_count("#fault-list li", sum(one["faults"] for one in presets))

    def test_one_in_so_many(self):
        self.click("#tab-faults")
        self.click("[name='when'][value='one in']")
        self.type("#fault-one-in", "2")
        self.click("[aria-label='Play close']")
        self.await_text("#fault-list li", "one in 2")
        self.assertEqual([self.submit_plainly("2024-7") for _ in range(4)], [200, 0, 200, 0])


if __name__ == "__main__":
    unittest.main()
