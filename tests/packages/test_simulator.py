"""The package of the simulator: it starts from its zip. On Windows it was not tried."""
import shutil
import subprocess
import tempfile
import time
import unittest
import urllib.request
import zipfile
from pathlib import Path

import wine_machine as machine
from package_case import PACKAGES, PackageCase
from test_content import content, project_version
from test_pages import Page

ZIP = PACKAGES / f"TVLejisCore-{project_version()}-simulator.zip"
TIME_LIMIT = 20
# Python's launcher for Windows, which is not under Wine.
STAND_IN = "@echo off\necho py %*\nexit /b 7\n"
CALLER = '@set PATH=%~dp0;%PATH%\n@"{}" --port 9 --data "my data"\n'


class SimulatorPackageTest(unittest.TestCase):
    def test_it_starts_from_its_zip_and_shows_its_page(self):
        with tempfile.TemporaryDirectory() as folder:
            with zipfile.ZipFile(ZIP) as archive:
                archive.extractall(folder)
            program, = Path(folder).glob("*/lejis_simulator.py")
            port = Path(folder, "port")
            # In a folder of its own, and with nothing of the project in sight.
            with subprocess.Popen(["/usr/bin/python3", "-B", program, "--port-file", port], cwd=folder,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as simulator:
                self.addCleanup(simulator.terminate)
                address = f"http://127.0.0.1:{self.port_of(port)}"
                page, wsdl = self.get(f"{address}/"), self.get(f"{address}/lejis-core-Rev01/services/submission?wsdl")
                simulator.terminate()
        self.assertIn(b"<title>", page)
        self.assertIn(b"definitions", wsdl)

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
        files = content(ZIP)
        self.assertLessEqual({"simulator.cmd", "README.html", "LICENSE.txt", "lejis_simulator.py"}, set(files))
        script = files["simulator.cmd"]
        self.assertIn(b'"%~dp0lejis_simulator.py" --port 8080', script)
        self.assertEqual(script.count(b"\n"), script.count(b"\r\n"))
        self.assertEqual([name for name in files if "__pycache__" in name], [])

    def test_no_link_of_its_page_leads_out_of_it(self):
        files = content(ZIP)
        page = Page(files["README.html"])
        for link in page.links:
            path, _, anchor = link.partition("#")
            self.assertIn(path or "README.html", files)
            self.assertTrue(not anchor or anchor in page.anchors, link)


class StartScriptTest(PackageCase):
    def test_under_wine_it_starts_a_stand_in_for_python_and_ends_as_that_does(self):
        folder = machine.DISK / "lejis simulator"
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        with zipfile.ZipFile(ZIP) as archive:
            archive.extractall(folder)
        script, = folder.glob("*/simulator.cmd")
        caller = folder / "caller.cmd"
        for path, text in ((folder / "py.cmd", STAND_IN), (caller, CALLER.format(machine.windows_path(script)))):
            path.write_text(text, encoding="ascii", newline="\r\n")
        run = machine.run("cmd", "/c", machine.windows_path(caller))
        program = machine.windows_path(script.with_name("lejis_simulator.py"))
        self.assertEqual(run, (7, f'py -3 "{program}" --port 8080 --stop-after 86400 --port 9 --data "my data"\n'))


if __name__ == "__main__":
    unittest.main()
