"""lejis doctor: the user's settings for debug dumps and for the proxy."""
import json
import os
import unittest
from pathlib import Path

from doctor_case import DUMPS, FLAGS, DoctorCase, dump_folders
from lejis_case import DONE, PROJECT, REFUSED, TRY_AGAIN
from registration import reg, set_value, use_proxy
from small_server import Proxy

VARIABLES = ("LEJIS_URL", "LEJIS_SEARCH_URL", "LEJIS_USER")


class DumpsTest(DoctorCase):
    def set_flag(self, text, kind="REG_SZ"):
        reg("add", FLAGS, "/v", "DebugLejis", "/t", kind, "/d", text, "/f")

    def setUp(self):
        super().setUp()
        set_value(self, FLAGS, "DebugLejis", "N")

    @staticmethod
    def make_dump_folder():
        users = Path(os.environ["WINEPREFIX"], "drive_c", "users")
        (local,) = (folder / "AppData" / "Local" for folder in users.iterdir() if folder.name != "Public")
        folder = local / "TalvexSuite" / "Diagnostics"
        folder.mkdir(parents=True, exist_ok=True)
        return folder

    def test_dumps_that_are_on(self):
        self.set_flag("Y")
        health, text = self.findings(DONE)["Debug dumps"]
        self.assertEqual(health, "warning")
        self.assertRegex(text, r"personal data, are written to C:\\.*\\TalvexSuite\\Diagnostics\nSet DebugLejis to ")

    def test_values_that_look_like_on_and_mean_off(self):
        for text, kind, written in (("y", "REG_SZ", '"y"'), ("Yes", "REG_SZ", '"Yes"'), ("1", "REG_SZ", '"1"'),
                                    ("Y ", "REG_SZ", '"Y "'), ("true", "REG_SZ", '"true"'),
                                    ("1", "REG_DWORD", "the number 1")):
            with self.subTest(text, kind=kind):
                self.set_flag(text, kind)
                health, words = self.findings(DONE)["Debug dumps"]
                self.assertEqual(health, "warning")
                self.assertTrue(words.startswith(f"off for this user, though DebugLejis is {written}: only"), words)

    def test_values_that_mean_off(self):
        for text, kind in (("N", "REG_SZ"), ("", "REG_SZ"), ("0", "REG_SZ"), ("off", "REG_SZ"), ("0", "REG_DWORD")):
            with self.subTest(text, kind=kind):
                self.set_flag(text, kind)
                self.assertEqual(self.findings(DONE)["Debug dumps"], ("ok", "off for this user"))

    def test_files_that_are_left(self):
        folder = self.make_dump_folder()
        self.addCleanup(self.remove_dumps)
        for name in DUMPS:
            (folder / name).write_text("<a/>", encoding="ascii")
            health, text = self.findings(DONE)["Dump files"]
            self.assertEqual(health, "warning")
            self.assertRegex(text, rf"^with personal data in C:\\.*\\Diagnostics: .*{name}\nDelete them")

    def test_it_makes_no_folder_for_them(self):
        for folder in dump_folders():
            folder.rmdir()
        for flag in "NY":
            self.set_flag(flag)
            self.assertEqual(self.findings(DONE)["Dump files"], ("ok", "none are there"))
            self.assertEqual(dump_folders(), [])

    def test_it_knows_the_files_that_the_guide_names(self):
        guide = (PROJECT / "docs" / "debug-dumps.md").read_text(encoding="utf-8")
        self.assertEqual({line.split("`")[1] for line in guide.splitlines() if line.startswith("| `Lejis")}, set(DUMPS))


