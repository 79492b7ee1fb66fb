"""What the tests of the samples share: a Wine prefix with the library registered, and a simulator."""
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest
import urllib.request
from pathlib import Path
from typing import NamedTuple

PROJECT = Path(__file__).resolve().parents[2]
sys.path.append(str(PROJECT / "tests" / "support"))

from windows_program import RUNNER  # noqa: E402  (the path comes first)

SAMPLES = PROJECT / "samples"
BUILD = PROJECT / "build" / os.environ["LEJIS_ARCHITECTURE"]
SYSTEM = {"x86": "SysWOW64", "x64": "System32"}[os.environ["LEJIS_ARCHITECTURE"]]
PROCESSOR = {"x86": "x86", "x64": "AMD64"}[os.environ["LEJIS_ARCHITECTURE"]]
SERVICES = os.environ["LEJIS_SIMULATOR_URL"] + "/lejis-core-Rev01/services"
SUBMISSION, SEARCH = f"{SERVICES}/submission", f"{SERVICES}/search"
TIME_LIMIT = 60

# What the samples end with.
DONE, REFUSED, TRY_AGAIN = 0, 1, 2


class Run(NamedTuple):
    code: int
    output: str


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def blocks(page, language):
    """The code blocks of a Markdown page that are in this language."""
    return re.findall(rf"^```{language}\n(.*?)^```$", page.read_text(encoding="utf-8"), re.MULTILINE | re.DOTALL)


class SampleCase(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="samples-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        for path in ("faults", "index", "exchanges"):
            self.control("DELETE", path)

    def control(self, method, path, body=None):
        address = f"{os.environ['LEJIS_SIMULATOR_URL']}/control/{path}"
        data = None if body is None else json.dumps(body).encode()
        with urllib.request.urlopen(urllib.request.Request(address, data, method=method), timeout=20) as answer:
            return json.load(answer)

    def play(self, **fault):
        self.control("POST", "faults", fault)

    def indexed(self):
        return [incident["id"] for incident in self.control("GET", "index")]

    def wine(self, *command, folder=None, environment=None):
        # What a program or Wine complains of stands in the tests' own output, which is looked at when a test fails.
        process = subprocess.run(
            [RUNNER, *command], cwd=folder, env={**os.environ, **(environment or {})}, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, timeout=TIME_LIMIT, check=False)
        return Run(process.returncode, process.stdout.decode("utf-8").replace("\r\n", "\n"))

    def script(self, path, *arguments):
        cscript = rf"C:\windows\{SYSTEM}\cscript.exe"
        return self.wine(cscript, "//nologo", windows_path(path), *arguments)

    def adapted(self, script, replacements):
        """A copy of the script in which each of the texts stood once and has been replaced."""
        text = script.read_text()
        for own, stand_in in replacements.items():
            self.assertEqual(text.count(own), 1, own)
            text = text.replace(own, stand_in)
        path = self.folder / script.name
        path.write_text(text)
        return path
