"""The ledger of lejis submit and delete, and its summary."""
import hashlib
import json
import resource
import subprocess
import unittest

from lejis_case import BOTH, DONE, REFUSED, RUNNER, TIME_LIMIT, TRY_AGAIN, SimulatorCase, card

MEMBERS = ["command", "url", "file", "digest", "ori", "number", "outcome", "tryAgain", "error", "errors", "warnings",
           "start", "seconds"]


class LedgerCase(SimulatorCase):
    def setUp(self):
        super().setUp()
        self.ledger = self.folder / "night.ledger"

    def submit(self, code, *arguments):
        return self.expect(code, "submit", *arguments, "--url", self.url, "--ledger", "night.ledger")

    def entries(self):
        return [json.loads(line) for line in self.ledger.read_text(encoding="ascii").splitlines()]

    def posts(self):
        return len([exchange for exchange in self.exchanges() if exchange["method"] == "POST"])


class LedgerTest(LedgerCase):
    def test_each_try_is_a_line_with_all_there_is_to_know(self):
        self.write("a.xml", card("2024-1", charge="9999"))
        self.write("b.xml", "<a>")
        self.write("c.xml", card("2024-3"))
        self.submit(REFUSED, "a.xml", "b.xml")
        self.play(kind="http-status", status=502)
        self.submit(TRY_AGAIN, "c.xml")
        submitted, unreadable, unknown = self.entries()
        self.assertEqual([list(entry) for entry in (submitted, unreadable, unknown)], [MEMBERS] * 3)
        self.assertEqual(submitted["digest"],
                         "sha256:" + hashlib.sha256((self.folder / "a.xml").read_bytes()).hexdigest())
        self.assertTrue(submitted["file"].endswith("\\a.xml"), submitted)
        self.assertEqual(submitted["url"], self.url)
        self.assertEqual((submitted["command"], submitted["ori"], submitted["number"], submitted["outcome"]),
                         ("submit", "PA0990100", "2024-1", "submitted"))
        self.assertEqual((submitted["error"], submitted["errors"], len(submitted["warnings"])), (None, [], 1))
        self.assertRegex(submitted["start"], r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z$")
        self.assertEqual((unreadable["outcome"], unreadable["number"], unreadable["tryAgain"]), ("not sent", "", False))
        self.assertEqual((unknown["outcome"], unknown["number"], unknown["tryAgain"]), ("unknown", "2024-3", True))
        self.assertNotEqual(unknown["error"], None)

    def test_what_was_submitted_with_the_same_content_is_left_out(self):
        self.write("a.xml", card("2024-1"))
        self.write("b.xml", card("2024-2"))
        self.play(kind="http-status", status=502)
        self.submit(TRY_AGAIN, "a.xml", "b.xml")
        self.assertEqual((self.indexed(), self.posts()), (["2024-2"], 2))
        self.assertEqual(self.submit(DONE, "a.xml", "b.xml"),
                         "a.xml  submitted\nb.xml  submitted before\n\n2 files: 1 submitted, 1 submitted before.\n")
        self.assertEqual((self.indexed(), self.posts()), (["2024-1", "2024-2"], 3))
        self.write("b.xml", card("2024-2", charge="2203"))
        self.submit(DONE, "a.xml", "b.xml")
        self.assertEqual(self.posts(), 4)

    def test_what_one_server_holds_is_submitted_to_another_all_the_same(self):
        self.write("a.xml", card("2024-1"))
        self.submit(DONE, "a.xml")
        first, self.url = self.url, self.url.replace("127.0.0.1", "localhost")
        self.submit(DONE, "a.xml")
        self.assertEqual(([entry["url"] for entry in self.entries()], self.posts()), ([first, self.url], 2))
        output = self.expect(DONE, "ledger", "night.ledger")
        self.assertTrue(output.startswith("2 incidents in 2 tries: 2 submitted.\n"), output)

    def test_an_earlier_content_is_submitted_again_after_a_later_one(self):
        for charge in ("2202", "2203", "2202"):
            self.write("a.xml", card(charge=charge))
            self.submit(DONE, "a.xml")
        self.assertEqual(self.posts(), 3)

    def test_what_was_withdrawn_since_is_submitted_again(self):
        self.write("a.xml", card("2024-1"))
        self.submit(DONE, "a.xml")
        self.expect(DONE, "delete", "--ori", "PA0990100", "--id", "2024-1", "--submitted", "2024-03-11",
                    "--url", self.url, "--ledger", "night.ledger")
        self.submit(DONE, "a.xml")
        self.assertEqual((self.indexed(), self.posts()), (["2024-1"], 3))

    def test_what_another_file_has_replaced_since_is_submitted_again(self):
        self.write("a.xml", card("2024-1"))
        self.write("b.xml", card("2024-1", charge="2203"))
        for name in ("a.xml", "b.xml", "a.xml"):
            self.submit(DONE, name)
        self.assertEqual(self.posts(), 3)

    def test_copies_of_a_file_stand_for_each_other(self):
        for name in ("a.xml", "b.xml"):
            self.write(name, card("2024-1"))
        self.submit(DONE, "a.xml", "b.xml")
        self.submit(DONE, "a.xml", "b.xml")
        self.assertEqual(self.posts(), 2)

    def test_a_withdrawal_that_was_not_waited_for_may_have_been_carried_out(self):
        self.write("a.xml", card("2024-1"))
        self.submit(DONE, "a.xml")
        self.play(kind="slow", seconds=8)
        self.expect(TRY_AGAIN, "delete", "a.xml", "--url", self.url, "--ledger", "night.ledger", "--timeout", "3")
        _, withdrawal = self.entries()
        self.assertEqual((withdrawal["outcome"], withdrawal["ori"], withdrawal["number"]),
                         ("unknown", "PA0990100", "2024-1"))
        self.assertRegex(withdrawal["digest"] + withdrawal["start"], r"^sha256:[0-9a-f]{64}\d{4}-.*Z$")
        self.submit(DONE, "a.xml")
        self.assertEqual([entry["outcome"] for entry in self.entries()], ["submitted", "unknown", "submitted"])

    def test_a_ledger_that_fails_on_the_way_ends_the_run_with_one_summary(self):
        for name in "abcde":
            self.write(f"{name}.xml", card(f"2024-{name}"))
        # Blank lines leave so little room that the write of the first entry breaks off in its midst.
        limit = 20_000
        self.ledger.write_bytes(b"\n" * (limit - 100))
        command = [RUNNER, self.lejis_program(), "submit", "*.xml", "--url", self.url, "--ledger", "night.ledger",
                   "--json"]
        # Python ignores the signal of a file that is too large, and lejis.exe inherits that.
        run = subprocess.run(command, cwd=self.folder, stdin=subprocess.DEVNULL, capture_output=True,
                             timeout=TIME_LIMIT, restore_signals=False, check=False,
                             preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))
        incident, last = map(json.loads, run.stdout.splitlines())
        self.assertEqual((run.returncode, last["exitCode"], incident["outcome"]), (BOTH, BOTH, "submitted"))
        self.assertEqual((last["error"]["kind"], last["counts"]["notBegun"]), ("stopped", 4))
        self.assertIn("The ledger night.ledger cannot be written: ", last["error"]["message"])

    def test_a_last_line_cut_short_is_passed_over(self):
        self.write("a.xml", card("2024-1"))
        self.write("b.xml", card("2024-2"))
        self.submit(DONE, "a.xml", "b.xml")
        whole = self.ledger.read_bytes()
        self.ledger.write_bytes(whole[:-30])
        output = self.submit(DONE, "a.xml", "b.xml")
        self.assertIn("a.xml  submitted before\nb.xml  submitted\n", output)
        self.assertIn("1 line cut short and passed over.\n", self.expect(DONE, "ledger", "night.ledger"))
        # The next run's first line begins in a line of its own.
        self.assertEqual(json.loads(self.ledger.read_bytes().splitlines()[-1])["number"], "2024-2")

    def test_a_ledger_serves_one_run_at_a_time(self):
        self.write("a.xml", card())
        command = [RUNNER, self.lejis_program(), "submit", "a.xml", "--url", self.url, "--ledger", "night.ledger"]
        self.play(kind="slow", seconds=8)
        with subprocess.Popen(command, cwd=self.folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL) as first:
            self.await_fault()
            run = self.lejis("submit", "a.xml", "--url", self.url, "--ledger", "night.ledger")
            self.assertEqual(first.wait(TIME_LIMIT), DONE)
        self.assertEqual(run, (REFUSED, "", "lejis: The ledger night.ledger is in use by another run.\n"))

    def test_a_ledger_that_cannot_be_written_stops_the_run_before_anything_is_sent(self):
        self.write("a.xml", card())
        run = self.lejis("submit", "a.xml", "--url", self.url, "--ledger", "nowhere\\night.ledger")
        self.assertEqual((run.code, run.output), (REFUSED, ""))
        self.assertIn("The ledger nowhere\\night.ledger cannot be opened: ", run.complaint)
        self.assertEqual(self.posts(), 0)


