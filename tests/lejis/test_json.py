"""--json: one document on the output and nothing beside it, whatever happens."""
import json
import os
import unittest

from lejis_case import DONE, REFUSED, SAMPLES, TRY_AGAIN, WRONG_USAGE, SimulatorCase, card

STRANGE = "M\u00fcller \u4e2d \U0001d11e \"\\ \u007f"


class JsonCase(SimulatorCase):
    def document(self, code, *arguments, **options):
        output = self.expect(code, *arguments, "--json", **options)
        self.assertTrue(output.isascii(), output)
        document = json.loads(output)
        self.assertEqual(list(document)[:3], ["command", "exitCode", "error"])
        self.assertEqual(document["exitCode"], code)
        return document


class IncidentsTest(JsonCase):
    def test_every_result_has_its_name_and_is_counted(self):
        self.write("good.xml", card("2024-1"))
        self.write("warned.xml", card("2024-2", charge="9999"))
        self.write("bad.xml", card("2024-3", zip_code="1709"))
        self.write("none.xml", "<a>")
        document = self.document(REFUSED, "submit", "good.xml", "warned.xml", "bad.xml", "none.xml", "--url", self.url)
        self.assertEqual((document["command"], document["error"]), ("submit", None))
        self.assertEqual([(one["name"], one["result"], len(one["errors"]), len(one["warnings"]))
                          for one in document["incidents"]],
                         [("good.xml", "done", 0, 0), ("warned.xml", "done", 0, 1), ("bad.xml", "refused", 1, 0),
                          ("none.xml", "unreadable", 1, 0)])
        self.assertEqual(document["counts"],
                         {"done": 2, "refused": 1, "unreadable": 1, "tryAgain": 0, "withWarnings": 1})
        self.assertIn("Charge NCIC code '9999'", document["incidents"][1]["warnings"][0])

    def test_what_can_be_tried_again(self):
        self.write("a.xml", card())
        self.play(kind="http-status", status=502)
        document = self.document(TRY_AGAIN, "submit", "a.xml", "--url", self.url)
        self.assertEqual(document["incidents"][0]["result"], "tryAgain")
        # Lines stay lines.
        self.assertIn("\n", document["incidents"][0]["errors"][0].replace("\r\n", "\n"))

    def test_check_and_delete(self):
        self.assertEqual(self.document(DONE, "check", SAMPLES / "burglary.xml")["counts"]["done"], 1)
        named = self.document(DONE, "delete", "--ori", "PA0990100", "--id", "2024-1", "--submitted", "2024-03-09",
                              "--url", self.url)
        self.assertEqual((named["command"], [one["name"] for one in named["incidents"]]),
                         ("delete", ["PA0990100 2024-1"]))

    def test_any_text_arrives_as_it_is(self):
        self.write("a.xml", card())
        self.play(kind="soap-fault", message=STRANGE)
        document = self.document(REFUSED, "submit", "a.xml", "--url", self.url)
        self.assertEqual(document["incidents"][0]["errors"], [STRANGE])


class SearchTest(JsonCase):
    def setUp(self):
        super().setUp()
        self.search_url = os.environ["LEJIS_SIMULATOR_URL"] + "/lejis-core-Rev01/services/search"
        self.expect(DONE, "submit", SAMPLES / "international.xml", SAMPLES / "vehicle-theft.xml", "--url", self.url)

    def search(self, code, *arguments):
        return self.document(code, "search", *arguments, "--user", "jtester", "--url", self.search_url)

    def test_what_was_found(self):
        (incident,) = self.search(DONE, "--surname", "REESE")["incidents"]
        self.assertEqual(list(incident), ["agency", "incident", "date", "charge", "place", "persons", "vehicles"])
        self.assertEqual(len(incident["vehicles"]), 2)

    def test_nothing_was_found(self):
        document = self.search(DONE, "--surname", "NOBODYATALL")
        self.assertEqual((document["error"], document["incidents"]), (None, []))

    def test_failures(self):
        self.play(kind="soap-fault", message=STRANGE, target="search")
        document = self.search(REFUSED, "--zip", "17098")
        self.assertEqual(document["error"], {"kind": "refused", "message": STRANGE})
        self.play(kind="http-status", status=502, target="search")
        self.assertEqual(self.search(TRY_AGAIN, "--zip", "17098")["error"]["kind"], "tryAgain")


class OthersTest(JsonCase):
    def test_what_makes_no_sense(self):
        for arguments, command in (((), None), (("send",), None), (("check",), "check"), (("search",), "search"),
                                   (("search", "--xml"), "search"), (("doctor", "x"), "doctor")):
            with self.subTest(arguments):
                document = self.document(WRONG_USAGE, *arguments)
                self.assertEqual((document["command"], document["error"]["kind"]), (command, "usage"))

    def test_version_and_help(self):
        version = self.document(DONE, "--version")
        lines = self.expect(DONE, "--version").splitlines()
        self.assertEqual([f"lejis {version['lejis']}", f"TVLejisCore {version['library']['version']}",
                          version["library"]["file"]], lines)
        self.assertEqual(self.document(DONE, "submit", "--help")["text"], self.expect(DONE, "submit", "--help"))

    def test_the_doctor(self):
        document = self.document(DONE, "doctor", "--url", self.url, folder=os.environ["LEJIS_SIMULATOR_SCHEMAS"])
        self.assertEqual([finding["health"] for finding in document["findings"] if finding["cure"]].count("ok"), 0)
        self.assertIn("Library in use", [finding["subject"] for finding in document["findings"]])


if __name__ == "__main__":
    unittest.main()
