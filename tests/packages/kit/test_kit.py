"""The kit that tries the library on Windows: it runs from its zip, and its report says what happened."""
import http.server
import json
import os
import shutil
import threading
import unittest
import zipfile
from pathlib import Path

import wine_machine as machine
from package_case import ARCHITECTURES, PACKAGES, PROJECT, PackageCase
from test_content import content, project_version
from test_pages import Page

ZIP = PACKAGES / f"TVLejisCore-{project_version()}-kit.zip"
SIMULATOR = os.environ["LEJIS_SIMULATOR_URL"]
# Wine takes one schema's reference to another as relative to the current folder.
SCHEMAS = Path(os.environ["LEJIS_SIMULATOR_DATA"], "schemas")
LONGEST_CHECK = 3600
MOST_STARTS = 3
ARCHITECTURE = ARCHITECTURES[-1]
ALIEN = r"HKLM\Software\Classes\CLSID\{C1B6C0F4-9E44-4B5D-8D5B-6C0A5F3B7E01}"


class KitCase(PackageCase):
    def setUp(self):
        folder = machine.DISK / "lejis kit"
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        with zipfile.ZipFile(ZIP) as archive:
            archive.extractall(folder)
        self.kit, = folder.iterdir()
        # The kit of both bitnesses is itself a program of 32 bits.
        if {path.name for path in (self.kit / "bin").iterdir()} - set(ARCHITECTURES):
            self.skipTest("32-bit programs do not run here")

    def check(self, *arguments):
        """What check.cmd does: a start by Wine's cmd that fails on a busy machine is not repeated."""
        program = machine.windows_path(self.kit / "kit.exe")
        return machine.run(program, *arguments, folder=SCHEMAS, seconds=LONGEST_CHECK)

    def check_by_script(self, *arguments):
        for _ in range(MOST_STARTS):
            run = machine.run("cmd", "/c", machine.windows_path(self.kit / "check.cmd"), *arguments, folder=SCHEMAS,
                              seconds=LONGEST_CHECK)
            if (self.kit / "results").exists():
                break
        return run

    def keep(self, architecture):
        """Leaves the kit with the programs of one bitness."""
        for path in (self.kit / "bin").iterdir():
            if path.name != architecture:
                shutil.rmtree(path)

    def report(self):
        return json.loads((self.kit / "report.json").read_text(encoding="ascii"))

    def page(self):
        return (self.kit / "report.html").read_text(encoding="utf-8")

    def runs(self):
        return {run["name"]: run for run in self.report()["runs"]}


class WholeKitTest(KitCase):
    """Everything, as on a first day on Windows."""

    def test_under_wine_it_differs_from_windows_where_its_tables_say_so(self):
        run = self.check(SIMULATOR)
        report = self.report()
        different = [entry for entry in report["runs"] + report["points"]
                     if entry["status"] != entry["expectedUnderWine"]]
        self.assertEqual(different, [], run.output)
        self.assertEqual(run.code, 0, run)
        self.assertEqual({entry["bits"] for entry in report["runs"]}, set(ARCHITECTURES))
        self.check_facts(report)
        self.check_page(report)

    def check_facts(self, report):
        machine_facts = {fact["name"]: fact["text"] for fact in report["machine"]}
        self.assertEqual(machine_facts["locale of the user"], "en-US")
        self.assertRegex(machine_facts["Windows"], r"^\d+\.\d+\.\d+, 64 bit$")
        self.assertRegex(machine_facts[f"{ARCHITECTURE} msxml6.dll"], r"^6\.\d+\.\d+\.\d+$")
        self.assertTrue(report["underWine"])

    def check_page(self, report):
        page = self.page()
        for point in report["points"]:
            self.assertIn(point["title"], page)
        failing = [test for entry in report["runs"] for test in entry["failedTests"]]
        self.assertTrue(failing)
        for test in failing:
            self.assertIn(f"<h4>{test['name']}</h4>", page)
        self.assertEqual(Page(page.encode()).links, [])


def run_row(name, judge, program, arguments="-", seconds=60, needs="-"):
    return "\t".join((name, judge, needs, str(seconds), "passed", program, arguments))