class SummaryTest(LedgerCase):
    def setUp(self):
        super().setUp()
        self.write("a.xml", card("2024-1"))
        self.write("b.xml", card("2024-2", zip_code="1709"))
        self.write("c.xml", card("2024-3"))
        self.write("d.xml", card("2024-4"))
        self.play(kind="response-code", text="100 core offline", count=2)
        self.submit(BOTH, "a.xml", "b.xml", "c.xml", "d.xml")

    def test_failures_are_grouped_by_message_and_the_most_frequent_comes_first(self):
        output = self.expect(BOTH, "ledger", "night.ledger")
        start = ("4 incidents in 4 tries: 1 refused, 1 submitted, 2 unknown.\n\n"
                 "  ! 2 unknown: LEJIS server is up, but LEJIS core system is offline.\n")
        self.assertTrue(output.startswith(start), output)
        self.assertRegex(output, r"offline\.\n      .*\\a\.xml\n      .*\\c\.xml\n"
                                 r"  ! 1 refused: Main record: '1709' is not a valid ZIP code\."
                                 r"(.|\n)*blank\.\n      .*\\b\.xml\n$")

    def test_only_the_last_try_counts(self):
        self.submit(REFUSED, "a.xml", "b.xml", "c.xml", "d.xml")
        summary = json.loads(self.expect(REFUSED, "ledger", "night.ledger", "--json"))
        self.assertEqual((summary["incidents"], summary["tries"], summary["unreadableLines"]), (4, 7, 0))
        self.assertEqual(summary["outcomes"], {"refused": 1, "submitted": 3})
        (failure,) = summary["failures"]
        self.assertEqual((failure["outcome"], len(failure["names"])), ("refused", 1))

    def test_incidents_from_standard_input_are_told_apart_by_their_content(self):
        for number in ("2024-8", "2024-9"):
            subprocess.run([RUNNER, self.lejis_program(), "submit", "-", "--url", self.url, "--ledger", "other.ledger"],
                           input=card(number).encode(), cwd=self.folder, capture_output=True, timeout=TIME_LIMIT,
                           check=True)
        output = self.expect(DONE, "ledger", "other.ledger")
        self.assertTrue(output.startswith("2 incidents in 2 tries: 2 submitted.\n"), output)

    def test_a_ledger_that_is_not_there(self):
        run = self.lejis("ledger", "none.ledger")
        self.assertEqual(run, (REFUSED, "", "lejis: The ledger none.ledger cannot be read.\n"))


if __name__ == "__main__":
    unittest.main()
