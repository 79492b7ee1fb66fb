"""What the tests of lejis.exe share. They need in their environment

    LEJIS_EXE                the program
    LEJIS_SIMULATOR_URL      a running simulator, http://127.0.0.1:PORT
    LEJIS_SIMULATOR_SCHEMAS  the folder of its schemas

and a Wine prefix in which the library of the program's bitness is registered.
"""
import json
import os
import re
import subprocess
import sys
import tempfile
import time
import unittest
import urllib.request
from pathlib import Path
from typing import NamedTuple

PROJECT = Path(__file__).resolve().parents[2]
sys.path.append(str(PROJECT / "tests" / "support"))

from windows_program import RUNNER  # noqa: E402  (the path comes first)

SAMPLES = PROJECT / "samples" / "incidents"
TIME_LIMIT = 60
# The command that runs a program without the rights by which root reads everything.
RESTRAINED = ("setpriv", "--bounding-set=-dac_override,-dac_read_search")

DONE, REFUSED, TRY_AGAIN, BOTH, WRONG_USAGE, INTERRUPTED = 0, 1, 2, 3, 64, 130

IN_VAIN = "    Trying again does not help until this is put right.\n"
NOTHING_SENT = "    Nothing reached LEJIS. Trying again later can help; the incident is not at fault.\n"
NOTHING_SENT_IN_VAIN = "    Nothing reached LEJIS. Trying again does not help until this is put right.\n"
SEND_AGAIN = ("    LEJIS may have it or not: send it again, LEJIS knows an incident by agency and number, or look it "
              "up.\n")
WITHDRAW_AGAIN = ("    LEJIS may have it still or not: withdraw it again, LEJIS knows an incident by agency and "
                  "number, or look it up.\n")

# Ends a summary, never twice the same.
PACE = re.compile(r" \d+\.\d s, \d+\.\d a second\.$", re.MULTILINE)

NAMESPACES = """
    xmlns:lejis="http://lejis.example/lejis/jxdm/1.0/service"
    xmlns:card="http://lejis.example/lejis/jxdm/1.0/card"
    xmlns:j="http://www.it.ojp.gov/jxdm/3.0.3\""""


def card(incident_id="2024-1", ori="PA0990100", zip_code="17099", charge="2202"):
    """A short incident card; its first element begins in line 5."""
    return f"""<lejis:RMSIncidentIndexCard{NAMESPACES}>
  <card:LejisIndexUid>
    <j:OrganizationORIID><j:ID>{ori}</j:ID></j:OrganizationORIID>
    <j:ActivityID><j:ID>{incident_id}</j:ID></j:ActivityID>
  </card:LejisIndexUid>
  <j:SubmissionSubmittedDate>2024-03-11</j:SubmissionSubmittedDate>
  <j:SubmissionSubmitter.Organization>
    <j:OrganizationName>Millbrook</j:OrganizationName>
  </j:SubmissionSubmitter.Organization>
  <j:IncidentLocation>
    <j:LocationAddress><j:LocationPostalCodeID><j:ID>{zip_code}</j:ID></j:LocationPostalCodeID></j:LocationAddress>
  </j:IncidentLocation>
  <j:ChargeNCICCode>{charge}</j:ChargeNCICCode>
</lejis:RMSIncidentIndexCard>
"""


class Run(NamedTuple):
    code: int
    output: str
    complaint: str


class LejisCase(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.url = os.environ["LEJIS_SIMULATOR_URL"] + "/lejis-core-Rev01/services/submission"
        folder = tempfile.TemporaryDirectory(prefix="lejis-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def lejis(self, *arguments, folder=None, environment=None, restrained=False):
        """`restrained`: so that the rights of folders count, even for root."""
        process = subprocess.run(
            [*(RESTRAINED if restrained and os.getuid() == 0 else ()), RUNNER, os.environ["LEJIS_EXE"],
             *map(str, arguments)],
            cwd=folder or self.folder, env={**os.environ, **(environment or {})},
            stdin=subprocess.DEVNULL, capture_output=True, timeout=TIME_LIMIT, check=False)
        output, complaint = (text.decode("utf-8").replace("\r\n", "\n") for text in (process.stdout, process.stderr))
        # Wine itself says this at times when a program of its has ended.
        complaint = "".join(line for line in complaint.splitlines(True) if not line.startswith("wine client error:"))
        return Run(process.returncode, output, complaint)

    def expect(self, code, *arguments, **options):
        """Runs lejis, which must end with this code; returns what it printed, without how fast it was."""
        run = self.lejis(*arguments, **options)
        self.assertEqual(run.code, code, run)
        self.assertEqual(run.complaint, "")
        return PACE.sub("", run.output)

    @staticmethod
    def lejis_program():
        return os.environ["LEJIS_EXE"]

    def write(self, name, content):
        path = self.folder / name
        path.write_bytes(content if isinstance(content, bytes) else content.encode())
        return path


class SimulatorCase(LejisCase):
    """Has a simulator that has forgotten everything of earlier tests."""

    def setUp(self):
        super().setUp()
        for path in ("faults", "index", "exchanges"):
            self.control("DELETE", path)

    def control(self, method, path, body=None):
        address = f"{os.environ['LEJIS_SIMULATOR_URL']}/control/{path}"
        data = None if body is None else json.dumps(body).encode()
        with urllib.request.urlopen(urllib.request.Request(address, data, method=method), timeout=20) as answer:
            return answer.read().decode()

    def play(self, **fault):
        self.control("POST", "faults", fault)

    def index(self):
        return json.loads(self.control("GET", "index"))

    def indexed(self):
        return [incident["id"] for incident in self.index()]

    def exchanges(self):
        return json.loads(self.control("GET", "exchanges"))

    def await_fault(self):
        """Until the last of the faults that were ordered is being played."""
        for _ in range(TIME_LIMIT * 10):
            if not json.loads(self.control("GET", "faults")):
                return
            time.sleep(0.1)
        self.fail("nobody asks for the fault")
