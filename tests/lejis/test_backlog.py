"""Long lists: which files are taken, workers, retries, pace and time limits."""
import json
import socket
import subprocess
import threading
import time
import unittest
from datetime import datetime
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

from lejis_case import (BOTH, DONE, REFUSED, RUNNER, TIME_LIMIT, TRY_AGAIN, WRONG_USAGE, LejisCase, SimulatorCase, card)

NOBODY = "http://127.0.0.1:1/submission"


class FilesTest(LejisCase):
    def setUp(self):
        super().setUp()
        for name in ("one/b.xml", "one/deep/er/a.xml", "one/notes.txt", "c.xml"):
            (self.folder / name).parent.mkdir(parents=True, exist_ok=True)
            self.write(name, card())

    def taken(self, *arguments, code=DONE, **options):
        output = self.expect(code, "check", *arguments, "--json", **options)
        return [json.loads(line)["name"] for line in output.splitlines()[:-1]]

    def test_a_folder_stands_for_all_incident_files_in_it_and_below(self):
        self.assertEqual(self.taken("--recurse", "one"), ["one\\b.xml", "one\\deep\\er\\a.xml"])
        self.assertEqual(self.taken("--recurse", "one\\", "c.xml"), ["one\\b.xml", "one\\deep\\er\\a.xml", "c.xml"])

    def test_a_pattern_is_looked_for_in_the_folders_below(self):
        self.assertEqual(self.taken("--recurse", "*.xml"), ["c.xml", "one\\b.xml", "one\\deep\\er\\a.xml"])
        self.assertEqual(self.taken("--recurse", "one\\a*"), ["one\\deep\\er\\a.xml"])

    def test_a_link_to_a_folder_above_is_not_followed(self):
        (self.folder / "one" / "loop").symlink_to(self.folder, target_is_directory=True)
        self.assertNotIn("loop", "".join(self.taken("--recurse", "one")))

    def test_a_file_that_is_named_twice_goes_once(self):
        whole = f"Z:{self.folder}\\c.xml".replace("/", "\\")
        self.assertEqual(self.taken("c.xml", "one/b.xml", "C.XML", ".\\c.xml", "c*", whole, "one\\b.xml"),
                         ["c.xml", "one/b.xml"])

    def test_a_folder_that_may_not_be_read_ends_the_run_before_it_begins(self):
        # Were it passed over, the list would be shorter and nobody would know.
        closed = self.folder / "one" / "deep"
        self.addCleanup(closed.chmod, 0o700)
        closed.chmod(0)
        run = self.lejis("check", "--recurse", "one", "c.xml", restrained=True)
        self.assertEqual((run.code, run.output), (REFUSED, ""))
        self.assertRegex(run.complaint, r"^lejis: The folder one\\deep\\ cannot be read: Access denied\.\n$")

    def test_a_pattern_goes_by_long_names(self):
        # The short names of these end in .XML.
        for name in ("c.xml~", "c.xml_old", "c.xmlx"):
            self.write(name, card())
        self.assertEqual(self.taken("*.xml"), ["c.xml"])
        self.assertEqual(self.taken("C.X?L"), ["c.xml"])
        self.assertEqual(self.taken("c.???"), ["c.xml"])
        self.assertEqual(self.taken("c.xml*"), ["c.xml", "c.xml_old", "c.xmlx", "c.xml~"])
        self.assertEqual(self.taken("*.*"), ["c.xml", "c.xml_old", "c.xmlx", "c.xml~"])

    def test_a_folder_without_incident_files_is_told_by_its_pattern(self):
        (self.folder / "empty").mkdir()
        self.assertEqual(self.expect(REFUSED, "check", "--recurse", "empty"),
                         "empty\\*.xml  unreadable\n  ! No file matches this pattern.\n")

    def test_names_longer_than_windows_takes_without_a_prefix(self):
        folder = self.folder.joinpath("deep", *["x" * 50] * 6)
        folder.mkdir(parents=True)
        (folder / "long.xml").write_text(card(), encoding="utf-8")
        (name,) = self.taken("--recurse", "deep")
        self.assertTrue(name.endswith("x\\long.xml"), name)
        self.assertEqual(self.taken(name), [name])

    def test_a_list_names_files_and_patterns(self):
        text = "c.xml\r\n\r\n  one\\*.xml  \nM\u00fcller.xml\n"
        self.write("M\u00fcller.xml", card())
        for content in (*map(text.encode, ("utf-8", "utf-8-sig", "utf-16")), b"\xfe\xff" + text.encode("utf-16-be")):
            self.write("list.txt", content)
            self.assertEqual(self.taken("@list.txt"), ["c.xml", "one\\b.xml", "M\u00fcller.xml"])

    def test_a_list_in_another_encoding_is_not_guessed_at(self):
        for content in ("M\u00fcller.xml".encode("cp437"), "c.xml\n".encode("utf-16-le")):
            self.write("list.txt", content)
            run = self.lejis("check", "@list.txt")
            self.assertEqual((run.code, run.output), (REFUSED, ""))
            self.assertEqual(run.complaint, "lejis: The list list.txt cannot be read. It is neither UTF-8 nor UTF-16 "
                             "with a byte order mark. In the command prompt, chcp 65001 before dir /b makes it "
                             "UTF-8.\n")

    def test_a_list_that_names_nothing(self):
        self.write("list.txt", "\r\n  \r\n")
        run = self.lejis("check", "@list.txt")
        self.assertEqual(run, (REFUSED, "", "lejis: The list names no file.\n"))

    def test_a_list_that_cannot_be_read(self):
        run = self.lejis("check", "@none.txt")
        self.assertEqual((run.code, run.output), (REFUSED, ""))
        self.assertEqual(run.complaint, "lejis: The list none.txt cannot be read. There is no such file.\n")

    def test_standard_input(self):
        run = subprocess.run([RUNNER, self.lejis_program(), "check", "-"], input=card().encode(), capture_output=True,
                             timeout=TIME_LIMIT, check=False)
        self.assertEqual((run.returncode, run.stdout), (DONE, b"-  fit for submission\r\n"))
        self.assertEqual(self.expect(REFUSED, "check", "-"), "-  unreadable\n  ! Standard input is empty.\n")


