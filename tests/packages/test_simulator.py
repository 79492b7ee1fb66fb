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
from package_case import PACKAGES, PROJECT
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
        """With every file that one of its files names."""
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
        """Under Wine's cmd, in a folder with a blank in its name; its output, and what Wine says of programs."""
        folder = machine.DISK / "lejis simulator"
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        with zipfile.ZipFile(self.path) as archive:
            archive.extractall(folder)
        script, = folder.glob("*/simulator.cmd")
        # What earlier tests installed or started may still be ending.
        machine.stop()
        return subprocess.run([machine.RUNNER, "cmd", "/c", machine.windows_path(script), *arguments], text=True,
                              env={**os.environ, **environment}, stdin=subprocess.DEVNULL, capture_output=True,
                              timeout=machine.TIME_LIMIT, check=False)

    def test_its_script_says_what_to_install(self):
        run = self.run_script()
        self.assertIn("needs Python 3.10 or later, and this machine has none", run.stdout, run)
        self.assertEqual(run.returncode, 1)

    def test_its_script_starts_the_simulator_with_the_options_given(self):
        """Wine's icacls takes the place of Python: it does nothing but say what it was started with."""
        stand_in = machine.DISK / "stand-in"
        stand_in.mkdir()
        self.addCleanup(shutil.rmtree, stand_in)
        shutil.copy(machine.DISK / "windows/system32/icacls.exe", stand_in / "py.exe")
        run = self.run_script("--keep", "5", WINEPATH=machine.windows_path(stand_in), WINEDEBUG="fixme+icacls")
        self.assertEqual(run.returncode, 0, run)
        started = re.findall(r'stub: "py" (.*)', run.stderr)
        self.assertEqual(started[:2], ['"-3" "-c" "import sys"', '"-3" "-c" "import lxml.etree"'])
        self.assertRegex(started[2], r'^"-3" "C:.*lejis_simulator\.py" "--port" "8080" "--stop-after" "86400" "--keep" "5"$')

    def test_no_link_of_its_page_leads_out_of_it(self):
        files = content(self.path)
        page = Page(files["README.html"])
        for link in page.links:
            path, _, anchor = link.partition("#")
            self.assertIn(path or "README.html", files)
            self.assertTrue(not anchor or anchor in page.anchors, link)


if __name__ == "__main__":
    unittest.main()
