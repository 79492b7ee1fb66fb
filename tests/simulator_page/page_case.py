"""A test case with the simulator's page in a headless Chromium, and lejis.exe to submit with."""
import os
import sys
import urllib.error
import urllib.request
from pathlib import Path

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common import utils
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import WebDriverWait

sys.path[:0] = [str(Path(__file__).resolve().parents[1] / folder) for folder in ("lejis", "simulator")]

import documents  # noqa: E402  (the path comes first)
import inquiries  # noqa: E402
from lejis_case import SimulatorCase, card  # noqa: E402
from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH  # noqa: E402

SUBMISSION_HEADERS = {"SOAPAction": documents.NAMES.submit_action, "Content-Type": "text/xml;charset=utf-8"}
SEARCH_HEADERS = {"SOAPAction": documents.NAMES.search_action, "Content-Type": "text/xml;charset=utf-8"}

PATIENCE_SECONDS = 20
WIDE, NARROW = (1280, 900), (360, 740)
LOOPBACK = "127.0.0.1"


class Driver(Service):
    """Spoken to by its address, not as "localhost": a bare machine may lack that name."""

    @property
    def service_url(self):
        return f"http://{LOOPBACK}:{self.port}"

    def is_connectable(self):
        return utils.is_connectable(self.port, LOOPBACK)


def start_browser():
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    # The driver steers the browser by a pipe, for otherwise it would look for "localhost" as well.
    for argument in ("--headless=new", "--disable-gpu", "--disable-dev-shm-usage", "--disable-background-networking",
                     "--remote-debugging-pipe"):
        options.add_argument(argument)
    if os.geteuid() == 0:
        # Chromium has no sandbox for root.
        options.add_argument("--no-sandbox")
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(service=Driver("/usr/bin/chromedriver"), options=options)


class PageCase(SimulatorCase):
    """One browser for all tests of a class; the page is opened afresh for each."""

    @classmethod
    def setUpClass(cls):
        cls.browser = start_browser()
        cls.addClassCleanup(cls.browser.quit)

    def setUp(self):
        super().setUp()
        self.look(WIDE)
        self.open(os.environ["LEJIS_SIMULATOR_URL"])
        self.browser.get_log("browser")

    def open(self, address):
        # A page with a fragment alone in its address would not be loaded again.
        self.browser.get("about:blank")
        self.browser.get(address + "/")
        self.await_text("#connection", "Live")

    def look(self, size, scheme="light"):
        self.browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": size[0], "height": size[1], "deviceScaleFactor": 1, "mobile": False})
        self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {
            "features": [{"name": "prefers-color-scheme", "value": scheme}]})

    def submit(self, code, incident_id, url=None, organization="Millbrook"):
        """Through the library: lejis.exe under Wine."""
        content = card(incident_id).replace(">Millbrook<", f">{organization}<")
        file = self.write("a.xml", content)
        return self.expect(code, "submit", file, "--url", url or self.url)

    def post(self, path, body, headers=None):
        """The status that a plain client gets, 0 without an answer."""
        request = urllib.request.Request(os.environ["LEJIS_SIMULATOR_URL"] + path, body, headers or {})
        try:
            with urllib.request.urlopen(request, timeout=PATIENCE_SECONDS) as answer:
                return answer.status
        except urllib.error.HTTPError as error:
            with error:
                return error.code
        except OSError:
            return 0

    def submit_plainly(self, number, **more):
        """Submits without the library, which is much faster."""
        return self.post(SUBMISSION_PATH, documents.submission(documents.card(number, **more)), SUBMISSION_HEADERS)

    def search_plainly(self, words):
        return self.post(SEARCH_PATH, inquiries.search(words=words), SEARCH_HEADERS)

    def type(self, selector, text):
        field = self.find(selector)
        field.clear()
        field.send_keys(text)

    def button(self, label, within="main"):
        """The one with this text on it."""
        found = [one for one in self.all(f"{within} button, {within} a.button") if one.text == label]
        self.assertEqual(len(found), 1, label)
        return found[0]

    def find(self, selector):
        return self.browser.find_element(By.CSS_SELECTOR, selector)

    def all(self, selector):
        return self.browser.find_elements(By.CSS_SELECTOR, selector)

    def texts(self, selector):
        """What is to be seen of them, asked for at one stroke since the page may change meanwhile."""
        return self.browser.execute_script(
            "return [...document.querySelectorAll(arguments[0])].map((one) => one.innerText.trim())", selector)

    def await_text(self, selector, text):
        self.until(lambda: any(text in one for one in self.texts(selector)),
                   lambda: f"{text!r} in {selector}, which has {self.texts(selector)}")

    def await_count(self, selector, count):
        self.until(lambda: len(self.all(selector)) == count,
                   lambda: f"{count} times {selector}, which has {self.texts(selector)}")

    def until(self, condition, describe):
        try:
            WebDriverWait(self.browser, PATIENCE_SECONDS, 0.05).until(lambda _: condition())
        except Exception:
            self.fail(f"waited in vain for {describe()}")

    def click(self, selector):
        self.find(selector).click()

    def press(self, *keys):
        """To whatever has the focus."""
        for key in keys:
            self.browser.switch_to.active_element.send_keys(key)

    def focused(self, attribute):
        return self.browser.switch_to.active_element.get_attribute(attribute)

    def tab_to(self, attribute, value):
        """Moves there by the Tab key alone. Returns what was passed, each of which must show that it has the focus."""
        passed = []
        for _ in range(120):
            if self.focused(attribute) == value:
                return passed
            self.press(Keys.TAB)
            passed.append(self.focused("id") or self.focused("aria-label") or self.focused("className"))
            self.assertTrue(self.shows_focus(), passed[-1])
        self.fail(f"the Tab key does not lead to {attribute}={value}, but past {passed}")

    def shows_focus(self):
        return self.browser.execute_script("""
            const one = document.activeElement;
            if (one === document.body) return true;
            const {outlineStyle, outlineWidth} = getComputedStyle(one);
            return outlineStyle !== "none" && parseFloat(outlineWidth) >= 2;""")