class SettingsTest(LejisCase):
    def test_numbers_out_of_their_bounds_are_refused(self):
        for option, least, most in (("--jobs", 1, 32), ("--retry", 0, 100), ("--stop-after", 1, 1000000),
                                    ("--rate", 1, 1000), ("--timeout", 1, 86400)):
            for value in (str(least - 1), str(most + 1), "x", ""):
                run = self.lejis("submit", "a.xml", "--url", "u", option, value)
                self.assertEqual((run.code, run.complaint.splitlines()[0]),
                                 (WRONG_USAGE,
                                  f"lejis: {option}: '{value}' is not a whole number from {least} to {most}"))

    def test_a_check_neither_retries_nor_has_a_ledger(self):
        for option in ("--retry", "--ledger", "--rate", "--timeout", "--stop-after"):
            self.assertIn(f"unknown option {option}", self.lejis("check", "a.xml", option, "1").complaint)


class MeetingPoint(ThreadingHTTPServer):
    """Holds the first requests until the wanted number has come, then answers them; counts all requests."""

    daemon_threads = True

    def __init__(self, count):
        super().__init__(("127.0.0.1", 0), Guest)
        self.meeting = threading.Barrier(count)
        self.url = f"http://127.0.0.1:{self.server_address[1]}/submission"


class Guest(BaseHTTPRequestHandler):
    def do_POST(self):
        self.rfile.read(int(self.headers["Content-Length"]))
        try:
            self.server.meeting.wait(TIME_LIMIT / 2)
            self.send_response(403, "All are here")
        except threading.BrokenBarrierError:
            self.send_response(403, "Alone")
        self.end_headers()

    def log_message(self, *_):
        pass


