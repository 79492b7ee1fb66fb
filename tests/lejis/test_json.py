"""--json: one document on the output, or an object a line, and nothing beside it, whatever happens."""
import json
import os
import unittest

from lejis_case import BOTH, DONE, REFUSED, SAMPLES, TRY_AGAIN, WRONG_USAGE, SimulatorCase, card

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
    def lines(self, code, *arguments):
        """The line of each incident, and the last one."""
        output = self.expect(code, *arguments, "--json")
        self.assertTrue(output.isascii(), output)
        *incidents, last = map(json.loads, output.splitlines())
        self.assertEqual(list(last), ["command", "exitCode", "error", "counts", "seconds"])
        self.assertEqual((last["command"], last["exitCode"], last["error"]), (arguments[0], code, None))
        return incidents, last

    def test_every_outcome_has_its_word_and_is_counted(self):
        self.write("good.xml", card("2024-1"))
        self.write("warned.xml", card("2024-2", charge="9999"))
        self.write("bad.xml", card("2024-3", zip_code="1709"))
        self.write("none.xml", "<a>")
        incidents, last = self.lines(REFUSED, "submit", "good.xml", "warned.xml", "bad.xml", "none.xml",
                                     "--url", self.url)
        self.assertEqual([(one["name"], one["number"], one["outcome"], len(one["errors"]), len(one["warnings"]))
                          for one in incidents],
                         [("good.xml", "2024-1", "submitted", 0, 0), ("warned.xml", "2024-2", "submitted", 0, 1),
                          ("bad.xml", "2024-3", "refused", 1, 0), ("none.xml", None, "not sent", 1, 0)])
        self.assertEqual(last["counts"], {"done": 2, "refused": 1, "notSent": 1, "unknown": 0, "leftOut": 0,
                                          "notBegun": 0, "withWarnings": 1})
        self.assertIn("Charge NCIC code '9999'", incidents[1]["warnings"][0])

    def test_what_can_be_tried_again(self):
        self.write("a.xml", card())
        self.play(kind="http-status", status=502)
        (incident,), _ = self.lines(TRY_AGAIN, "submit", "a.xml", "--url", self.url)
        self.assertEqual((incident["outcome"], incident["tryAgain"]), ("unknown", True))
        self.assertIn("send it again", incident["advice"])
        # Lines of a text stay lines of it.
        self.assertIn("\n", incident["errors"][0].replace("\r\n", "\n"))

    def test_both_kinds_of_failures(self):
        self.write("a.xml", card("2024-1"))
        self.write("b.xml", card("2024-2", zip_code="1709"))
        self.play(kind="http-status", status=502)
        incidents, _ = self.lines(BOTH, "submit", "a.xml", "b.xml", "--url", self.url)
        self.assertEqual([(one["outcome"], one["tryAgain"]) for one in incidents],
                         [("unknown", True), ("refused", False)])

    def test_check_and_delete(self):
        self.assertEqual(self.lines(DONE, "check", SAMPLES / "burglary.xml")[1]["counts"]["done"], 1)
        (named,), _ = self.lines(DONE, "delete", "--ori", "PA0990100", "--id", "2024-1", "--submitted", "2024-03-09",
                                 "--url", self.url)
        self.assertEqual((named["name"], named["outcome"]), ("PA0990100 2024-1", "withdrawn"))

    def test_any_text_arrives_as_it_is(self):
        self.write("a.xml", card())
        self.play(kind="soap-fault", message=STRANGE)
        (incident,), _ = self.lines(REFUSED, "submit", "a.xml", "--url", self.url)
        self.assertEqual(incident["errors"], [STRANGE])


class SearchTest(JsonCase):
    def setUp(self):
        super().setUp()
        self.search_url = os.environ["LEJIS_SIMULATOR_URL"] + "/lejis-core-Rev01/services/search"
        self.expect(DONE, "submit", SAMPLES / "international.xml", SAMPLES / "vehicle-theft.xml", "--url", self.url)

    def search(self, code, *arguments):
        return self.document(code, "search", *arguments, "--user", "jtester", "--url", self.search_url)

    def test_what_was_found(self):
        (incident,) = self.search(DONE, "--surname", "REESE")["incidents"]
        self.assertEqual(list(incident),
                         ["agency", "incident", "date", "charge", "place", "persons", "vehicles", "card"])
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
                          version["library"]["file"], f"LEJIS host: {version['library']['lejisHost']}"], lines)
        self.assertEqual(self.document(DONE, "submit", "--help")["text"], self.expect(DONE, "submit", "--help"))

    def test_the_doctor(self):
        document = self.document(DONE, "doctor", "--url", self.url, folder=os.environ["LEJIS_SIMULATOR_SCHEMAS"])
        self.assertEqual([finding["health"] for finding in document["findings"] if finding["cure"]].count("ok"), 0)
        self.assertIn("Library in use", [finding["subject"] for finding in document["findings"]])


if __name__ == "__main__":
    unittest.main()