CMD, CSCRIPT = r"{system}\cmd.exe", r"{system}\cscript.exe"
OWN_RUNS = [
    run_row("good", "says hello", CMD, "/c echo hello"),
    run_row("silent", "says hello", CMD, "/c exit 0"),
    run_row("bad", "code 0", CSCRIPT, r'//nologo "{kit}\bad.vbs"'),
    run_row("endless", "code 0", CSCRIPT, r'//nologo "{kit}\endless.vbs"', seconds=3),
    run_row("absent", "code 0", r"{kit}\absent.exe"),
    run_row("unmade", "code 0", r"{results}\unmade.exe"),
    run_row("simulator", "code 0", CMD, "/c exit 0", needs="simulator"),
    run_row("no check", "script", CSCRIPT, r'//nologo "{kit}\nothing.vbs"'),
    run_row("other processor", "script", CSCRIPT, r'//nologo "{kit}\processor.vbs"'),
    run_row("no mark", "script", CSCRIPT, r'//nologo "{kit}\unmarked.vbs"'),
    run_row("failing test", "tests", r"{bin}\windows_tests.exe", "--gtest_filter=DeadServer.*"),
    run_row("no test", "tests", r"{bin}\windows_tests.exe", "--gtest_filter=Nothing.*"),
    run_row("no results", "tests", CMD, "/c exit 0"),
    run_row("alien", "code 0", r"{system}\reg.exe", f"add {ALIEN} /f /reg:{'64' if ARCHITECTURE == 'x64' else '32'}"),
]
SCRIPTS = {"bad.vbs": 'WScript.Echo "A <tag>"\nWScript.Quit 3\n', "endless.vbs": "Do\nLoop\n",
           "nothing.vbs": 'WScript.Echo "END OF SCRIPT 0 checks on {0}"\nWScript.Quit 7\n',
           "processor.vbs": 'WScript.Echo "END OF SCRIPT 3 checks on PDP11"\nWScript.Quit 7\n',
           "unmarked.vbs": "WScript.Quit 7\n"}
OWN_POINTS = {"Passes": ("good", "-", "passed"), "Fails & <b>shows</b>": ("good,bad", "-", "failed"),
              "Half": ("good,absent", "-", "in part"), "Nothing": ("absent", "-", "not run"),
              "By a person": ("-", "look at it", "not run"), "Also by a person": ("good", "look at it", "in part")}


class JudgementTest(KitCase):
    """With tables of its own, whose runs end in each way."""

    def setUp(self):
        super().setUp()
        self.keep(ARCHITECTURE)
        processor = {"x86": "x86", "x64": "AMD64"}[ARCHITECTURE]
        for name, text in SCRIPTS.items():
            (self.kit / name).write_text(text.replace("{0}", processor), encoding="ascii")
        self.write("runs.tsv", "name judge needs seconds wine program arguments", OWN_RUNS)
        self.write("rows.tsv", "number title runs simulator wine by hand".replace("by hand", "by-hand"), [
            f"{number}\t{title}\t{runs}\tno\tpassed\t{by_hand}"
            for number, (title, (runs, by_hand, _)) in enumerate(OWN_POINTS.items(), 1)])
        self.addCleanup(lambda: machine.run("reg", "delete", ALIEN, "/f"))

    def write(self, name, head, rows):
        columns = [column.replace("-", " ") for column in head.split()]
        (self.kit / name).write_text("\n".join(["\t".join(columns), *rows]) + "\n", encoding="utf-8")

    def test_each_end_is_told_as_it_was(self):
        run = self.check()
        runs = self.runs()
        seen = {name: (entry["status"], entry["seen"]) for name, entry in runs.items()}
        endless = seen.pop("endless")
        self.assertEqual(seen, {
            "register": ("passed", "ended with code 0"), "good": ("passed", 'said "hello"'),
            "silent": ("failed", 'did not say "hello"'), "bad": ("failed", "ended with code 3"),
            "absent": ("not run", f"{machine.windows_path(self.kit)}\\absent.exe is not on this machine"),
            "unmade": ("not run", "its program was not made"),
            "simulator": ("not run", "needs the address of a simulator"),
            "no check": ("failed", "ended with code 7, but made no check"),
            "other processor": ("failed", f"ran on PDP11, not on {'AMD64' if ARCHITECTURE == 'x64' else 'x86'}"),
            "no mark": ("failed", "ended with code 7 without its end mark"),
            "failing test": ("failed", "1 of 2 tests failed"), "no test": ("failed", "ran no test"),
            "no results": ("failed", "ended with code 0 and left no results"), "alien": ("passed", "ended with code 0"),
            "registered": ("failed", "not as before"), "unregister": ("passed", "ended with code 0"),
            "registry": ("failed", "not as before")})
        self.assertEqual(endless[0], "failed")
        self.assertRegex(endless[1], r"^did not end within [3-9] s$")
        self.assertEqual(run.code, 1, run)
        test, = runs["failing test"]["failedTests"]
        self.assertEqual(test["name"], "DeadServer.EndsASearchInANetworkError")
        self.assertIn("events.size()", test["text"])
        self.assertIn(f"+ machine, {64 if ARCHITECTURE == 'x64' else 32} bit: {ALIEN.partition('Classes')[2][1:]}\n",
                      runs["registry"]["output"])
        self.check_points()

    def check_points(self):
        points = self.report()["points"]
        self.assertEqual({point["title"]: point["status"] for point in points},
                         {title: status for title, (_, _, status) in OWN_POINTS.items()})
        page = self.page()
        self.assertIn("<p>6 points: 1 passed, 1 failed, 2 in part, 2 not run.<br>", page)
        # Nothing is said of a status that no run has.
        self.assertRegex(page, r"\d+ runs: \d+ passed, \d+ failed, 3 not run\.<br>")
        self.assertIn("<small>expected under Wine: passed</small>", page)
        self.assertRegex(page, r"<h3>\S+ silent: .*</h3>\r?\n<p>It printed nothing.</p>")
        self.assertIn("<td>Fails &amp; &lt;b&gt;shows&lt;/b&gt;</td>", page)
        self.assertIn("<pre>A &lt;tag&gt;\n</pre>", page.replace("\r", ""))
        self.assertIn("By hand: look at it", page)