class WorkersTest(SimulatorCase):
    def serve(self, server):
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        return server.url

    def write_many(self, count):
        for number in range(count):
            self.write(f"{number:02}.xml", card(f"2024-{number}"))

    def test_so_many_incidents_are_under_way_at_a_time(self):
        self.write_many(8)
        output = self.expect(REFUSED, "submit", "*.xml", "--url", self.serve(MeetingPoint(8)), "--jobs", "8")
        self.assertEqual(output.count("  ! All are here\n"), 8, output)

    def test_all_arrive_once_whatever_the_number_of_workers(self):
        self.write_many(40)
        self.expect(DONE, "submit", "*.xml", "--url", self.url, "--jobs", "32")
        self.assertEqual(len(self.index()), 40)
        self.assertEqual(len(self.exchanges()), 40)

    def test_results_are_whole_and_numbered_in_the_order_of_their_ends(self):
        self.write_many(12)
        lines = self.expect(DONE, "submit", "*.xml", "--url", self.url, "--jobs", "4").splitlines()
        self.assertEqual([line.split("]")[0] for line in lines[:12]], [f"[{number:2}/12" for number in range(1, 13)])
        self.assertEqual(sorted(line.split("]")[1] for line in lines[:12]),
                         [f" {number:02}.xml  submitted" for number in range(12)])
        self.assertEqual(lines[13], "12 files: 12 submitted.")

    def test_a_quiet_run_tells_programs_only_what_did_not_go_through_or_has_warnings(self):
        self.write_many(3)
        self.write("bad.xml", "not XML")
        self.write("warned.xml", card("2024-9", charge="9999"))
        lines = [json.loads(line) for line in self.expect(
            REFUSED, "submit", "*.xml", "--url", self.url, "--json", "-q").splitlines()]
        self.assertEqual([line.get("name") for line in lines], ["bad.xml", "warned.xml", None])
        self.assertEqual(lines[-1]["counts"]["done"], 4)

    def test_many_workers_check_as_one_does(self):
        self.write_many(20)
        alone = self.expect(DONE, "check", "*.xml", "--json").splitlines()
        together = self.expect(DONE, "check", "*.xml", "--json", "--jobs", "8").splitlines()
        for lines in (alone, together):
            self.assertEqual(sorted(json.loads(line)["number"] for line in lines[:-1]),
                             sorted(f"2024-{number}" for number in range(20)))


class RetryTest(SimulatorCase):
    def test_what_may_pass_is_tried_again(self):
        self.write("a.xml", card("2024-1"))
        self.play(kind="http-status", status=502, count=2)
        self.assertEqual(self.expect(DONE, "submit", "a.xml", "--url", self.url, "--retry", "2"), "a.xml  submitted\n")
        self.assertEqual((self.indexed(), len(self.exchanges())), (["2024-1"], 3))

    def test_a_verbose_run_tells_why_each_try_failed_that_is_made_again(self):
        self.write("a.xml", card("2024-1"))
        self.play(kind="response-code", text="7 bad card")
        output = self.expect(DONE, "submit", "a.xml", "--url", self.url, "--retry", "1", "-v")
        self.assertEqual(output, "a.xml  try 1: unknown\n"
                                 "  ! Unexpected error returned from LEJIS: 7 bad card\n"
                                 "a.xml  submitted\n")

    def test_a_verbose_run_tells_programs_each_failed_try_in_a_line_of_its_own(self):
        self.write("a.xml", card("2024-1"))
        self.play(kind="http-status", status=502)
        lines = self.expect(DONE, "submit", "a.xml", "--url", self.url, "--retry", "1", "-v", "--json").splitlines()
        failed, last, summary = map(json.loads, lines)
        self.assertEqual([failed.get(member) for member in ("name", "try", "outcome", "number")],
                         ["a.xml", 1, "unknown", "2024-1"])
        self.assertEqual((last["outcome"], last.get("try"), summary["counts"]["done"]), ("submitted", None, 1))

    def test_no_more_often_than_asked_for(self):
        self.write("a.xml", card())
        self.play(kind="http-status", status=502, when="every")
        self.expect(TRY_AGAIN, "submit", "a.xml", "--url", self.url, "--retry", "1")
        self.assertEqual(len(self.exchanges()), 2)

    def test_what_does_not_pass_is_not_tried_again(self):
        self.write("a.xml", card())
        self.play(kind="soap-fault", message="No.")
        self.expect(REFUSED, "submit", "a.xml", "--url", self.url, "--retry", "5")
        self.assertEqual(len(self.exchanges()), 1)

    def test_others_go_on_meanwhile(self):
        self.write("a.xml", card("2024-1"))
        self.write("b.xml", card("2024-2"))
        self.play(kind="http-status", status=502)
        output = self.expect(DONE, "submit", "a.xml", "b.xml", "--url", self.url, "--retry", "1")
        self.assertTrue(output.startswith("b.xml  submitted\na.xml  submitted\n"), output)