class EnvironmentTest(DoctorCase):
    ADDRESS = "http://127.0.0.1:1/nobody"

    def test_variables_that_are_not_set_have_one_line(self):
        found = self.findings(DONE, environment=dict.fromkeys(VARIABLES, ""))
        self.assertEqual(found["Environment"], ("ok", "LEJIS_URL, LEJIS_SEARCH_URL and LEJIS_USER are not set"))
        self.assertEqual(set(VARIABLES) & set(found), set())

    def test_each_that_is_set_is_told_with_its_value_and_used(self):
        found = self.findings(TRY_AGAIN, environment={"LEJIS_SEARCH_URL": self.ADDRESS, "LEJIS_USER": "jdoe"})
        self.assertEqual(found["LEJIS_SEARCH_URL"], ("ok", f"{self.ADDRESS} (used because --search-url is not given)"))
        self.assertEqual(found["LEJIS_USER"], ("ok", "jdoe (not for the doctor; other commands use it where --user is "
                                                     "not given)"))
        self.assertEqual(found["Environment"], ("ok", "LEJIS_URL is not set"))
        self.assertEqual(found["Search server"][0], "failed")

    def test_an_option_wins_and_the_variable_is_told_not_to_count(self):
        found = self.findings(TRY_AGAIN, "--url", self.ADDRESS, environment={"LEJIS_URL": "nonsense"})
        self.assertEqual(found["LEJIS_URL"], ("ok", "nonsense (not used because --url is given)"))
        self.assertIn("takes no connection", found["Submission server"][1])
        all_set = self.findings(REFUSED, environment=dict.fromkeys(VARIABLES, "nonsense"))
        self.assertIn("'nonsense' is no address", all_set["Submission server"][1])
        self.assertIn("'nonsense' is no address", all_set["Search server"][1])
        self.assertNotIn("Environment", all_set)

    def test_json_has_them_among_the_findings(self):
        document = json.loads(self.expect(DONE, "doctor", "--json", environment={"LEJIS_USER": "jdoe"}))
        texts = {finding["subject"]: finding["text"] for finding in document["findings"]}
        self.assertTrue(texts["LEJIS_USER"].startswith("jdoe (not for the doctor"), texts)
        self.assertEqual(texts["Environment"], "LEJIS_URL and LEJIS_SEARCH_URL are not set")


class ProxyTest(DoctorCase):
    def test_none(self):
        self.assertEqual(self.findings(DONE)["Proxy"], ("ok", "none for this user"))

    def test_it_is_named_with_its_exceptions(self):
        use_proxy(self, "proxy.example:8080", "<local>;*.police.example")
        self.assertEqual(self.findings(DONE)["Proxy"],
                         ("ok", "proxy.example:8080, except for <local>;*.police.example"))

    def test_one_that_works(self):
        with Proxy() as proxy:
            use_proxy(self, proxy.name)
            found = self.in_schemas(DONE, "--url", self.url)
        self.assertEqual((found["Proxy"], found["Submission server"]), (("ok", proxy.name), ("ok", "reached")))
        self.assertIn(self.url + "?wsdl", proxy.passed)

    def test_a_dead_one_is_the_cause(self):
        use_proxy(self, "127.0.0.1:1")
        found = self.findings(TRY_AGAIN, "--url", self.url)
        self.expect_failure(found, "Submission server",
                            "^not reached: the proxy 127.0.0.1:1 takes no connection\nSee that the proxy runs")

    def test_a_server_that_is_down_is_not_blamed_on_a_proxy_that_may_be_passed_by(self):
        use_proxy(self, "127.0.0.1:1", "127.0.0.1")
        found = self.findings(TRY_AGAIN, "--url", "http://127.0.0.1:2/submission")
        health, text = found["Submission server"]
        self.assertEqual(health, "failed")
        self.assertRegex(text, "^not reached: the machine takes no connection at this port; the proxy 127.0.0.1:1, "
                               "where it is used, takes no connection\nSee that the LEJIS Interface runs")
        self.assertNotIn("See that the proxy runs", text)

    def test_a_dead_one_for_this_scheme_is_the_cause(self):
        use_proxy(self, "https=proxy.example:8080;http=127.0.0.1:1")
        found = self.findings(TRY_AGAIN, "--url", self.url)
        self.expect_failure(found, "Submission server", "^not reached: the proxy 127.0.0.1:1 takes no connection")


if __name__ == "__main__":
    unittest.main()
