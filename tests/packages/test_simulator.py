"""The package of the simulator: it starts from its zip. On Windows it has not been tried."""
import os
import re
import shutil
import subprocess
import tempfile
import time
import unittest
import urllib.request
import zipfile
from pathlib import Path

import wine_machine as machine
from package_case import ARCHITECTURES, PACKAGES, PROJECT
from test_content import content, project_version
from test_pages import Page

TIME_LIMIT = 20
SUBMISSION = PROJECT / "tests/simulator/full_submission.xml"


class SimulatorPackageTest(unittest.TestCase):
    def setUp(self):
        self.path = PACKAGES / f"TVLejisCore-{project_version()}-simulator.zip"

    def test_it_works_from_its_zip_with_nothing_else_of_the_project(self):
        with tempfile.TemporaryDirectory() as folder:
            with zipfile.ZipFile(self.path) as archive:
                archive.extractall(folder)
            program, = Path(folder).glob("*/lejis_simulator.py")
            port = Path(folder, "port")
            with subprocess.Popen(["/usr/bin/python3", "-B", program, "--port-file", port], cwd=folder, env={},
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as simulator:
                self.addCleanup(simulator.terminate)
                address = f"http://127.0.0.1:{self.port_of(port)}"
                self.check_services(address)
                self.check_page(address)
                simulator.terminate()

    def check_services(self, address):
        service = f"{address}/lejis-core-Rev01/services/submission"
        self.assertIn(b"definitions", self.get(f"{service}?wsdl"))
        host = "http://lejis.example/lejis/jxdm/1.0/service"
        request = urllib.request.Request(service, SUBMISSION.read_bytes(), {
            "SOAPAction": f"{host}/submitRmsIndex", "Content-Type": "text/xml;charset=utf-8"})
        with urllib.request.urlopen(request, timeout=TIME_LIMIT) as answer:
            self.assertIn(b"0 Accepted. Incidents: 1 added.", answer.read())
        self.assertIn(b'"outcome": "accepted"', self.get(f"{address}/control/exchanges"))

    def check_page(self, address):
        """Fetches the page and every file that one of its files names."""
        seen, names = set(), {"/"}
        while names - seen:
            name = sorted(names - seen)[0]
            seen.add(name)
            text = self.get(address + name).decode()
            names |= set(re.findall(r'"(/page/[a-z_.]+)"', text))
            names |= {f"/page/{one}" for one in re.findall(r'from "\./([a-z_]+\.js)"', text)}
        self.assertGreater(len(seen), 15)

    def port_of(self, file):
        deadline = time.monotonic() + TIME_LIMIT
        while not file.exists() or not file.read_text(encoding="ascii"):
            self.assertLess(time.monotonic(), deadline, "the simulator does not start")
            time.sleep(0.1)
        return file.read_text(encoding="ascii").strip()

    @staticmethod
    def get(address):
        with urllib.request.urlopen(address, timeout=TIME_LIMIT) as answer:
            return answer.read()

    def test_its_script_starts_what_is_beside_it(self):
        files = content(self.path)
        self.assertLessEqual({"simulator.cmd", "README.html", "LICENSE.txt", "lejis_simulator.py"}, set(files))
        script = files["simulator.cmd"]
        self.assertIn(b'"%~dp0lejis_simulator.py" --port 8080', script)
        self.assertEqual(script.count(b"\n"), script.count(b"\r\n"))
        self.assertEqual([name for name in files if "__pycache__" in name], [])

    def run_script(self, *arguments, **environment):
        """Under Wine's cmd, in a folder with a blank in its name."""
        folder = machine.DISK / "lejis simulator"
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        with zipfile.ZipFile(self.path) as archive:
            archive.extractall(folder)
        script, = folder.glob("*/simulator.cmd")
        machine.remove_separators_left()
        return subprocess.run([machine.RUNNER, "cmd", "/c", machine.windows_path(script), *arguments], text=True,
                              env={**os.environ, **environment}, stdin=subprocess.DEVNULL, capture_output=True,
                              timeout=machine.TIME_LIMIT, check=False)

    def stand_in(self, name):
        """A folder with what takes the place of Python, for WINEPATH."""
        folder = machine.DISK / "stand-in"
        folder.mkdir()
        self.addCleanup(shutil.rmtree, folder)
        shutil.copy(PROJECT / "build" / ARCHITECTURES[-1] / "tests" / "python_stand_in.exe", folder / name)
        return machine.windows_path(folder)

    def test_its_script_says_that_python_is_missing(self):
        run = self.run_script()
        self.assertIn("needs Python 3.10 or later, and this machine has none", run.stdout, run)
        self.assertEqual(run.returncode, 1)

    def test_its_script_says_that_lxml_is_missing(self):
        run = self.run_script(WINEPATH=self.stand_in("python.exe"), MISSING_MODULE="lxml")
        self.assertIn("needs lxml, and this Python does not have it", run.stdout, run)
        self.assertIn("    python -m pip install lxml\n", run.stdout)
        self.assertEqual(run.returncode, 1)

    def test_its_script_starts_the_simulator_with_the_options_given(self):
        run = self.run_script("--keep", "5", WINEPATH=self.stand_in("py.exe"))
        self.assertEqual(run.returncode, 0, run)
        version, program, *options = run.stdout.splitlines()
        self.assertEqual(version, "-3")
        self.assertRegex(program, r"^C:.*\\lejis_simulator\.py$")
        self.assertEqual(options, ["--port", "8080", "--stop-after", "86400", "--keep", "5"])

    def test_no_link_of_its_page_leads_out_of_it(self):
        files = content(self.path)
        page = Page(files["README.html"])
        for link in page.links:
            path, _, anchor = link.partition("#")
            self.assertIn(path or "README.html", files)
            self.assertTrue(not anchor or anchor in page.anchors, link)


if __name__ == "__main__":
    unittest.main()