class RoadTest(SimulatorCase):
    def setUp(self):
        super().setUp()
        for name in "abcde":
            self.write(f"{name}.xml", card(f"2024-{name}"))

    def test_a_network_that_fails_again_and_again_ends_the_run_with_one_sentence(self):
        output = self.expect(TRY_AGAIN, "submit", "*.xml", "--url", NOBODY, "--stop-after", "2")
        self.assertEqual(output.count("not sent\n"), 2, output)
        self.assertTrue(output.endswith("The network or the server failed for 2 incidents in a row: 3 not begun.\n"
                                        "5 files: 0 submitted, 2 not sent, 3 not begun.\n"), output)

    def test_an_answer_between_makes_a_new_beginning(self):
        for fault in ({"status": 502}, {"status": 403, "reason": "No."}, {"status": 502}, {"status": 502}):
            self.play(kind="http-status", **fault)
        output = self.expect(BOTH, "submit", "*.xml", "--url", self.url, "--stop-after", "3")
        self.assertEqual(self.indexed(), ["2024-e"], output)

    def test_the_tries_of_one_incident_count_once(self):
        output = self.expect(TRY_AGAIN, "submit", "a.xml", "--url", NOBODY, "--stop-after", "2", "--retry", "2",
                             "--ledger", "x.ledger")
        self.assertEqual(len((self.folder / "x.ledger").read_text().splitlines()), 3, output)

    def test_the_sentence_comes_also_when_nothing_is_left(self):
        output = self.expect(TRY_AGAIN, "submit", "a.xml", "--url", NOBODY, "--stop-after", "1")
        self.assertIn("The network or the server failed for 1 incident in a row: 0 not begun.\n", output)

    def test_what_lejis_answers_to_one_incident_does_not_end_it(self):
        self.play(kind="response-code", text="7 bad card", count=3)
        output = self.expect(TRY_AGAIN, "submit", "*.xml", "--url", self.url, "--stop-after", "2")
        self.assertTrue(output.endswith("5 files: 2 submitted, 3 unknown.\n"), output)

    def test_refusals_do_not_end_it(self):
        self.play(kind="soap-fault", message="No.", when="every")
        self.expect(REFUSED, "submit", "*.xml", "--url", self.url, "--stop-after", "1")
        self.assertEqual(len(self.exchanges()), 5)

    def test_no_more_are_begun_in_a_second_than_asked_for(self):
        self.expect(DONE, "submit", "*.xml", "--url", self.url, "--rate", "2", "--jobs", "5", "--ledger", "x.ledger")
        starts = [json.loads(line)["start"] for line in (self.folder / "x.ledger").read_text().splitlines()]
        seconds = sorted(datetime.fromisoformat(start.replace("Z", "+00:00")).timestamp() for start in starts)
        gaps = [later - earlier for earlier, later in zip(seconds, seconds[1:])]
        self.assertEqual(len(gaps), 4)
        self.assertGreater(min(gaps), 0.35, starts)

    def test_a_mute_server_is_waited_for_so_long_and_the_next_incident_gets_a_fresh_worker(self):
        with socket.create_server(("127.0.0.1", 0)) as mute:
            url = f"http://127.0.0.1:{mute.getsockname()[1]}/submission"
            start = time.monotonic()
            output = self.expect(TRY_AGAIN, "submit", "a.xml", "b.xml", "--url", url, "--timeout", "2")
            self.assertLess(time.monotonic() - start, TIME_LIMIT / 2)
        self.assertEqual(output.count("unknown\n  ! There was no answer within 2 seconds.\n"), 2, output)

    def test_a_worker_that_was_given_up_does_not_hold_up_the_others(self):
        self.play(kind="slow", seconds=30)
        output = self.expect(TRY_AGAIN, "submit", "*.xml", "--url", self.url, "--timeout", "3")
        self.assertTrue(output.endswith("5 files: 4 submitted, 1 unknown.\n"), output)


if __name__ == "__main__":
    unittest.main()