class AnsweringServer:
    """Answers every GET alike, and keeps what it was asked."""

    def __init__(self, answer):
        requests = self.requests = []

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):  # its caller's name for it
                requests.append(f"GET {self.path}")
                self.send_response(200)
                self.send_header("Content-Length", str(len(answer)))
                self.end_headers()
                self.wfile.write(answer)

            def log_message(self, *_):
                pass

        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.address = f"http://127.0.0.1:{self.server.server_port}"

    def __enter__(self):
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        return self

    def __exit__(self, *_):
        self.server.shutdown()
        self.server.server_close()


class RefusalTest(KitCase):
    def setUp(self):
        super().setUp()
        self.keep(ARCHITECTURE)
        folder = {"x86": "syswow64", "x64": "system32"}[ARCHITECTURE]
        self.regsvr32 = rf"C:\windows\{folder}\regsvr32.exe"
        self.dll = machine.windows_path(self.kit / "bin" / ARCHITECTURE / "TVLejisCore.dll")

    def test_a_library_that_is_installed_is_left_alone(self):
        self.addCleanup(machine.run, self.regsvr32, "/s", "/u", self.dll)
        self.expect(self.regsvr32, "/s", self.dll)
        run = self.check()
        self.assertEqual(run.code, 2, run)
        self.assertFalse((self.kit / "report.json").exists())
        self.expect(machine.windows_path(self.kit / "bin" / ARCHITECTURE / "lejis.exe"), "doctor")

    def test_what_is_no_address_of_a_simulator_is_refused(self):
        for address in ("localhost:8080", "http://127.0.0.1:1"):
            self.assertEqual(self.check(address).code, 2, address)

    def test_nothing_is_sent_to_what_is_no_simulator_or_records_a_true_lejis(self):
        for answer in (b"<html/>", b"{}", b'{"far_side": "http://lejis.state.example/"}'):
            with AnsweringServer(answer) as server:
                self.assertEqual(self.check(server.address).code, 2, answer)
            self.assertEqual(server.requests, ["GET /control/status"])
        self.assertFalse((self.kit / "report.json").exists())

    def test_runs_can_be_chosen_by_the_beginnings_of_their_names(self):
        run = self.check_by_script("--only", "Cards")
        self.assertEqual(run.code, 0, (run, self.page()))
        carried_out = {name for name, run in self.runs().items() if run["status"] != "not run"}
        self.assertEqual(carried_out, {"register", "Cards.vbs", "registered", "unregister", "registry"})


class KitContentTest(unittest.TestCase):
    def test_it_runs_every_script_and_holds_what_its_runs_start(self):
        files = content(ZIP)
        lines = files["runs.tsv"].decode().splitlines()
        rows = [line.split("\t") for line in lines if not line.startswith("#")]
        scripts = {path.name for path in (PROJECT / "tests" / "client" / "scripts").glob("*.vbs")}
        self.assertLessEqual(scripts, {row[0] for row in rows})
        for row in rows:
            for part in row[-1].split('"'):
                if part.startswith("{kit}\\"):
                    self.assertIn(part.removeprefix("{kit}\\").replace("\\", "/"), files)
            if row[-2].startswith("{bin}\\"):
                for architecture in ARCHITECTURES:
                    self.assertIn(f"bin/{architecture}/" + row[-2].removeprefix("{bin}\\"), files)

    def test_its_page_and_its_texts_are_for_windows(self):
        files = content(ZIP)
        self.assertLessEqual({"check.cmd", "kit.exe", "README.html", "LICENSE.txt", "rows.tsv"}, set(files))
        self.assertEqual(Page(files["README.html"]).links, ["README.html"])
        for name, text in files.items():
            if name.endswith((".cmd", ".vbs", ".tsv", ".html", ".cs", ".ps1")):
                self.assertEqual(text.count(b"\n"), text.count(b"\r\n"), name)


if __name__ == "__main__":
    unittest.main()
